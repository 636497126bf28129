// Scenario keys: a line begins with its key, compared without case over the
// key's length; the value starts behind the key and one blank.
#pragma once

#include <cstring>
#include <string>
#include <strings.h>

inline bool BeginsWithKey(const char *line, const char *key) {
    return strncasecmp(line, key, std::strlen(key)) == 0;
}

inline std::string TextBehindKey(const char *line, const char *key) {
    const char *value = line + std::strlen(key);
    return *value == ' ' ? value + 1 : value;
}
