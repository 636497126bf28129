// Carrier: the last stage of a launcher that has brought a Korvan to its
// parking orbit. It carries the stage on the child record `Stage` (scenario
// key STAGE) and releases it with the separation record `sepStage`, by a
// step of either kind of sequence:
//   RELEASE_STAGE       timed: releases the stage at the step's time, e.g.
//                       the configuration key `Release = 10 RELEASE_STAGE`
//                       with the scenario line `TIMED_SEQUENCE Release, 0`
//   RELEASE_WHEN_STILL  conditional: releases the stage once all three of
//                       the carrier's angular rates are below 0.1 deg/s, e.g.
//                       `ReleaseStill = RELEASE_WHEN_STILL` with the line
//                       `CONDITIONAL_SEQUENCE ReleaseStill`
// Everything else (mass, look, thrusters, points) is the framework's
// configuration. A release without a stage on the point does nothing.
// While it carries a stage the carrier holds the time acceleration at 10x at
// most, so that the release, and the stage's drops that follow it, happen
// on their time even when the user asks for more.
#pragma once

#include "frame/hullkit.h"

class Carrier : public HULLKIT {
  public:
    Carrier(OBJHANDLE hVessel, int flightModel);

    void ApplyConfiguration() override;
    TimedActionTable TimedActions() const override;
    ConditionalActionTable ConditionalActions() const override;

    // Sends the stage off its point under `sepStage`; the focus follows it,
    // and the time acceleration is free again.
    void ReleaseStage();
    // The watch of RELEASE_WHEN_STILL: raises `Still` once the carrier has
    // stopped turning. Saved under its name while it runs.
    void C_STILL_WATCH();

    // True from the first watch that found every angular rate below 0.1 deg/s.
    bool Still = false;
};
