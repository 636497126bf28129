// A test's world with the build's root as the working directory while it
// exists, as hullsim's run sets it, so that vessels find their files.
#pragma once

#include <filesystem>
#include <memory>

#include "core/world.h"

class RootWorld {
  public:
    RootWorld() : previous_(std::filesystem::current_path()) {
        std::filesystem::current_path(HULLKIT_TEST_ROOT);
        world_ = std::make_unique<hullhost::World>(HULLKIT_TEST_ROOT);
    }
    ~RootWorld() {
        world_.reset(); // the vessels go while their root is still current
        std::filesystem::current_path(previous_);
    }
    RootWorld(const RootWorld &) = delete;
    RootWorld &operator=(const RootWorld &) = delete;

    hullhost::World &operator*() const { return *world_; }
    hullhost::World *operator->() const { return world_.get(); }

  private:
    std::filesystem::path previous_;
    std::unique_ptr<hullhost::World> world_;
};
