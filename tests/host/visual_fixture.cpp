#include "visual_fixture.h"

#include "visual/visual.h"

namespace hosttest {

const char *const kBoxMesh = "HKMESH 1\n"
                             "MATERIAL red\n  DIFFUSE 1 0 0 1\n"
                             "MATERIAL glow\n  EMISSIVE 0 0 1\n"
                             "TEXTURE Test\\Skin\n"
                             "LABEL Arm\nMAT 0\nTEX 1\n"
                             "V 0 1 0  0 1 0  0 0\nV 1 0 0\nV 0 0 1\nT 0 1 2\n"
                             "LABEL Hand\nMAT 1\nFLAG 2\nV 1 0 0  1 0 0\nT 0 0 0\n";

std::vector<std::string> &ShowVessel::Events() {
    static std::vector<std::string> events;
    return events;
}

void ShowVessel::clbkPostCreation() {
    Events().push_back(std::string(GetName()) + " postCreation");
    AddMesh("Test\\Box");
}

void ShowVessel::clbkVisualCreated(VISHANDLE vis, int refcount) {
    Events().push_back(std::string(GetName()) + " visualCreated " + std::to_string(refcount));
    visual = vis;
}

void ShowVessel::clbkVisualDestroyed(VISHANDLE, int refcount) {
    Events().push_back(std::string(GetName()) + " visualDestroyed " + std::to_string(refcount));
    visual = nullptr;
}

namespace {
VESSEL *ShowInit(OBJHANDLE h, int fmodel) { return new ShowVessel(h, fmodel); }
void ShowExit(VESSEL *v) {
    ShowVessel::Events().push_back(std::string(v->GetName()) + " exit");
    delete static_cast<ShowVessel *>(v);
}
} // namespace

VisualWorld::VisualWorld() {
    WriteText(root / "Config/Vessels/Test/Show.cfg", "Module = Test\\Show\n");
    WriteText(root / "Meshes/Test/Box.msh", kBoxMesh);
    world.modules.RegisterBuiltin("Test\\Show", ShowInit, ShowExit);
    ShowVessel::Events().clear();
}

ShowVessel &VisualWorld::Make(const std::string &name) {
    VESSELSTATUS2 st{};
    st.version = 2;
    st.rbody = world.Earth()->Handle();
    st.rpos = {7e6, 0, 0};
    return *static_cast<ShowVessel *>(world.CreateVessel(name, "Test\\Show", st).iface);
}

VECTOR3 VisualWorld::Vertex(ShowVessel &v, size_t grp, size_t idx) {
    const NTVERTEX &p = Host(v).visual->At(0)->groups.at(grp).vertices.at(idx);
    return {p.x, p.y, p.z};
}

} // namespace hosttest
