// The elements of an XML document that the host writes, read by libxml2,
// which holds a document to every rule of well-formedness.
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
// std::runtime_error saying where the document is not well-formed, such as
// a tag left open, a repeated attribute, a bare '<' or '&' or an unknown
// entity.
std::vector<XmlElement> ParseXml(const std::string &document);

} // namespace hosttest
