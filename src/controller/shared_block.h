// The block of data that the fleet controller shares with every framework
// vessel: message 3 hands out its address, and the vessels read it directly.
#pragma once

#include <cstddef>
#include <cstdint>

struct SharedBlock {
    uint8_t reserved0[152] = {};
    // The wanted orbit of the fleet: insertion and target altitude above the
    // Earth's mean radius [km], inclination [deg]. A vessel takes them as its
    // orbit targets when it is set up.
    double insertionAltitude = 0.0;
    double targetAltitude = 0.0;
    double inclination = 0.0;
    uint8_t reserved1[256] = {};
    // A vessel in trouble may raise an alert (message 4) while alertsAllowed
    // is set and alertBusy clear; the controller sets alertBusy while it
    // follows one alert.
    uint8_t alertsAllowed = 0;
    uint8_t alertBusy = 0;
    uint8_t reserved2[78] = {};
};

static_assert(offsetof(SharedBlock, insertionAltitude) == 152);
static_assert(offsetof(SharedBlock, targetAltitude) == 160);
static_assert(offsetof(SharedBlock, inclination) == 168);
static_assert(offsetof(SharedBlock, alertsAllowed) == 432);
static_assert(offsetof(SharedBlock, alertBusy) == 433);
static_assert(sizeof(SharedBlock) == 512);
