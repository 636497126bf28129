// Text for XML output (the SVG files hullsim writes).
#pragma once

#include <string>

namespace hullhost {

// `text` with XML's special characters as entities, for element text and
// attribute values alike. Control characters have no place in XML, not even
// as entities: they become '?'.
std::string EscapeXml(const std::string &text);

} // namespace hullhost
