#include "resources/field_values.h"

#include <cstdlib>
#include <iterator>

#include "config/text_ops.h"
#include "config/value_scan.h"

RecordLayout ParseRecordLayout(std::string headerValue) {
    RecordLayout layout;
    std::vector<std::string> words = SplitBy(headerValue, ' ');
    if (!words.empty())
        layout.prefix = words[0];
    if (words.size() > 1)
        layout.sectionName = words[1];
    for (std::size_t i = 2; i < words.size(); ++i) {
        // A word is a type letter followed by its key; an empty word declares nothing.
        if (!words[i].empty())
            layout.fields.push_back({words[i].substr(1), words[i][0]});
    }
    return layout;
}

namespace {

struct Keyword {
    const char *token;
    int32_t value;
};

// Animation types, beacon shapes, sound play modes and the two flag words,
// tried in this order.
constexpr Keyword kIntKeywords[] = {
    {"ROTATE", 1},
    {"TRANSLATE", 2},
    {"SCALE", 3},
    {"COMPACT", 0},
    {"DIFFUSE", 1},
    {"STAR", 2},
    {"BOTHVIEW_FADED_FAR", 4},
    {"DEFAULT", 0},
    {"INTERNAL_ONLY", 1},
    {"BOTHVIEW_FADED_CLOSE", 2},
    {"BOTHVIEW_FADED_MEDIUM", 3},
    {"EXTERNAL_ONLY_FADED_CLOSE", 6},
    {"EXTERNAL_ONLY_FADED_MEDIUM", 7},
    {"EXTERNAL_ONLY_FADED_FAR", 4},
    {"RADIO_SOUND", 8},
    {"true", 1},
    {"false", 0},
};

} // namespace

int32_t TokenInt(const std::string &token) {
    int value = 0;
    ScanInt(token, value);
    return value;
}

int32_t DecodeIntKeyword(const std::string &token) {
    for (const Keyword &k : kIntKeywords)
        if (token == k.token)
            return k.value;
    return TokenInt(token);
}

double TokenDouble(const std::string &token) {
    double value = 0.0;
    ScanDouble(token, value);
    return value;
}

const std::string &TokenAt(const std::vector<std::string> &tokens, std::size_t index) {
    static const std::string empty;
    return index < tokens.size() ? tokens[index] : empty;
}

VECTOR3 TokenVector(const std::vector<std::string> &tokens, std::size_t first) {
    return {TokenDouble(TokenAt(tokens, first)), TokenDouble(TokenAt(tokens, first + 1)),
            TokenDouble(TokenAt(tokens, first + 2))};
}

PARTICLESTREAMSPEC TokenParticleSpec(const std::vector<std::string> &tokens, std::size_t first) {
    PARTICLESTREAMSPEC spec{};
    // Only the tokens that the line holds are read: a short line keeps the
    // zeroed parameters for the rest.
    const std::size_t count = first < tokens.size() ? tokens.size() - first : 0;
    auto has = [count](std::size_t i) { return i < count; };
    auto at = [&tokens, first](std::size_t i) -> const std::string & { return tokens[first + i]; };

    if (has(0))
        spec.flags = static_cast<DWORD>(TokenInt(at(0)));
    double *const numbers[] = {&spec.srcsize,  &spec.srcrate,    &spec.v0,         &spec.srcspread,
                               &spec.lifetime, &spec.growthrate, &spec.atmslowdown};
    for (std::size_t i = 0; i < std::size(numbers); ++i)
        if (has(1 + i))
            *numbers[i] = TokenDouble(at(1 + i));
    if (has(8))
        spec.ltype = at(8) == "EMISSIVE" ? PARTICLESTREAMSPEC::EMISSIVE : PARTICLESTREAMSPEC::DIFFUSE;
    if (has(9)) {
        const std::string &map = at(9);
        spec.levelmap = map == "LVL_FLAT"   ? PARTICLESTREAMSPEC::LVL_FLAT
                        : map == "LVL_LIN"  ? PARTICLESTREAMSPEC::LVL_LIN
                        : map == "LVL_SQRT" ? PARTICLESTREAMSPEC::LVL_SQRT
                        : map == "LVL_PLIN" ? PARTICLESTREAMSPEC::LVL_PLIN
                                            : PARTICLESTREAMSPEC::LVL_PSQRT;
    }
    if (has(10))
        spec.lmin = TokenDouble(at(10));
    if (has(11))
        spec.lmax = TokenDouble(at(11));
    if (has(12)) {
        const std::string &map = at(12);
        spec.atmsmap = map == "ATM_FLAT"   ? PARTICLESTREAMSPEC::ATM_FLAT
                       : map == "ATM_PLIN" ? PARTICLESTREAMSPEC::ATM_PLIN
                                           : PARTICLESTREAMSPEC::ATM_PLOG;
    }
    if (has(13))
        spec.amin = TokenDouble(at(13));
    if (has(14))
        spec.amax = TokenDouble(at(14));
    spec.tex = nullptr;
    return spec;
}

bool IsIntegerToken(const std::string &token) {
    if (token.empty())
        return false;
    const char c = token[0];
    if (!(c >= '0' && c <= '9') && c != '-' && c != '+')
        return false;
    char *end = nullptr;
    std::strtol(token.c_str(), &end, 10);
    return end == token.c_str() + token.size();
}
