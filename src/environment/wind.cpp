// The wind: a force of fixed direction in the horizon frame, at a strength
// drawn once per run; with a controller all vessels share its draw.
#include <cmath>
#include <cstdio>

#include "frame/hullkit.h"
#include "frame/random_draw.h"

void HULLKIT::SetupWind() {
    WindStrength = 0.0;
    WindForce = 0.0;
    WindPoint = {0, 0, 0};
    if (ControllerHullkit && ControllerHullkit != this) {
        WindGusty = ControllerHullkit->WindGusty;
        WindDir = ControllerHullkit->WindDir;
        WindStrength = ControllerHullkit->WindStrength;
    } else {
        WindGusty = std::trunc(RandomDraw(0.0, 1000.0)) > 500.0;
        const double angle = RandomDraw(0.0, 360.0) * 0.017453292519943295;
        WindDir = {std::cos(angle), 0.0, std::sin(angle)};
        WindStrength = RandomDraw(0.0, 1.0);
    }
    // "force x y z": the force [N] and its point of attack in the vessel's frame.
    const std::string &wind = Cfg("Wind");
    double force = 0.0;
    VECTOR3 point{0, 0, 0};
    if (!wind.empty() &&
        std::sscanf(wind.c_str(), "%lf %lf %lf %lf", &force, &point.x, &point.y, &point.z) >= 1) {
        WindForce = force * WindStrength;
        WindPoint = point;
    }
}

void HULLKIT::P_WINDS() {
    const double gust = WindGusty ? RandomDraw(0.5, 1.0) : 1.0;
    VECTOR3 direction;
    HorizonInvRot(WindDir, direction);
    AddForce(direction * (WindForce * gust), WindPoint);
}
