// A Korvan stage built into the test program, loaded from the shipped fleet's
// configuration in the build's root, in a 200 km orbit.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/line_file.h"
#include "core/world.h"
#include "korvan_world.h"

class StageTest : public ::testing::Test {
  protected:
    // A stage in orbit with the scenario lines `extra`; flown by hand unless
    // `autopilot`.
    Korvan &Load(const std::vector<std::string> &extra = {}, bool autopilot = false,
                 const char *name = "Korvan-1") {
        std::vector<std::string> lines = {
            "STATUS Orbiting Earth",  "RPOS 6571010.00 0.00 0.00",
            "RVEL 0.00 0.00 7788.48", "AROT 0.00 0.00 0.00",
            "VROT 0.00 0.00 0.00",    autopilot ? "HK_FLAGS 1 0" : "HK_FLAGS 0 0"};
        lines.insert(lines.end(), extra.begin(), extra.end());
        hullhost::Vessel &v = world->ConstructVessel(name, "Fleet\\Korvan");
        world->LoadVesselState(v, lines);
        world->PostCreate(v);
        return *static_cast<Korvan *>(v.iface);
    }

    // A payload vessel of the shipped fleet in the same orbit, complete, as
    // when a scenario lists the payloads before their carrier.
    void AddPayload(const std::string &name) {
        hullhost::Vessel &v = world->ConstructVessel(name, "Fleet\\Generic");
        world->LoadVesselState(
            v, {"STATUS Orbiting Earth", "RPOS 6571010 0 0", "RVEL 0 0 7788.48", "SUBTYPE Payload"});
        world->PostCreate(v);
    }

    // Past the idle first frame, the M key: the program starts.
    void Engage(Korvan &k) {
        Run(1.0);
        k.ToggleControlMode();
    }

    static std::vector<std::string> Saved(Korvan &k) {
        hullhost::LineFile file;
        k.clbkSaveState(file.Handle());
        return file.Written();
    }

    // Frames of `dt` seconds until `seconds` have passed.
    void Run(double seconds, double dt = 1.0) {
        const double end = world->simt + seconds - 1e-9;
        while (world->simt < end)
            world->Frame(dt);
    }

    // The text on the stage's message line.
    std::string Message(const Korvan &k) const {
        return reinterpret_cast<hullhost::Annotation *>(k.MessageNote)->text;
    }

    double GroupLevel(Korvan &k, const char *group) {
        const THRUSTERGROUP_REC *g = k.ThrusterGroupTable.Find(group);
        return g && g->handle ? k.GetThrusterGroupLevel(g->handle) : -1.0;
    }

    KorvanWorld world;
};
