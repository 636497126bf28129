// The class Generic: the elements a vessel throws off, which its variant
// files describe, and the wrecks of a crash, which have no variant. A wreck
// takes its look from the crashed vessel (message 18, the mesh file) and may
// go up in an explosion (message 17). The crash routine sets its mass, size
// and cross sections.
#pragma once

#include <string>

#include "frame/hullkit.h"

class GenericPiece : public HULLKIT {
  public:
    GenericPiece(OBJHANDLE hVessel, int flightModel) : HULLKIT(hVessel, flightModel) {}

    void clbkSaveState(FILEHANDLE scn) override;
    void ParseScenarioLine(char *line, void *status) override;
    void clbkConfigLoaded() override;
    intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) override;

    // The explosion's particle burst dies down.
    void G_EXPLOSION_END();

    // The mesh file of the wreck's look, in place of the configured mesh
    // Body; empty for a piece that keeps its configuration's look.
    std::string Look;
    // Level of the explosion stream: 1 while it bursts, then 0.
    double ExplosionLevel = 0.0;
    // A wreck's share of the crashed vessel, which its configuration leaves
    // open: empty mass [kg], size [m], cross sections [m^2]. Saved with the
    // wreck and applied when it is loaded; `shareLoaded` tells that it was.
    double shareMass = 0.0, shareSize = 0.0;
    VECTOR3 shareCs{0, 0, 0};
    bool shareLoaded = false;
};
