// The tuning of the attitude loop: up to 18 numbers, six triples. The first
// five triples are written in degrees and stored in radians.
#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

void HULLKIT::ReadAttitudeControls(const std::string &key, AttitudeControlBlock &target) {
    target = AttitudeControlBlock{};
    const std::string &value = Cfg(key);
    if (!value.empty()) {
        const std::vector<std::string> tokens = SplitQuoted(value);
        for (std::size_t i = 0; i < tokens.size() && i < 18; ++i)
            ScanDouble(tokens[i], target.At(static_cast<int>(i)));
    }
    for (int i = 0; i < 15; ++i)
        target.At(i) *= 0.017453292519943295;
}
