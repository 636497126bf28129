// A world in a temporary root with in-process vessel classes, for tests of
// the vessel framework.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "core/world.h"

namespace testing_support {

class TestWorld {
  public:
    TestWorld();
    ~TestWorld();

    // Writes a file under the root; `path` uses forward slashes.
    void Write(const std::string &path, const std::string &text);
    // A class "Test\<name>" whose vessels are made by `init` in this program.
    void AddClass(const std::string &name, OvcInitFunc init, OvcExitFunc exit);
    // A vessel from a scenario block: constructed, loaded, post-created.
    hullhost::Vessel &Load(const std::string &name, const std::string &className,
                           const std::vector<std::string> &lines);
    // Runs frames of `dt` seconds until the simulation time has advanced by `seconds`.
    void Run(double seconds, double dt = 0.1);

    std::filesystem::path root;
    hullhost::World *world = nullptr;

  private:
    std::filesystem::path previousDir_;
};

// The vessel object behind a host vessel, as its concrete class.
template <class T> T &Object(hullhost::Vessel &v) { return *static_cast<T *>(v.iface); }

} // namespace testing_support
