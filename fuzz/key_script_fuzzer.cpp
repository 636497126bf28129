// The key-script reader, and the player that presses what it read for a few
// frames.
#include <cstddef>
#include <cstdint>
#include <deque>

#include "fuzz_root.h"
#include "sim/key_player.h"
#include "sim/key_script.h"
#include "sim/usage_error.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    std::vector<hullhost::sim::KeyAction> actions;
    try {
        actions = hullhost::sim::ParseKeyScript(fuzzing::AsText(data, size), "fuzz");
    } catch (const hullhost::sim::UsageError &) {
        return 0;
    }
    hullhost::sim::KeyPlayer player(std::move(actions));
    char keyState[256] = {};
    std::deque<hullhost::KeyEvent> buffered;
    const double step = 0.5;
    for (int frame = 0; frame < 20; ++frame) {
        player.BeforeFrame(frame * step, step, keyState, buffered);
        player.AfterFrame((frame + 1) * step, step, keyState, buffered);
        buffered.clear();
    }
    return 0;
}
