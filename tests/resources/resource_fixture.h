// A probe vessel whose record layouts and records come from files written by
// the test.
#pragma once

#include <string>
#include <vector>

#include "../frame/probe_fixture.h"
#include "core/world.h"

class ResourceTest : public ProbeTest {
  protected:
    // The propulsion headers in the order that the default records need.
    static constexpr const char *kPropulsionHeaders =
        "TANK_REC = Tank Tanks SName DFuel\n"
        "THRUSTER_REC = Thruster Thrusters SName VPos VDir "
        "DThrust STank DIspMax DIspGr STex DTexL DTexW DTexLofs "
        "SPs VPsPos\n"
        "THRUSTERGROUP_REC = ThGroup ThrusterGroups SName "
        "SFirstThId IThCount\n"
        "CAMERA_REC = Camera Cameras SName VPos VDir IDisabled\n"
        "PARTICLE_REC = Particle Particles SName PPSS STex\n";

    void Common(const std::string &text) { env.Write("Config/Vessels/Test/HullKit.cfg", text); }
    void Class(const std::string &text) {
        env.Write("Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\n" + text);
    }
    void Variant(const std::string &name, const std::string &text) {
        env.Write("Config/Vessels/Test/Probe/" + name + ".cfg", text);
    }

    ProbeVessel &Load(std::vector<std::string> lines = {}) {
        lines.insert(lines.begin(), "STATUS Orbiting Earth");
        return LoadProbe("P1", lines);
    }
    hullhost::Vessel &Host() { return *env.world->FindVessel("P1"); }
};
