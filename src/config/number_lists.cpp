#include "config/number_lists.h"

#include <cstdlib>
#include <string>

#include "config/text_ops.h"
#include "config/value_scan.h"

PositionalNumbers::PositionalNumbers(std::string_view value) {
    const std::vector<std::string> tokens = SplitQuoted(value);
    values_.assign(tokens.size(), 0.0);
    given_.assign(tokens.size(), false);
    for (std::size_t i = 0; i < tokens.size(); ++i)
        given_[i] = ScanDouble(tokens[i], values_[i]);
}

bool PositionalNumbers::Has(std::size_t first, std::size_t count) const {
    if (first + count > given_.size())
        return false;
    for (std::size_t i = first; i < first + count; ++i)
        if (!given_[i])
            return false;
    return true;
}

VECTOR3 PositionalNumbers::Vector(std::size_t first) const {
    return _V((*this)[first], (*this)[first + 1], (*this)[first + 2]);
}

std::size_t ScanNumbers(std::string_view text, std::span<double> out) {
    const std::string work(text);
    const char *at = work.c_str();
    std::size_t read = 0;
    while (read < out.size()) {
        char *end = nullptr;
        const double value = std::strtod(at, &end);
        if (end == at)
            break;
        out[read++] = value;
        at = end;
    }
    return read;
}
