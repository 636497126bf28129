// A root world with the Korvan stage built into the test program, registered
// under its class name as its module would register it.
#pragma once

#include "core/program_module.h"
#include "root_world.h"
#include "stage/korvan.h"

class KorvanWorld : public RootWorld {
  public:
    KorvanWorld() {
        hullhost::SetProgramModulePath("Modules\\Fleet\\Korvan.dll");
        (*this)->modules.RegisterBuiltin(
            "Fleet\\Korvan", [](OBJHANDLE h, int fm) -> VESSEL * { return new Korvan(h, fm); },
            [](VESSEL *v) { delete static_cast<Korvan *>(v); });
    }
};
