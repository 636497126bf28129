// Probes loaded from a class file that holds given plain keys, and the host's
// side of them.
#pragma once

#include <string>
#include <vector>

#include "core/vessel.h"
#include "probe_fixture.h"

class KeysTest : public ProbeTest {
  protected:
    // A probe whose class file holds `keys` beside its module line.
    ProbeVessel &LoadWithKeys(const std::string &keys,
                              const std::vector<std::string> &lines = {"STATUS Orbiting Earth"}) {
        env.Write("Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\n" + keys);
        return LoadProbe("P" + std::to_string(++loaded_), lines);
    }

    static hullhost::Vessel &Host(ProbeVessel &p) { return *hullhost::ToVessel(p.GetHandle()); }

  private:
    int loaded_ = 0;
};

MATCHER_P3(IsVector, x, y, z, "") { return arg.x == x && arg.y == y && arg.z == z; }
