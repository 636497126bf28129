// The key script played frame by frame into the key state and the buffer.
#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "sim/key_player.h"
#include "sim/key_script.h"

using hullhost::KeyEvent;
using hullhost::sim::KeyPlayer;
using hullhost::sim::ParseKeyScript;

namespace {

// A buffered event: the frame that consumed it, the key and whether it went down.
using Event = std::tuple<int, DWORD, bool>;

// What frames of 0.02 s saw of `script`, run like the host: simt advances
// before the frame, which consumes the buffer and reads the key state. X is
// held throughout by someone else.
struct Played {
    std::vector<Event> events;
    std::map<int, std::vector<int>> framesDown; // by key
};

Played Play(const std::string &script, int frames) {
    constexpr double dt = 0.02;
    KeyPlayer player(ParseKeyScript(script));
    char keyState[256] = {};
    keyState[OAPI_KEY_X] = static_cast<char>(0x80);
    std::deque<KeyEvent> buffered;
    Played seen;
    double simt = 0.0;
    for (int i = 0; i < frames; ++i) {
        player.BeforeFrame(simt + dt, dt, keyState, buffered);
        simt += dt;
        for (auto &e : buffered)
            seen.events.emplace_back(i, e.key, e.down);
        buffered.clear();
        for (int k = 0; k < 256; ++k)
            if (KEYDOWN(keyState, k))
                seen.framesDown[k].push_back(i);
        player.AfterFrame(simt + dt, dt, keyState, buffered);
    }
    return seen;
}

std::vector<int> Range(int first, int last) {
    std::vector<int> frames;
    for (int i = first; i <= last; ++i)
        frames.push_back(i);
    return frames;
}

// A key is down in the frames from the first at or after its time to the
// last before its hold ends (one frame for a press or a hold shorter than a
// frame), with a down event in its first frame and an up event in the next.
// Modifiers are down with their key and make no events; a press in the
// middle of a hold of the same key doesn't lift it early; after 100000 frames
// the sum of steps falls 1.5e-9 short of 2000, and the press still comes in
// its frame.
TEST(KeyPlayerTest, KeysAreDownInTheFramesOfTheirTimes) {
    const int M = OAPI_KEY_M, J = OAPI_KEY_J, C = OAPI_KEY_C, PLUS = OAPI_KEY_ADD;
    const struct {
        const char *script;
        int frames;
        std::map<int, std::vector<int>> down;
        std::optional<std::vector<Event>> events;
    } cases[] = {
        {"0.1 M\n", 10, {{M, {4}}}, std::vector<Event>{{4, M, true}, {5, M, false}}},
        {"1 KP_PLUS 1\n",
         120,
         {{PLUS, Range(49, 98)}},
         std::vector<Event>{{49, PLUS, true}, {99, PLUS, false}}},
        {"0.02 Ctrl+Shift+C 0.04\n0.1 Alt+J\n",
         8,
         {{C, {0, 1}},
          {OAPI_KEY_LCONTROL, {0, 1}},
          {OAPI_KEY_LSHIFT, {0, 1}},
          {OAPI_KEY_LALT, {4}},
          {J, {4}}},
         std::vector<Event>{{0, C, true}, {2, C, false}, {4, J, true}, {5, J, false}}},
        {"0 J\n", 3, {{J, {0}}}, std::vector<Event>{{0, J, true}, {1, J, false}}},
        {"0.05 J\n", 5, {{J, {2}}}, std::nullopt}, // simt 0.06
        {"0 J 0.001\n", 5, {{J, {0}}}, std::vector<Event>{{0, J, true}, {1, J, false}}},
        {"0.02 J 0.1\n0.04 J\n", 10, {{J, Range(0, 4)}}, std::nullopt},
        {"2000 J\n", 100002, {{J, {99999}}}, std::nullopt},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.script);
        const Played seen = Play(c.script, c.frames);
        for (const auto &[key, frames] : c.down)
            EXPECT_EQ(seen.framesDown.contains(key) ? seen.framesDown.at(key) : std::vector<int>{}, frames)
                << key;
        EXPECT_EQ(seen.framesDown.at(OAPI_KEY_X), Range(0, c.frames - 1));
        if (c.events) {
            EXPECT_EQ(seen.events, *c.events);
        }
    }
}

} // namespace
