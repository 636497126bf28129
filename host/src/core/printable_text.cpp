#include "printable_text.h"

#include <cstdio>

namespace hullhost {

namespace {

// Length of the well-formed UTF-8 character at the start of `s` that isn't
// a control character, or 0.
size_t PrintableCharLength(std::string_view s) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(s[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return lead >= 0x20 && lead != 0x7f ? 1 : 0;
    size_t length = 0;
    char32_t code = 0;
    if (lead >= 0xc2 && lead <= 0xdf) {
        length = 2;
        code = lead & 0x1f;
    } else if (lead >= 0xe0 && lead <= 0xef) {
        length = 3;
        code = lead & 0x0f;
    } else if (lead >= 0xf0 && lead <= 0xf4) {
        length = 4;
        code = lead & 0x07;
    } else {
        return 0;
    }
    if (s.size() < length)
        return 0;
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80)
            return 0;
        code = code << 6 | (byte(i) & 0x3f);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xd800 && code <= 0xdfff;
    const bool c1Control = code >= 0x80 && code <= 0x9f;
    if (overlong || surrogate || c1Control || code > 0x10ffff)
        return 0;
    return length;
}

// Appends the printable form of `text`, at most `limit` characters of it;
// false if something was left over.
bool AppendPrintable(std::string &out, std::string_view text, size_t limit) {
    for (size_t count = 0; !text.empty(); ++count) {
        if (count == limit)
            return false;
        const size_t n = PrintableCharLength(text);
        if (n > 0) {
            out.append(text.substr(0, n));
            text.remove_prefix(n);
            continue;
        }
        char escaped[5];
        std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(text[0]));
        out += escaped;
        text.remove_prefix(1);
    }
    return true;
}

} // namespace

std::string PrintableText(std::string_view text) {
    std::string out;
    AppendPrintable(out, text, text.size());
    return out;
}

std::string Quoted(std::string_view text, size_t limit) {
    std::string out = "'";
    if (!AppendPrintable(out, text, limit))
        out += "...";
    return out + "'";
}

} // namespace hullhost
