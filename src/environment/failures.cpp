// Failures: drawn once per load, armed on seconds of main-engine burn, and
// acted out when the burn reaches them.
#include <algorithm>
#include <cmath>

#include "frame/hullkit.h"
#include "frame/random_draw.h"

namespace {

constexpr double kRad = 0.017453292519943295;

} // namespace

void HULLKIT::DrawFailure() {
    const double r = RandomDraw(0.0, 100.0);
    if (Reliability > r || FailureList.empty())
        return;
    const auto count = static_cast<int32_t>(FailureList.size());
    FailureIndex = std::min(static_cast<int32_t>(std::floor(RandomDraw(0.0, count))), count - 1);
    FailureKind = FailureList[static_cast<size_t>(FailureIndex)].kind;
    AddEngineOneShot(FailureList[static_cast<size_t>(FailureIndex)].time, &HULLKIT::H_FAIL_ACT);
}

void HULLKIT::H_FAIL_ACT() {
    H_NO_TIME_ACCEL();
    PlayVesselSound(SoundTable.IndexOf("Alarm"), 0, 255);
    switch (FailureKind) {
    case 1:
        StartEngineFire();
        break;
    case 2:
        FailEngine();
        break;
    case 3:
        ShowMessage("Ignition failure detected!");
        break;
    case 4:
        FailControlChannel();
        break;
    default:
        break;
    }
    OnFailure();
}

void HULLKIT::FailEngine() {
    ReportEvent(5, "Engine failure detected!", 0.0, 0.0, nullptr);
    ShowMessage("Engine failure detected!");
    MainEngineFailed = true;
}

void HULLKIT::FailControlChannel() {
    // A channel that the scenario named keeps failing; otherwise one is drawn.
    if (!PitchFailed && !YawFailed && !RollFailed) {
        PitchFailed = 10.0 > RandomDraw(0.0, 30.0);
        if (!PitchFailed)
            YawFailed = RandomDraw(0.0, 30.0) > 20.0;
        RollFailed = !PitchFailed && !YawFailed;
    }
    const char *text;
    if (PitchFailed) {
        PitchStuckAngle = RandomDraw(0.0, 90.0) * kRad;
        text = "Pitch control channel failure detected!";
    } else if (YawFailed) {
        YawStuckAngle = RandomDraw(-180.0, 360.0) * kRad;
        text = "Yaw control channel failure detected!";
    } else {
        RollStuckAngle = RandomDraw(-180.0, 360.0) * kRad;
        text = "Roll control channel failure detected!";
    }
    ShowMessage(text);
    ReportEvent(5, text, 0.0, 0.0, nullptr);
}
