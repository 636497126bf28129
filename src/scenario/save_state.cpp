// The vessel's scenario block, in the order that the loading reads it back.
// Most keys are written only where the vessel differs from what its
// configuration gives. A derived vessel's override calls this first and then
// adds its own lines.
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "frame/hullkit.h"

namespace {

constexpr double kDegrees = 57.29577951308232;

// Every text of a line is made in a work buffer of 1024 characters; a longer
// one is cut at its end.
std::string Format(const char *format, ...) {
    char buffer[1024];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    return buffer;
}

void WriteText(FILEHANDLE scn, const char *key, const std::string &text) {
    oapiWriteScenario_string(scn, key, text.substr(0, 1023).c_str());
}

bool Differs(const VECTOR3 &a, const VECTOR3 &b) { return a.x != b.x || a.y != b.y || a.z != b.z; }

} // namespace

void HULLKIT::clbkSaveState(FILEHANDLE scn) {
    // A carried vessel takes its position from its parent at loading.
    if (!Attached && !AwareWhileAttached) {
        if (Landed) {
            VESSELSTATUS2 status{};
            status.version = 2;
            GetStatusEx(&status);
            const bool earth = status.rbody && status.rbody == oapiGetGbodyByName("Earth");
            WriteText(scn, "STATUS", earth ? "Landed Earth" : "Landed Moon");
            WriteText(scn, "POS", Format("%lf %lf", status.surf_lng * kDegrees, status.surf_lat * kDegrees));
            oapiWriteScenario_float(scn, "HEADING", status.surf_hdg * kDegrees);
        } else {
            SaveDefaultState(scn);
        }
    }
    WriteFrameworkKeys(scn);
    ReportName();
    WriteListKeys(scn);
    WriteResourceAll(scn, nullptr);
    WriteResModsAll(scn);
    WriteMeshTextures(scn, nullptr);
    WriteChildLines(scn);
    if (Differs(ToParentPos, ConfigToParentPos) || Differs(ToParentDir, ConfigToParentDir) ||
        Differs(ToParentRot, ConfigToParentRot)) {
        const VECTOR3 &p = ToParentPos, &d = ToParentDir, &r = ToParentRot;
        WriteText(
            scn, "PARENT",
            Format("%lf %lf %lf   %lf %lf %lf   %lf %lf %lf", p.x, p.y, p.z, d.x, d.y, d.z, r.x, r.y, r.z));
    }
    if (!meshGroupVis.empty()) {
        std::string text;
        for (const MeshGroupVisEntry &entry : meshGroupVis) {
            if (!text.empty())
                text += ' ';
            text += Format("%s:%d:%d", entry.mesh.c_str(), entry.group, entry.hidden ? 1 : 0);
        }
        WriteText(scn, "MESHGROUPVIS", text);
    }
}

void HULLKIT::WriteFrameworkKeys(FILEHANDLE scn) {
    // Written when the focus differs from what the configuration gives.
    FocusEnabled = GetEnableFocus();
    if (FocusEnabled == NoFocus)
        oapiWriteScenario_int(scn, "FOCUS", FocusEnabled ? 1 : 0);
    if (!subtype.empty())
        WriteText(scn, "SUBTYPE", subtype);
    if (SpotlightFogProbability != 0.2)
        oapiWriteScenario_float(scn, "SPOTLIGHT_FOG_PROBABILITY", SpotlightFogProbability);
    // The first camera is the default and isn't written.
    if (!CurrentCamera.empty() && CameraTable.IndexOf(CurrentCamera) != 0)
        WriteText(scn, "CAMERA", CurrentCamera);
    if (AutopilotActive != HaveAutopilot || AutoSwitchFocus != CanAutoSwitchFocus)
        WriteText(scn, "HK_FLAGS", Format("%d %d", AutopilotActive ? 1 : 0, AutoSwitchFocus ? 1 : 0));
    const std::string orbit = Format("%lf %lf %lf", OrbitTargetRadius, OrbitInsertRadius, OrbitInclination);
    if (orbit != "0.000000 0.000000 0.000000" && SaveOrbit)
        WriteText(scn, "ORBIT", orbit);
    const double *b = BallisticTarget;
    const std::string ballistic = Format("%lf %lf %lf %lf %lf", b[0], b[1], b[2], b[3], b[4]);
    if (ballistic != "0.000000 0.000000 0.000000 0.000000 0.000000")
        WriteText(scn, "BALLISTIC", ballistic);
    const VECTOR3 &y = ImuYawRef, &p = ImuPitchRef;
    const std::string imu = Format("%lf %lf %lf  %lf %lf %lf", y.x, y.y, y.z, p.x, p.y, p.z);
    if (imu != "1.000000 0.000000 0.000000  0.000000 0.000000 1.000000")
        WriteText(scn, "IMU", imu);
    if (MissionTime >= 0.0)
        WriteText(scn, "MET", Format("%f %d", MissionTime, ShowMet ? 1 : 0));
    if (FireLevel > 0.0)
        WriteText(scn, "FIRE",
                  Format("%f %f %f %f %f", FireGrowTime, FireBurnTime, EngineFadeTime, FireLevel,
                         GetThrusterGroupLevel(THGROUP_MAIN)));
    if (Reliability != 100.0)
        oapiWriteScenario_float(scn, "RELIABILITY", Reliability);
    if (ReentryGlowEnabled && Temperature > 20.0)
        oapiWriteScenario_float(scn, "TEMPERATURE", Temperature);
    if (TouchdownPtsFromScenario) {
        VECTOR3 t[3];
        GetTouchdownPoints(t[0], t[1], t[2]);
        WriteText(scn, "MTDP",
                  Format("%f %f %f %f %f %f %f %f %f", t[0].x, t[0].y, t[0].z, t[1].x, t[1].y, t[1].z, t[2].x,
                         t[2].y, t[2].z));
    }
    const std::string failures = Format("%d %d %d %d %d", FailureIndex, FailureKind, PitchFailed ? 1 : 0,
                                        YawFailed ? 1 : 0, RollFailed ? 1 : 0);
    if (failures != "0 0 0 0 0")
        WriteText(scn, "FAILURES", failures);
}

void HULLKIT::WriteListKeys(FILEHANDLE scn) {
    const std::pair<const char *, std::string> lists[] = {
        {"UPDATERS", UpdatersText()},
        {"TIMERS_1T_ME", EngineTimersText()},
        {"TIMERS_1T", OneShotTimersText()},
        {"TIMERS_P1S", SecondEventsText()},
        {"TIMERS_P10M", MinuteEventsText()},
        {"TIMED_SEQUENCE", TimedSequenceText()},
        {"CONDITIONAL_SEQUENCE", ConditionalSequenceText()},
    };
    for (const auto &[key, text] : lists)
        if (!text.empty())
            WriteText(scn, key, text);
}
