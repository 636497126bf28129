// A probe vessel with meshes, textures and materials of its own, on a small
// mesh file of three labelled groups and two texture slots.
#pragma once

#include <string>

#include "resource_fixture.h"
#include "visual/dev_mesh.h"
#include "visual/surface.h"
#include "visual/visual.h"
#include "visual/visual_lifecycle.h"

class MeshTest : public ResourceTest {
  protected:
    static constexpr const char *kMeshHeaders =
        "TEXTURE_REC = Texture Textures SName SType SFile\n"
        "MESH_REC = Mesh Meshes SName SFile VPos SVis SLoad\n"
        "MATERIAL_REC = Material Materials SName SMesh SType AMatList\n";

    // Hull and Glass loaded at creation, Door only when asked for, and two
    // textures to put on them.
    static constexpr const char *kMeshes = "Meshes = {\n"
                                           "  Hull   Test\\Box  xyz0\n"
                                           "  Door   Test\\Box  (1,2,3)  EXTERNAL  LATER\n"
                                           "  Glass  Test\\Box  (0,0,1)  EXTERNAL\n"
                                           "}\n"
                                           "Textures = {\n"
                                           "  tEx  EXHAUST  Test\\Flame\n"
                                           "  tPa  PARTICLE Test\\Smoke\n"
                                           "}\n";

    MeshTest() {
        env.Write("Meshes/Test/Box.msh", "HKMESH 1\n"
                                         "MATERIAL hull\n"
                                         "MATERIAL glass\n"
                                         "TEXTURE Test\\Skin\n"
                                         "TEXTURE Test\\Panel\n"
                                         "LABEL Body\nMAT 0\nTEX 1\nFLAG 2\n"
                                         "LABEL Door\nTEX 2\n"
                                         "LABEL Window\nMAT 1\n");
        Common(std::string(kPropulsionHeaders) + kMeshHeaders);
    }

    // The class file with the reentry glow off, so that only the test's
    // records reach the host.
    void Meshes(const std::string &text) { Class("NoReentryGlow = true\n" + text); }

    hullhost::DevMesh *Device(size_t slot) { return Host().visual ? Host().visual->At(slot) : nullptr; }
    static hullhost::Surface *SurfaceOf(SURFHANDLE h) { return reinterpret_cast<hullhost::Surface *>(h); }
    void RenewVisual() {
        hullhost::DestroyVisual(*env.world, Host());
        hullhost::CreateVisual(*env.world, Host());
    }
};
