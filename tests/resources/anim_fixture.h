// A probe vessel with animation components and controllers, whose hooks
// record what the controllers report.
#pragma once

#include <string>
#include <vector>

#include "resource_fixture.h"

class AnimProbe : public ProbeVessel {
  public:
    using ProbeVessel::ProbeVessel;
    bool AnimKeyAllowed(DWORD, char *, ANIM_CTRL_REC *c) override { return c->name != refused; }
    void OnControllerMoved(ANIM_CTRL_REC *c) override { hooks.push_back("moved " + c->name); }
    void OnControllerEndStop(ANIM_CTRL_REC *c) override { hooks.push_back("stop " + c->name); }
    void OnControllerTargetReached(ANIM_CTRL_REC *c) override { hooks.push_back("target " + c->name); }
    void ShowMessage(const char *text) override { messages.emplace_back(text); }

    std::string refused;
    std::vector<std::string> hooks, messages;
};

class AnimTest : public ResourceTest {
  protected:
    static constexpr const char *kAnimHeaders =
        "MESH_REC = Mesh Meshes SName SFile VPos SVis SLoad\n"
        "ANIM_REC = Anim ANIMATIONS SName IType SMesh VVec1 VVec2 DDeg DFrom DTo DStart "
        "SExisting SParent AGroups\n"
        "ANIM_CTRL_REC = AnimCtrl AnimControls SName SAnim DVel DAccel INoHardStop IKMinus "
        "IKMinusCtrl IKMinusShift IKPlus IKPlusCtrl IKPlusShift IKeepKDown SSndMove SSndMinusStop "
        "SSndPlusStop\n";

    AnimTest() {
        env.world->modules.RegisterBuiltin(
            "Test\\Probe", [](OBJHANDLE h, int fmodel) -> VESSEL * { return new AnimProbe(h, fmodel); },
            [](VESSEL *v) { delete static_cast<AnimProbe *>(v); });
    }

    // Loads the probe with `animations` and `controls` as the lines of the two
    // sections, over the meshes Body and Arm.
    AnimProbe &LoadAnimated(const std::string &animations, const std::string &controls) {
        Common(std::string(kPropulsionHeaders) + kAnimHeaders);
        Class("Meshes = {\n  Body Test\\Body\n  Arm Test\\Arm\n}\n"
              "ANIMATIONS = {\n" +
              animations + "}\nAnimControls = {\n" + controls + "}\n");
        probe = static_cast<AnimProbe *>(&Load());
        return *probe;
    }

    ANIM_CTRL_REC *Ctl(const char *name) { return probe->AnimCtrlTable.Find(name); }
    double HostState(const ANIM_CTRL_REC *c) { return Host().animations.at(c->animation)->state; }
    // Steps a controller `n` times with a step of `dt` seconds.
    void Step(ANIM_CTRL_REC *c, double dt, int n = 1) {
        probe->SimStep = dt;
        for (int i = 0; i < n; ++i)
            probe->StepController(c);
    }

    AnimProbe *probe = nullptr;
};
