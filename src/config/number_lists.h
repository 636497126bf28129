// Lists of numbers in a configuration value: positional lists, whose token
// positions give the meaning, and leading runs of numbers as a "%lf %lf ..."
// scan reads them.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "OrbiterAPI.h"

// The tokens of a value (split by SplitQuoted), each scanned as a number. A
// position is reached when the value has a token there; a token that is no
// number reads as 0.0 and doesn't count as given.
class PositionalNumbers {
  public:
    explicit PositionalNumbers(std::string_view value);

    [[nodiscard]] std::size_t Count() const { return values_.size(); }
    // Whether positions first .. first + count - 1 are all reached and numbers:
    // the test before a call that takes those numbers.
    [[nodiscard]] bool Has(std::size_t first, std::size_t count = 1) const;
    [[nodiscard]] double operator[](std::size_t i) const { return i < values_.size() ? values_[i] : 0.0; }
    [[nodiscard]] VECTOR3 Vector(std::size_t first) const;

  private:
    std::vector<double> values_;
    std::vector<bool> given_;
};

// Reads numbers from the start of `text` into `out`, in order, until the text
// ends, a piece of it is no number, or `out` is full. Returns how many were
// read; the elements behind them keep their values.
std::size_t ScanNumbers(std::string_view text, std::span<double> out);
