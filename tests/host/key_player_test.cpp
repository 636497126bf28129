// The key script played frame by frame into the key state and the buffer.
#include <gtest/gtest.h>

#include "sim/key_player.h"
#include "sim/key_script.h"

using hullhost::KeyEvent;
using hullhost::sim::KeyPlayer;
using hullhost::sim::ParseKeyScript;

namespace {

// What one frame saw: the simulation time, the buffered events consumed at
// its start, and the keys down during it.
struct FrameSeen {
    double simt;
    std::vector<std::pair<DWORD, bool>> events;
    std::vector<int> down;
};

// Runs `frames` frames of `dt` like the host: simt advances before the
// frame, which consumes the buffer and reads the key state.
std::vector<FrameSeen> Play(const std::string &script, int frames, double dt = 0.02) {
    KeyPlayer player(ParseKeyScript(script));
    char keyState[256] = {};
    std::deque<KeyEvent> buffered;
    std::vector<FrameSeen> seen;
    double simt = 0.0;
    for (int i = 0; i < frames; ++i) {
        player.BeforeFrame(simt + dt, dt, keyState, buffered);
        simt += dt;
        FrameSeen f{simt, {}, {}};
        for (auto &e : buffered)
            f.events.push_back({e.key, e.down});
        buffered.clear();
        for (int k = 0; k < 256; ++k)
            if (KEYDOWN(keyState, k))
                f.down.push_back(k);
        seen.push_back(f);
        player.AfterFrame(simt + dt, dt, keyState, buffered);
    }
    return seen;
}

// The indices of the frames in which `key` was down.
std::vector<int> FramesDown(const std::vector<FrameSeen> &seen, int key) {
    std::vector<int> frames;
    for (size_t i = 0; i < seen.size(); ++i)
        if (std::find(seen[i].down.begin(), seen[i].down.end(), key) != seen[i].down.end())
            frames.push_back(static_cast<int>(i));
    return frames;
}

TEST(KeyPlayerTest, PressIsOneFrameWithDownAndUpEvents) {
    // The fifth frame (index 4) is the first at simt 0.1.
    auto seen = Play("0.1 M\n", 10);
    EXPECT_EQ(FramesDown(seen, OAPI_KEY_M), std::vector<int>{4});
    EXPECT_EQ(seen[4].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_M, true}}));
    EXPECT_EQ(seen[5].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_M, false}}));
    for (int i : {0, 1, 2, 3, 6, 7, 8, 9})
        EXPECT_TRUE(seen[i].events.empty()) << i;
}

TEST(KeyPlayerTest, HoldKeepsTheKeyDownForItsLength) {
    auto seen = Play("1 KP_PLUS 1\n", 120);
    auto frames = FramesDown(seen, OAPI_KEY_ADD);
    ASSERT_EQ(frames.size(), 50u);
    EXPECT_EQ(frames.front(), 49); // simt 1.00
    EXPECT_EQ(frames.back(), 98);  // simt 1.98
    EXPECT_EQ(seen[49].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_ADD, true}}));
    EXPECT_EQ(seen[99].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_ADD, false}}));
    int events = 0;
    for (auto &f : seen)
        events += static_cast<int>(f.events.size());
    EXPECT_EQ(events, 2);
}

TEST(KeyPlayerTest, ModifiersAreDownWithTheKeyButMakeNoEvents) {
    auto seen = Play("0.02 Ctrl+Shift+C 0.04\n0.1 Alt+J\n", 8);
    EXPECT_EQ(FramesDown(seen, OAPI_KEY_C), (std::vector<int>{0, 1}));
    EXPECT_EQ(FramesDown(seen, OAPI_KEY_LCONTROL), (std::vector<int>{0, 1}));
    EXPECT_EQ(FramesDown(seen, OAPI_KEY_LSHIFT), (std::vector<int>{0, 1}));
    EXPECT_EQ(FramesDown(seen, OAPI_KEY_LALT), std::vector<int>{4});
    EXPECT_EQ(seen[0].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_C, true}}));
    EXPECT_EQ(seen[2].events, (std::vector<std::pair<DWORD, bool>>{{OAPI_KEY_C, false}}));
}

TEST(KeyPlayerTest, LeavesOtherKeysAlone) {
    KeyPlayer player(ParseKeyScript("0 M\n"));
    char keyState[256] = {};
    keyState[OAPI_KEY_X] = static_cast<char>(0x80);
    std::deque<KeyEvent> buffered;
    player.BeforeFrame(0.02, 0.02, keyState, buffered);
    player.AfterFrame(0.04, 0.02, keyState, buffered);
    EXPECT_TRUE(KEYDOWN(keyState, OAPI_KEY_X));
    EXPECT_FALSE(KEYDOWN(keyState, OAPI_KEY_M));
    EXPECT_FALSE(player.Busy());
}

// A press comes in the first frame at or after its time; a hold shorter than
// a frame lasts one frame; a press in the middle of a hold of the same key
// doesn't lift it early; after 100000 frames the sum of steps falls 1.5e-9
// short of 2000, and the press still comes in its frame.
TEST(KeyPlayerTest, KeysAreDownInTheFramesOfTheirTimes) {
    const struct {
        const char *script;
        int frames;
        std::vector<int> down;
    } cases[] = {
        {"0 J\n", 3, {0}},
        {"0.05 J\n", 5, {2}}, // simt 0.06
        {"0 J 0.001\n", 5, {0}},
        {"0.02 J 0.1\n0.04 J\n", 10, {0, 1, 2, 3, 4}},
        {"2000 J\n", 100002, {99999}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(FramesDown(Play(c.script, c.frames), OAPI_KEY_J), c.down) << c.script;
}

} // namespace
