// An ascent attitude reference for derived vehicles: the nose's pitch and
// yaw against the two IMU reference vectors, the roll of the up axis, and the
// pitch the profile asks for at the mission time. A failed channel reads
// where it is stuck.
#include <algorithm>
#include <cmath>

#include "frame/hullkit.h"

namespace {

constexpr double kRad = 0.017453292519943295;
constexpr double kHalfPi = 1.5707963267948966;
// The fixed Earth radius of the profile's altitudes [m].
constexpr double kEarthRadius = 6371000.0;

// pi/2 less the angle between a body axis, turned to the global frame, and
// a reference vector.
double Elevation(const VESSEL &vessel, const VECTOR3 &bodyAxis, const VECTOR3 &reference) {
    VECTOR3 global{0, 0, 0};
    vessel.GlobalRot(bodyAxis, global);
    return kHalfPi - std::acos(std::clamp(dotp(global, reference), -1.0, 1.0));
}

double LinearValue(const PitchProfileEntry &e, double time) {
    if (!(e.end > e.start))
        return e.firstValue * kRad;
    const double f = (time - e.start) / (e.end - e.start);
    return (e.firstValue + (e.secondValue - e.firstValue) * f) * kRad;
}

} // namespace

double HULLKIT::PitchAngle() {
    if (PitchFailed)
        return PitchStuckAngle;
    return Elevation(*this, _V(0, 0, 1), ImuPitchRef);
}

double HULLKIT::YawAngle() {
    const VECTOR3 axis = YawFailed ? _V(std::sin(YawStuckAngle), 0, std::cos(YawStuckAngle)) : _V(0, 0, 1);
    return -Elevation(*this, axis, ImuYawRef);
}

double HULLKIT::RollAngle() {
    const VECTOR3 axis = RollFailed ? _V(std::sin(RollStuckAngle), 1, std::cos(RollStuckAngle)) : _V(0, 1, 0);
    return -Elevation(*this, axis, ImuYawRef);
}

double HULLKIT::AttitudeStep() {
    if (PitchFailed)
        return PitchStuckAngle;
    for (const PitchProfileEntry &e : PitchProfile) {
        if (e.kind == PITCH_PERI) {
            // Altitude capture: pitch up just enough to null the climb at the
            // insertion altitude, then hold the flight path level.
            GetHorizonAirspeedVector(HorizonVel);
            const double vy = HorizonVel.y, speed = length(HorizonVel);
            FlightPathAngle = speed > 0.0 ? std::asin(std::clamp(vy / speed, -1.0, 1.0)) : 0.0;
            const double alt = GetAltitude();
            const double target = OrbitInsertRadius - kEarthRadius;
            const double needed = vy * vy / (2.0 * (alt - target - 5000.0));
            VECTOR3 weight{0, 0, 0}, thrust{0, 0, 0};
            GetWeightVector(weight);
            GetThrustVector(thrust);
            double s = (needed * GetMass() + length(weight)) / length(thrust);
            s = std::isnan(s) ? 0.0 : std::clamp(s, -1.0, 1.0);
            double c = std::asin(s);
            if (alt > target && c > 0.0)
                c = -c;
            if (c < 0.0)
                PeriLatched = true;
            if (!PeriLatched)
                return std::clamp(c, 0.0, std::max(0.0, e.firstValue * kRad));
            const double limit = std::fabs(e.secondValue * kRad);
            return std::clamp(FlightPathAngle * -30.0, -limit, limit);
        }
        if ((e.kind == PITCH_CONST || e.kind == PITCH_LIN) && (e.end >= MissionTime || e.end == -1.0))
            return e.kind == PITCH_CONST ? e.firstValue * kRad : LinearValue(e, MissionTime);
    }
    return 0.0;
}

void HULLKIT::AttitudeControlStep() {
    AttError.x = AttitudeStep() - AttError.x;
    AttErrorDeg.x = AttError.x * 57.29577951308232;
}
