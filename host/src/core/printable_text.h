// Text from outside (a scenario, a key script, a command line) shown in an
// error line. Such text may hold anything, terminal escape sequences
// included, so it is never printed raw.
#pragma once

#include <string>
#include <string_view>

namespace hullhost {

// `text` with every control character, and every byte that isn't part of a
// well-formed UTF-8 character, written as \xNN. Printable UTF-8 passes as
// it is, so a name in any script reads as typed. Backslashes are left alone:
// applied twice, it changes nothing more.
std::string PrintableText(std::string_view text);

// `text` between single quotes, printable as above, and cut after `limit`
// characters with "..." so that a long line of input stays a readable line.
std::string Quoted(std::string_view text, size_t limit = 60);

} // namespace hullhost
