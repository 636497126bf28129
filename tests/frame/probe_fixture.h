// A test world with the probe class.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "probe_vessel.h"
#include "test_world.h"

class ProbeTest : public ::testing::Test {
  protected:
    ProbeTest() { env.AddClass("Probe", ProbeInit, ProbeExit); }

    ProbeVessel &LoadProbe(const std::string &name,
                           const std::vector<std::string> &lines = {"STATUS Orbiting Earth"}) {
        return testing_support::Object<ProbeVessel>(env.Load(name, "Test\\Probe", lines));
    }

    static VesselCall Call(void (ProbeVessel::*f)()) { return static_cast<VesselCall>(f); }
    // Parks a probe: none of its watches run any more.
    static void Park(ProbeVessel &p) {
        p.Landed = true;
        p.UpdateAwareness();
    }

    testing_support::TestWorld env;
};
