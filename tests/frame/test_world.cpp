#include "test_world.h"

#include <fstream>
#include <random>

#include "core/program_module.h"

namespace testing_support {

TestWorld::TestWorld() {
    std::random_device rd;
    root = std::filesystem::temp_directory_path() / ("hullkit-test-" + std::to_string(rd()));
    std::filesystem::create_directories(root);
    previousDir_ = std::filesystem::current_path();
    // Vessels open their files relative to the host's working directory.
    std::filesystem::current_path(root);
    world = new hullhost::World(root.string());
    hullhost::SetProgramModulePath("Modules\\Test\\Probe.dll");
}

TestWorld::~TestWorld() {
    delete world;
    std::filesystem::current_path(previousDir_);
    std::filesystem::remove_all(root);
}

void TestWorld::Write(const std::string &path, const std::string &text) {
    std::filesystem::path full = root / path;
    std::filesystem::create_directories(full.parent_path());
    std::ofstream(full) << text;
}

void TestWorld::AddClass(const std::string &name, OvcInitFunc init, OvcExitFunc exit) {
    Write("Config/Vessels/Test/" + name + ".cfg", "Module = Test\\" + name + "\n");
    world->modules.RegisterBuiltin("Test\\" + name, init, exit);
}

hullhost::Vessel &TestWorld::Load(const std::string &name, const std::string &className,
                                  const std::vector<std::string> &lines) {
    hullhost::Vessel &v = world->ConstructVessel(name, className);
    world->LoadVesselState(v, lines);
    world->PostCreate(v);
    return v;
}

void TestWorld::Run(double seconds, double dt) {
    const double end = world->simt + seconds - 1e-9;
    while (world->simt < end)
        world->Frame(dt);
}

} // namespace testing_support
