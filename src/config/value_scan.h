// Conversion of configuration tokens to typed values. A token that can't be
// converted leaves the target as it was, so the default stays in force.
#pragma once

#include <cstddef>
#include <string_view>

// Numbers are read from a copy of at most this many characters of their token.
inline constexpr std::size_t kMaxNumberLength = 255;

// Reads a decimal floating-point number as "%lf" would (leading blanks skipped,
// trailing text ignored). Returns whether a number was read.
bool ScanDouble(std::string_view token, double &target);

// Reads a decimal integer as "%d" would; a value beyond the range of int is
// clamped to it. Returns whether a number was read.
bool ScanInt(std::string_view token, int &target);

// A flag is true only for the exact text "true".
inline bool IsTrue(std::string_view value) { return value == "true"; }
