#include "config/value_scan.h"

#include <climits>
#include <cstdlib>
#include <string>

namespace {

// A NUL-terminated work copy of the token, as long as a number may be.
std::string WorkCopy(std::string_view token) { return std::string(token.substr(0, kMaxNumberLength)); }

} // namespace

bool ScanDouble(std::string_view token, double &target) {
    const std::string work = WorkCopy(token);
    char *end = nullptr;
    const double value = std::strtod(work.c_str(), &end);
    if (end == work.c_str()) {
        return false;
    }
    target = value;
    return true;
}

bool ScanInt(std::string_view token, int &target) {
    const std::string work = WorkCopy(token);
    char *end = nullptr;
    const long value = std::strtol(work.c_str(), &end, 10);
    if (end == work.c_str()) {
        return false;
    }
    if (value > INT_MAX) {
        target = INT_MAX;
    } else if (value < INT_MIN) {
        target = INT_MIN;
    } else {
        target = static_cast<int>(value);
    }
    return true;
}
