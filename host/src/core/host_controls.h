// What the host itself does with the keys that the focus vessel left to it:
// the keypad's main throttle and attitude thrusters, as users of the
// simulator know them.
//
// Main throttle, while held: keypad + raises the level of the main thruster
// group by kThrottleRate per second of real time and keypad - lowers it; at 0
// keypad - goes on to raise the retro group (if the vessel has one), and
// keypad + first brings the retro group back to 0. Ctrl+keypad + sets the main
// group to full thrust (and the retro group to 0), keypad * cuts both to 0.
// Keypad * wins over the others, keypad + over keypad -.
//
// Attitude thrusters: the keypad keys of ManualControlLevel fire the groups of
// the vessel's RCS mode at full level while they are held, on top of the
// levels the vessel set itself, for the current frame only. A press of
// keypad / switches the mode between rotation and translation (from off: to
// rotation), Ctrl+keypad / switches it off and on (to rotation).
//
// Navigation modes: a press of a mode's key, without modifiers, switches the
// mode on through the vessel's ActivateNavmode, or off when it is on.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {

struct NavmodeKey {
    DWORD key;
    int mode;
};

inline constexpr NavmodeKey kNavmodeKeys[] = {
    {OAPI_KEY_NUMPAD5, NAVMODE_KILLROT},   {OAPI_KEY_L, NAVMODE_HLEVEL},
    {OAPI_KEY_LBRACKET, NAVMODE_PROGRADE}, {OAPI_KEY_RBRACKET, NAVMODE_RETROGRADE},
    {OAPI_KEY_SEMICOLON, NAVMODE_NORMAL},  {OAPI_KEY_APOSTROPHE, NAVMODE_ANTINORMAL},
    {OAPI_KEY_A, NAVMODE_HOLDALT}};

class Vessel;
class World;

// Main group level per second of real time while keypad + or - is held.
constexpr double kThrottleRate = 0.2;

// Acts on `keys`, the keys left to the host in this frame; `before` holds
// those of the frame before, so that a press is told from a hold. True when
// attitude thrusters fire in this frame.
bool ActOnHostKeys(World &world, Vessel &v, const char *keys, const char *before, double realDt);

// Ends the attitude thruster firing of the frame, once the flight model has
// used it.
void EndManualFiring(World &world);

} // namespace hullhost
