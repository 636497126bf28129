// Writing a whole file so that readers see either the old file or the new
// one, never a part: the text goes to a temporary file in the same folder,
// which then replaces the target in one rename. A link to a file is followed;
// what isn't a regular file (a pipe, a terminal, /dev/null) is written
// straight into, never replaced.
#pragma once

#include <string>
#include <string_view>

namespace hullhost {

// Throws std::runtime_error naming the file when it can't be written; no
// temporary file is left behind then.
void WriteFileAtomically(const std::string &path, std::string_view text);

} // namespace hullhost
