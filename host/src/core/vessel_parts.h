// What a vessel sets up in the host: propellant, thrusters, meshes,
// attachments and the rest. Each lives at a fixed address for the vessel's
// life, since its handle is a pointer to it.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "OrbiterAPI.h"

namespace hullhost {

class Vessel;
class Mesh;
struct Animation;

struct Propellant {
    double maxMass = 0.0;
    double mass = 0.0;
    double efficiency = 1.0;
    double flowRate = 0.0; // [kg/s] over the last step
    PROPELLANT_HANDLE Handle() { return reinterpret_cast<PROPELLANT_HANDLE>(this); }
};

struct Thruster {
    VECTOR3 pos{0, 0, 0};
    VECTOR3 dir{0, 0, 1};
    double maxThrust0 = 0.0; // vacuum thrust [N]
    Propellant *propellant = nullptr;
    double isp0 = 0.0;   // vacuum specific impulse [m/s]
    double ispRef = 0.0; // specific impulse at pRef, 0 for none
    double pRef = 101.4e3;
    double level = 0.0; // 0..1; groups set the levels of their thrusters
    // The host's own firing from the user's keys, for the current frame only;
    // it adds to the level that the vessel set.
    double manualLevel = 0.0;
    double Output() const { return std::min(1.0, level + manualLevel); }
    THRUSTER_HANDLE Handle() { return reinterpret_cast<THRUSTER_HANDLE>(this); }
};

struct ThrusterGroup {
    THGROUP_TYPE type = THGROUP_USER;
    std::vector<Thruster *> thrusters;
    THGROUP_HANDLE Handle() { return reinterpret_cast<THGROUP_HANDLE>(this); }
};

struct Exhaust {
    Thruster *thruster = nullptr;
    double lscale = 0.0, wscale = 0.0, lofs = 0.0;
    bool ownPosDir = false;
    VECTOR3 pos{0, 0, 0}, dir{0, 0, 0};
    SURFHANDLE tex = nullptr;
};

struct ParticleStream {
    PARTICLESTREAMSPEC spec{};
    Thruster *thruster = nullptr; // exhaust streams follow their thruster's level
    VECTOR3 pos{0, 0, 0}, dir{0, 0, 0};
    bool ownPos = false;
    const double *level = nullptr; // the module's level member, kept by pointer
    PSTREAM_HANDLE Handle() { return reinterpret_cast<PSTREAM_HANDLE>(this); }
};

struct MeshSlot {
    Mesh *templ = nullptr; // the global template, or null for an empty slot
    std::string file;
    VECTOR3 offset{0, 0, 0};
    WORD visibility = MESHVIS_EXTERNAL;
    bool deleted = false;
};

struct Attachment {
    Vessel *owner = nullptr;
    bool toParent = false;
    VECTOR3 pos{0, 0, 0}, dir{0, 0, 1}, rot{0, 1, 0};
    std::string id;
    bool loose = false;
    Vessel *attached = nullptr;        // for a parent point: the child hung on it
    Attachment *counterpart = nullptr; // the point on the other vessel
    ATTACHMENTHANDLE Handle() { return reinterpret_cast<ATTACHMENTHANDLE>(this); }
};

struct Dock {
    VECTOR3 pos{0, 0, 0}, dir{0, 0, 1}, rot{0, 1, 0};
    DOCKHANDLE Handle() { return reinterpret_cast<DOCKHANDLE>(this); }
};

struct AnimationComponent {
    double state0 = 0.0, state1 = 1.0;
    MGROUP_TRANSFORM *transform = nullptr; // kept by pointer, owned by the module
    AnimationComponent *parent = nullptr;
    std::vector<AnimationComponent *> children;
    Animation *animation = nullptr; // the animation whose state drives it
    ANIMATIONCOMPONENT_HANDLE Handle() { return reinterpret_cast<ANIMATIONCOMPONENT_HANDLE>(this); }
};

struct Animation {
    double defaultState = 0.0;
    double state = 0.0;
    std::vector<std::unique_ptr<AnimationComponent>> components;
    bool deleted = false;
};

struct Airfoil {
    AIRFOIL_ORIENTATION align = LIFT_VERTICAL;
    VECTOR3 ref{0, 0, 0};
    AirfoilCoeffFuncEx coeff = nullptr;
    void *context = nullptr;
    double chord = 0.0, area = 0.0, aspect = 0.0;
    AIRFOILHANDLE Handle() { return reinterpret_cast<AIRFOILHANDLE>(this); }
};

struct ReentryTexture {
    SURFHANDLE tex = nullptr;
    double pressureLimit = 6e7;
    double lscale = 1.0, wscale = 1.0;
};

struct CameraSetup {
    VECTOR3 offset{0, 0, 0};
    VECTOR3 direction{0, 0, 1};
    double tilt = 0.0;
    double rangeLeft = 0.0, rangeRight = 0.0, rangeUp = 0.0, rangeDown = 0.0;
};

} // namespace hullhost
