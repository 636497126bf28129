// A probe vessel with a record of each kind whose state is saved, and the
// saving of its scenario block into a list of lines.
#pragma once

#include <string>
#include <vector>

#include "core/line_file.h"
#include "resource_fixture.h"

class ScenarioTest : public ResourceTest {
  protected:
    static constexpr const char *kClassText =
        "NoReentryGlow = true\n"
        "Meshes = {\n  Hull Test\\Box xyz0\n  Door Test\\Box (1,2,3) NEVER LATER\n}\n"
        "Textures = {\n  tDy DYNAMIC Test\\Panel\n}\n"
        "Tanks = {\n  Main 5000\n  Rcs 100\n}\n"
        "Thrusters = {\n  T0 (0,0,-1) zplus 20000 Main 3250\n}\n"
        "ThrusterGroups = {\n  Main T0 1\n}\n"
        "Cameras = {\n  fwd (0,0,1) (0,0,1) 0\n  aft (0,0,-1) (0,0,-1) 0\n}\n"
        "ANIMATIONS = {\n  Hatch ROTATE Hull xyz0 xplus 90 0 1 0 NEW NONE 1\n}\n"
        "AnimControls = {\n  HatchCtl Hatch 0.5 0 false\n}\n";

    ScenarioTest() {
        env.Write("Meshes/Test/Box.msh", "HKMESH 1\nLABEL Body\nLABEL Door\n");
        Common(std::string(kPropulsionHeaders) +
               "TEXTURE_REC = Texture Textures SName SType SFile\n"
               "MESH_REC = Mesh Meshes SName SFile VPos SVis SLoad\n"
               "ANIM_REC = Anim ANIMATIONS SName IType SMesh VVec1 VVec2 DDeg DFrom DTo DStart "
               "SExisting SParent AGroups\n"
               "ANIM_CTRL_REC = AnimCtrl AnimControls SName SAnim DVel DAccel INoHardStop\n");
        Class(kClassText);
    }

    static std::vector<std::string> Save(HULLKIT &vessel) {
        hullhost::LineFile file;
        vessel.clbkSaveState(file.Handle());
        return file.Written();
    }
    // The saved lines without the host's own state lines.
    static std::vector<std::string> FrameworkLines(HULLKIT &vessel) {
        std::vector<std::string> lines;
        for (const std::string &line : Save(vessel))
            if (!IsHostLine(line))
                lines.push_back(line);
        return lines;
    }
    static bool IsHostLine(const std::string &line) {
        for (const char *key : {"STATUS ", "RPOS ", "RVEL ", "AROT ", "VROT ", "POS ", "HEADING "})
            if (line.rfind(key, 0) == 0)
                return true;
        return false;
    }
};
