#include "xml_check.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <stdexcept>

namespace hosttest {

namespace {

std::string Text(const xmlChar *text) { return text ? reinterpret_cast<const char *>(text) : ""; }

// The elements under `node`, in document order, each with its own text.
void Collect(const xmlNode *node, std::vector<XmlElement> &elements) {
    for (; node; node = node->next) {
        if (node->type != XML_ELEMENT_NODE)
            continue;
        XmlElement e;
        e.name = Text(node->name);
        for (const xmlAttr *a = node->properties; a; a = a->next) {
            xmlChar *value = xmlNodeListGetString(node->doc, a->children, 1);
            e.attributes[Text(a->name)] = Text(value);
            xmlFree(value);
        }
        for (const xmlNode *child = node->children; child; child = child->next)
            if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE)
                e.text += Text(child->content);
        elements.push_back(std::move(e));
        Collect(node->children, elements);
    }
}

} // namespace

std::vector<XmlElement> ParseXml(const std::string &document) {
    std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> doc(
        xmlReadMemory(document.data(), static_cast<int>(document.size()), "document.xml", nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        xmlFreeDoc);
    if (!doc) {
        const xmlError *error = xmlGetLastError();
        throw std::runtime_error("not well-formed XML, line " + std::to_string(error ? error->line : 0) +
                                 ": " + (error && error->message ? error->message : "unknown error"));
    }
    std::vector<XmlElement> elements;
    Collect(xmlDocGetRootElement(doc.get()), elements);
    return elements;
}

} // namespace hosttest
