#include "host_probe.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

std::vector<std::string> &ProbeEvents() {
    static std::vector<std::string> events;
    return events;
}

HostProbe::HostProbe(OBJHANDLE h, int fmodel) : VESSEL3(h, fmodel) {
    Record("construct");
    note = oapiCreateAnnotation(true, 1.0, _V(1, 1, 1));
}

HostProbe::~HostProbe() { ProbeEvents().push_back("destruct"); }

void HostProbe::Record(const std::string &what) const {
    ProbeEvents().push_back(std::string(GetName()) + " " + what);
}

void HostProbe::clbkSetClassCaps(FILEHANDLE) {
    Record("setClassCaps");
    SetEmptyMass(1200.0);
    SetSize(4.0);
    PROPELLANT_HANDLE tank = CreatePropellantResource(300.0, 250.0);
    THRUSTER_HANDLE main = CreateThruster(_V(0, 0, -2), _V(0, 0, 1), 5000.0, tank, 3000.0);
    CreateThrusterGroup(&main, 1, THGROUP_MAIN);
    CreateDock(_V(0, 0, 2), _V(0, 0, 1), _V(0, 1, 0));
    CreateAttachment(false, _V(0, 0, 3), _V(0, 0, 1), _V(0, 1, 0), "PROBE");
}

void HostProbe::clbkLoadStateEx(FILEHANDLE scn, void *status) {
    char *line;
    while (oapiReadScenario_nextline(scn, line)) {
        Record(std::string("load ") + line);
        if (std::strncmp(line, "PROBE_MAIN ", 11) == 0)
            mainLevel = std::atof(line + 11);
        else if (std::sscanf(line, "PROBE_ANSWER %d %d", &bufferedAnswer, &directAnswer) == 2 ||
                 std::sscanf(line, "PROBE_WARP %lf", &warp) == 1 ||
                 std::sscanf(line, "PROBE_CAP %lf", &cap) == 1 ||
                 std::sscanf(line, "PROBE_THROW %d", &throwAt) == 1)
            continue;
        else if (std::strcmp(line, "PROBE_RCS") == 0)
            rcs = true;
        else if (std::strcmp(line, "PROBE_SAY") == 0)
            say = true;
        else if (std::strcmp(line, "PROBE_SPAWN") == 0)
            spawn = true;
        else if (std::strncmp(line, "PROBE", 5) != 0)
            ParseScenarioLineEx(line, status);
    }
}

void HostProbe::clbkSaveState(FILEHANDLE scn) {
    Record("save");
    SaveDefaultState(scn);
    oapiWriteScenario_int(scn, "PROBE_FRAMES", frames);
    oapiWriteScenario_string(scn, "PROBE_KEYS", keys.c_str());
    char held[64];
    std::snprintf(held, sizeof held, "M=%d J=%d CTRL=%d", heldM, heldJ, heldCtrl);
    oapiWriteScenario_string(scn, "PROBE_HELD", held);
    oapiWriteScenario_int(scn, "PROBE_MANUAL", manual);
}

void HostProbe::clbkPostCreation() {
    Record("postCreation");
    if (mainLevel > 0.0)
        SetThrusterGroupLevel(THGROUP_MAIN, mainLevel);
    if (rcs) {
        THRUSTER_HANDLE pitch =
            CreateThruster(_V(0, 0, 2), _V(0, 1, 0), 50.0, CreatePropellantResource(10.0), 2000.0);
        THRUSTER_HANDLE lift =
            CreateThruster(_V(0, 0, 0), _V(0, 1, 0), 50.0, CreatePropellantResource(10.0), 2000.0);
        CreateThrusterGroup(&pitch, 1, THGROUP_ATT_PITCHUP);
        CreateThrusterGroup(&lift, 1, THGROUP_ATT_UP);
    }
    std::string text = std::string("probe ") + GetName() + " ready";
    oapiAnnotationSetText(note, text.data());
    oapiWriteLog(text.data());
}

void HostProbe::clbkFocusChanged(bool getfocus, OBJHANDLE, OBJHANDLE) {
    Record(getfocus ? "focus" : "unfocus");
}

bool HostProbe::clbkLoadGenericCockpit() {
    Record("cockpit");
    if (!hudPen)
        hudPen = oapiCreatePen(1, 2, 0x00ff00);
    return true;
}

bool HostProbe::clbkDrawHUD(int, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) {
    skp->SetPen(hudPen);
    skp->MoveTo(0, 0);
    skp->LineTo(hps->W, hps->H);
    skp->Line(hps->W, 0, 0, hps->H);
    skp->SetTextColor(0x0000ff);
    const std::string name = std::string("<") + GetName() + ">";
    skp->Text(hps->CX, hps->CY, name.c_str(), static_cast<int>(name.size()));
    return true;
}

void HostProbe::clbkPreStep(double simt, double, double) {
    ++frames;
    Record("preStep");
    std::snprintf(oapiDebugString(), 256, "frames %d at %.2f", frames, simt);
    manual += GetManualControlLevel(THGROUP_ATT_PITCHUP, MANCTRL_ANYMODE) > 0.0 ? 1 : 0;
    if (say) {
        char text[8];
        std::strcpy(text, frames <= 2 ? "hello" : frames <= 4 ? "" : "bye");
        oapiAnnotationSetText(note, text);
    }
    if (warp > 0.0 && frames <= 2)
        oapiSetTimeAcceleration(warp);
    if (cap > 0.0 && oapiGetTimeAcceleration() > cap)
        oapiSetTimeAcceleration(cap);
    if (spawn && frames == 1) {
        VESSELSTATUS2 status{};
        status.version = 2;
        GetStatusEx(&status);
        oapiCreateVesselEx((std::string(GetName()) + "-child").c_str(), "Test\\Probe", &status);
    }
    if (spawn && frames == 2)
        oapiDeleteVessel(GetHandle());
    if (frames == throwAt)
        throw std::runtime_error("probe failure");
}

int HostProbe::clbkConsumeBufferedKey(DWORD key, bool down, char *kstate) {
    if (!keys.empty())
        keys += ' ';
    char text[16];
    std::snprintf(text, sizeof text, "%c%u%s", down ? '+' : '-', static_cast<unsigned>(key),
                  KEYMOD_LCONTROL(kstate) ? "^" : "");
    keys += text;
    return bufferedAnswer;
}

int HostProbe::clbkConsumeDirectKey(char *kstate) {
    heldM += KEYDOWN(kstate, OAPI_KEY_M) ? 1 : 0;
    heldJ += KEYDOWN(kstate, OAPI_KEY_J) ? 1 : 0;
    heldCtrl += KEYDOWN(kstate, OAPI_KEY_LCONTROL) ? 1 : 0;
    return directAnswer;
}

VESSEL *HostProbeInit(OBJHANDLE h, int fmodel) { return new HostProbe(h, fmodel); }

void HostProbeExit(VESSEL *v) { delete static_cast<HostProbe *>(v); }
