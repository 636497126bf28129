// Vessels of the shipped fleet, loaded through their modules from the build's
// root as the host loads them, in a 200 km orbit.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "core/world.h"
#include "frame/hullkit.h"
#include "root_world.h"

class FleetTest : public ::testing::Test {
  protected:
    // A vessel of `className`, with the given subtype when not empty.
    HULLKIT &Load(const char *name, const char *className, const std::string &subtype = "") {
        hullhost::Vessel &v = world_->ConstructVessel(name, className);
        std::vector<std::string> lines = {"STATUS Orbiting Earth", "RPOS 6571010.00 0.00 0.00",
                                          "RVEL 0.00 0.00 7788.48", "AROT 0.00 0.00 0.00",
                                          "VROT 0.00 0.00 0.00"};
        if (!subtype.empty())
            lines.push_back("SUBTYPE " + subtype);
        world_->LoadVesselState(v, lines);
        world_->PostCreate(v);
        vessel = &v;
        stage = static_cast<HULLKIT *>(v.iface);
        return *stage;
    }
    HULLKIT &LoadKorvan() { return Load("Korvan-1", "Fleet\\Korvan"); }

    RootWorld world_;
    hullhost::Vessel *vessel = nullptr;
    HULLKIT *stage = nullptr;
};
