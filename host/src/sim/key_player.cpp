#include "key_player.h"

#include <algorithm>

namespace hullhost::sim {

namespace {

// The part of a frame's length within which a time counts as reached.
constexpr double kTolerance = 1e-6;

} // namespace

KeyPlayer::KeyPlayer(std::vector<KeyAction> actions) {
    for (auto &a : actions)
        entries_.push_back({std::move(a)});
}

void KeyPlayer::BeforeFrame(double frameSimt, double step, char *keyState, std::deque<KeyEvent> &buffered) {
    for (auto &e : entries_) {
        if (e.phase == Phase::Waiting && frameSimt >= e.action.time - kTolerance * step) {
            e.phase = Phase::Down;
            buffered.push_back({e.action.key, true});
        }
    }
    UpdateKeyState(keyState);
}

void KeyPlayer::AfterFrame(double nextFrameSimt, double step, char *keyState,
                           std::deque<KeyEvent> &buffered) {
    for (auto &e : entries_) {
        if (e.phase != Phase::Down)
            continue;
        bool over = !e.action.hold || nextFrameSimt >= e.action.time + *e.action.hold - kTolerance * step;
        if (over) {
            e.phase = Phase::Done;
            buffered.push_back({e.action.key, false});
        }
    }
    UpdateKeyState(keyState);
}

void KeyPlayer::UpdateKeyState(char *keyState) {
    std::vector<DWORD> down;
    for (const auto &e : entries_) {
        if (e.phase != Phase::Down)
            continue;
        down.push_back(e.action.key);
        down.insert(down.end(), e.action.modifiers.begin(), e.action.modifiers.end());
    }
    for (DWORD k : held_)
        if (std::find(down.begin(), down.end(), k) == down.end())
            keyState[k & 0xFF] = static_cast<char>(keyState[k & 0xFF] & 0x7F);
    for (DWORD k : down)
        keyState[k & 0xFF] = static_cast<char>(keyState[k & 0xFF] | 0x80);
    held_ = std::move(down);
}

} // namespace hullhost::sim
