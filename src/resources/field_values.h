// Conversions of record-line tokens into field values, shared by all
// resource tables. Every operation reads only the tokens that exist.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "OrbiterAPI.h"

// One field of a record layout: its key, without the type letter, and the letter.
struct FieldDef {
    std::string name;
    char type;
};

// The layout read from a header value "<prefix> <section> <letter><key> ...".
struct RecordLayout {
    std::string prefix;
    std::string sectionName;
    std::vector<FieldDef> fields;
};

// Splits a header value into its layout. Missing words leave the parts empty.
RecordLayout ParseRecordLayout(std::string headerValue);

// The keyword table of integer fields; any other token is read as "%d" would,
// and a token without a number reads 0.
int32_t DecodeIntKeyword(const std::string &token);

// An integer as atoi reads it, clamped to the range of int: 0 without a number.
int32_t TokenInt(const std::string &token);

// A double as atof reads it: 0.0 when the token holds no number.
double TokenDouble(const std::string &token);

// The token at `index`, or the empty text past the end of the line.
const std::string &TokenAt(const std::vector<std::string> &tokens, std::size_t index);

// Three consecutive tokens from `first` as a vector; missing ones read 0.
VECTOR3 TokenVector(const std::vector<std::string> &tokens, std::size_t first);

// The fifteen tokens of a particle stream from `first`, in the order flags,
// srcsize, srcrate, v0, srcspread, lifetime, growthrate, atmslowdown, ltype,
// levelmap, lmin, lmax, atmsmap, amin, amax. Fields beyond the end of the line
// keep the zeroed parameters; `tex` stays null.
PARTICLESTREAMSPEC TokenParticleSpec(const std::vector<std::string> &tokens, std::size_t first);

// Not empty, begins with a digit, '-' or '+', and is a base-10 integer as a whole.
bool IsIntegerToken(const std::string &token);

// The list of integers from `first` to the end of the line, each read as atoi
// would. `label` is asked for every token that isn't an integer and gives its value.
template <class LabelResolver>
std::vector<int32_t> TokenIntList(const std::vector<std::string> &tokens, std::size_t first,
                                  bool resolveLabels, LabelResolver &&label) {
    std::vector<int32_t> list;
    for (std::size_t i = first; i < tokens.size(); ++i) {
        if (resolveLabels && !IsIntegerToken(tokens[i]))
            list.push_back(label(tokens[i]));
        else
            list.push_back(TokenInt(tokens[i]));
    }
    return list;
}
