// Plays a key script into the host's keyboard state, frame by frame.
//
// A single press starts in the first frame whose simulation time reaches its
// time: a buffered key-down, and the key (with its modifiers) down in the key
// state for that one frame; after the frame the key is up again and a
// buffered key-up follows. A hold keeps the key down for every frame from its
// time until its time plus its length, at least one frame, with a buffered
// key-down at the start and a key-up at the end. Modifiers show in the key
// state only; they make no buffered events of their own.
#pragma once

#include <deque>
#include <vector>

#include "core/world.h"
#include "key_script.h"

namespace hullhost::sim {

class KeyPlayer {
  public:
    explicit KeyPlayer(std::vector<KeyAction> actions);

    // Before a frame whose simulation time will be `frameSimt`: starts the
    // actions that are due and sets the keys that are down. `step` is the
    // frame's length in simulation time; times within a millionth of it
    // count as reached, so that rounding in the sum of steps costs no frame.
    void BeforeFrame(double frameSimt, double step, char *keyState, std::deque<KeyEvent> &buffered);
    // After a frame, with the simulation time that the next frame will have:
    // ends the actions that are over and lifts their keys.
    void AfterFrame(double nextFrameSimt, double step, char *keyState, std::deque<KeyEvent> &buffered);

  private:
    enum class Phase { Waiting, Down, Done };
    struct Entry {
        KeyAction action;
        Phase phase = Phase::Waiting;
    };
    void UpdateKeyState(char *keyState);

    std::vector<Entry> entries_;
    std::vector<DWORD> held_; // the keys this player holds down now
};

} // namespace hullhost::sim
