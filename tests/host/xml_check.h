// A strict reader of small XML documents for tests of what the host writes:
// elements, attributes, text, comments and the XML declaration.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace hosttest {

struct XmlElement {
    std::string name;
    std::map<std::string, std::string> attributes; // values with entities replaced
    std::string text;                              // the element's own text, entities replaced
};

// The elements of a document in the order they start. Throws
// std::runtime_error saying where the document is not well-formed: a tag
// left open or closed out of turn, an unquoted or repeated attribute, a bare
// '<' or '&', an unknown entity, or anything but one root element.
std::vector<XmlElement> ParseXml(const std::string &document);

} // namespace hosttest
