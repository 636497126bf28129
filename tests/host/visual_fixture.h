// A world with a small mesh file and a vessel class that records when its
// visual comes and goes, for the tests of meshes, visuals and animations.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Orbitersdk.h"
#include "core/world.h"
#include "temp_dir.h"

namespace hosttest {

// Meshes/Test/Box.msh: group 0 "Arm" (material 0, texture 1, vertices
// (0,1,0), (1,0,0), (0,0,1)), group 1 "Hand" (material 1, user flag 2, one
// vertex (1,0,0)); two materials, one texture.
extern const char *const kBoxMesh;

class ShowVessel : public VESSEL3 {
  public:
    ShowVessel(OBJHANDLE h, int fmodel) : VESSEL3(h, fmodel) {}
    void clbkPostCreation() override;
    void clbkVisualCreated(VISHANDLE vis, int refcount) override;
    void clbkVisualDestroyed(VISHANDLE vis, int refcount) override;

    VISHANDLE visual = nullptr;
    static std::vector<std::string> &Events();
};

class VisualWorld : public ::testing::Test {
  protected:
    VisualWorld();
    // A new vessel of the recording class; it adds the box mesh as mesh 0.
    ShowVessel &Make(const std::string &name);
    hullhost::Vessel &Host(ShowVessel &v) { return *v.HostVessel(); }
    // The first vertex of group `grp` of mesh 0 in the vessel's visual.
    VECTOR3 Vertex(ShowVessel &v, size_t grp, size_t idx = 0);

    TempDir root;
    hullhost::World world{root.Path().string()};
};

} // namespace hosttest
