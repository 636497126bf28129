// A world of the shipped fleet: Korvan stages built into the test program,
// Generic pieces and wrecks from their module, all from the build's root.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/body.h"
#include "core/line_file.h"
#include "core/world.h"
#include "korvan_world.h"

class EnvironmentTest : public ::testing::Test {
  protected:
    EnvironmentTest() { world->seed = 11; }

    static constexpr const char *kOrbit[] = {"STATUS Orbiting Earth", "RPOS 6571010.00 0.00 0.00",
                                             "RVEL 0.00 0.00 7788.48", "AROT 0.00 0.00 0.00",
                                             "VROT 0.00 0.00 0.00"};
    static constexpr const char *kGround[] = {"STATUS Landed Earth", "POS -80.6 28.5", "HEADING 90"};

    // A vessel of `className` ("Fleet\\Korvan", "Fleet\\Generic") from its
    // scenario block: `place` (kOrbit or kGround) and `extra`.
    HULLKIT &Load(const char *name, const char *className, std::span<const char *const> place,
                  const std::vector<std::string> &extra = {}) {
        std::vector<std::string> lines(place.begin(), place.end());
        lines.insert(lines.end(), extra.begin(), extra.end());
        hullhost::Vessel &v = world->ConstructVessel(name, className);
        world->LoadVesselState(v, lines);
        world->PostCreate(v);
        return *static_cast<HULLKIT *>(v.iface);
    }

    static hullhost::Vessel &Host(HULLKIT &k) { return *k.HostVessel(); }

    // Lifts a vessel standing on the ground `height` m and sets it falling at
    // `down` m/s and sliding at `across` m/s against the ground, free.
    void Drop(HULLKIT &k, double height, double down, double across) {
        hullhost::Vessel &v = Host(k);
        const VECTOR3 r = v.pos - v.ref->pos;
        const VECTOR3 up = r / length(r);
        const VECTOR3 side = crossp(up, VECTOR3{0, 1, 0}) / length(crossp(up, VECTOR3{0, 1, 0}));
        v.landed = false;
        v.pos += up * height;
        v.vel += up * -down + side * across;
        k.Landed = false;
        k.UpdateAwareness();
    }

    // A stage `x` m from the Earth's centre on its x axis, moving at `vz` m/s
    // along z.
    Korvan &Orbiting(const std::string &name, double x, double vz = 7788.48,
                     const std::vector<std::string> &extra = {}) {
        char rpos[64], rvel[64];
        std::snprintf(rpos, sizeof rpos, "RPOS %.2f 0.00 0.00", x);
        std::snprintf(rvel, sizeof rvel, "RVEL 0.00 0.00 %.2f", vz);
        std::vector<std::string> lines = {rvel, "AROT 0.00 0.00 0.00"};
        lines.insert(lines.end(), extra.begin(), extra.end());
        return static_cast<Korvan &>(Load(name.c_str(), "Fleet\\Korvan",
                                          std::vector<const char *>{"STATUS Orbiting Earth", rpos}, lines));
    }

    // Frames of `dt` seconds until `seconds` have passed, or `until` holds.
    void Run(double seconds, double dt = 0.02, const std::function<bool()> &until = {}) {
        const double end = world->simt + seconds - 1e-9;
        while (world->simt < end) {
            world->Frame(dt);
            if (until && until())
                return;
        }
    }

    static std::vector<std::string> Save(HULLKIT &k) {
        hullhost::LineFile file;
        k.clbkSaveState(file.Handle());
        return file.Written();
    }

    std::string Message(const HULLKIT &k) const {
        return reinterpret_cast<hullhost::Annotation *>(k.MessageNote)->text;
    }

    KorvanWorld world;
};
