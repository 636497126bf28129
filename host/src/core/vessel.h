// The host's side of a vessel: its real state, and what its module set up.
#pragma once

#include <bitset>
#include <memory>
#include <string>
#include <vector>

#include "VesselAPI.h"
#include "object.h"
#include "vessel_parts.h"

namespace hullhost {

class Body;
class Module;
class Visual;

struct AppliedForce {
    VECTOR3 force; // vessel frame [N]
    VECTOR3 pos;   // vessel frame [m]
};

class Vessel : public Object {
  public:
    Vessel(std::string name, std::string className, const Module *module);
    ~Vessel() override;

    const std::string &ClassName() const { return className_; }
    const Module *GetModule() const { return module_; }

    // The module's object; null until ovcInit returned.
    VESSEL *iface = nullptr;

    // --- Dynamic state -----------------------------------------------------
    // pos and vel (global) come from Object.
    MATRIX3 rot{1, 0, 0, 0, 1, 0, 0, 0, 1}; // vessel frame to global frame
    VECTOR3 omega{0, 0, 0};                 // angular velocity, vessel frame [rad/s]
    Body *ref = nullptr;                    // the body the state is told against
    bool landed = false;
    double surfLng = 0.0, surfLat = 0.0, surfHdg = 0.0; // while landed [rad]
    Vessel *parent = nullptr;                           // set while hung on a parent's attachment
    // The vessel in whose callback this one was made at run time, and that
    // callback's serial number (World::CallSerial); null and 0 for a vessel
    // of the scenario.
    const Vessel *creator = nullptr;
    unsigned long creatorCall = 0;
    // The free state as a scenario or the module last placed it, told against
    // `body`. While the vessel's global state is still the one it gave, the
    // vessel reports these values rather than ones computed back from the
    // global frame, so that a scenario loads and saves to the same text.
    struct Placement {
        const Body *body = nullptr;
        VECTOR3 rpos, rvel, arot; // as given
        VECTOR3 pos, vel;         // the global state they gave
        MATRIX3 rot;
        bool valid = false;
    } placed;

    // --- Body set-up -------------------------------------------------------
    double emptyMass = 0.0;
    double size = 1.0;
    VECTOR3 pmi{1, 1, 1};
    VECTOR3 crossSections{1, 1, 1};
    VECTOR3 rotDrag{0, 0, 0};
    double cw[4] = {0.2, 0.5, 1.5, 1.5}; // z+, z-, x, y
    double pitchMomentScale = 0.0, bankMomentScale = 0.0;
    double frictionLng = 0.1, frictionLat = 0.5;
    std::vector<TOUCHDOWNVTX> touchdown;
    double visLimit = 0.0, spotLimit = -1.0;
    bool focusEnabled = true;
    ReentryTexture reentry;
    CameraSetup camera;
    VECTOR3 cgShift{0, 0, 0}; // accumulated ShiftCG

    // --- What the module set up --------------------------------------------
    std::vector<std::unique_ptr<Propellant>> propellants;
    std::vector<std::unique_ptr<Thruster>> thrusters;
    std::vector<std::unique_ptr<ThrusterGroup>> groups;
    std::vector<Exhaust> exhausts;
    std::vector<std::unique_ptr<ParticleStream>> streams;
    std::vector<MeshSlot> meshes;
    std::vector<std::unique_ptr<Attachment>> attachments; // both kinds, in order of creation
    std::vector<std::unique_ptr<Dock>> docks;
    std::vector<std::unique_ptr<Animation>> animations;
    std::vector<std::unique_ptr<Airfoil>> airfoils;
    std::vector<BEACONLIGHTSPEC *> beacons; // the module's records, kept by pointer
    std::vector<std::unique_ptr<SpotLight>> lights;
    std::unique_ptr<Visual> visual; // see visual/visual_lifecycle.h

    // Forces added by the module for the current frame.
    std::vector<AppliedForce> forces;

    // Navigation modes the host runs for this vessel (bit n for mode n).
    std::bitset<8> navmodes;
    int attitudeMode = RCS_ROT;

    // --- Derived -----------------------------------------------------------
    double Mass() const;
    double PropellantMass() const;
    ThrusterGroup *GroupOfType(THGROUP_TYPE type) const;
    void SetGroupLevel(ThrusterGroup &group, double level);
    double GroupLevel(const ThrusterGroup &group) const;
    Attachment *ParentPoint() const; // the to-parent point that holds this vessel

  private:
    std::string className_;
    const Module *module_;
};

inline Vessel *ToVessel(OBJHANDLE h) { return static_cast<Vessel *>(reinterpret_cast<Object *>(h)); }

} // namespace hullhost
