// Failures: pairs of a keyword and a burn time. Each known pair becomes one
// entry whose moment is drawn at once, between no burn and the time given.
#include <string_view>

#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"
#include "frame/random_draw.h"

namespace {

struct FailureKeyword {
    std::string_view word;
    int kind;
};

constexpr FailureKeyword kFailureKinds[] = {
    {"FIRE", 1}, {"ENGINE", 2}, {"IGNITION", 3}, {"CONTROL", 4}, {"OTHER", 5}};

int FailureKind(const std::string &word) {
    for (const FailureKeyword &k : kFailureKinds)
        if (word == k.word)
            return k.kind;
    return 0;
}

} // namespace

void HULLKIT::ReadFailureList(const std::string &value) {
    FailureList.clear();
    if (value.empty())
        return;
    const std::vector<std::string> tokens = SplitQuoted(value);
    for (std::size_t at = 0; at + 2 <= tokens.size(); at += 2) {
        const int kind = ::FailureKind(tokens[at]);
        if (kind == 0)
            continue;
        FailureEntry entry{tokens[at], kind, 0.0, 0.0};
        ScanDouble(tokens[at + 1], entry.limit);
        entry.time = RandomDraw(0.0, entry.limit);
        FailureList.push_back(entry);
    }
}
