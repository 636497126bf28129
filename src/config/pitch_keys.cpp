// The pitch profile. The controller vessel names the plain key that holds it;
// the value is read in groups of a kind word, an end time and two values, and
// ends at the first group that isn't complete.
#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

namespace {

int32_t PitchKind(const std::string &word) {
    if (word == "CONST")
        return PITCH_CONST;
    if (word == "LIN")
        return PITCH_LIN;
    if (word == "PERI")
        return PITCH_PERI;
    return PITCH_UNKNOWN;
}

} // namespace

void HULLKIT::ReadPitchProfile() {
    PitchProfile.clear();
    std::string key;
    LookUpText("Pitch", key, true);
    if (key.empty())
        return;
    const std::string &value = Cfg(key);
    if (value.empty())
        return;
    const std::vector<std::string> tokens = SplitQuoted(value);
    double start = 0.0;
    for (std::size_t at = 0; at + 4 <= tokens.size(); at += 4) {
        PitchProfileEntry entry;
        entry.kind = PitchKind(tokens[at]);
        entry.start = start;
        ScanDouble(tokens[at + 1], entry.end);
        ScanDouble(tokens[at + 2], entry.firstValue);
        ScanDouble(tokens[at + 3], entry.secondValue);
        PitchProfile.push_back(entry);
        start = entry.end;
    }
}
