#include <lvdata/core/DataObject.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/own_document.h>

namespace lv {

DataObject::~DataObject() = default;

bool DataObject::parseXMLString(const std::string& text) {
    XMLDocument document;
    if (!document.parseXMLString(text)) {
        return false;
    }
    const detail::SourceForRecord source(document.get(), text, this);
    return parseXMLElement(document.rootElement());
}

std::string DataObject::toXMLString(bool declaration, bool pretty) const {
    XMLDocument document;
    if (!pretty) {
        detail::expectCompactText(document.get(), this);
    }
    appendXMLElement(document);
    return document.toXMLString(declaration, pretty);
}

XMLElement DataObject::appendRootXMLElement(const std::string& name, XMLNode& parent) const {
    if (parent.type() == XMLNode::documentType) {
        return XMLDocument(parent.get()).appendChild(name);
    }
    return XMLElement(parent.get()).appendChild(name);
}

// Wrappers are handles: handing them over by value is how the published signatures take them.
// NOLINTBEGIN(performance-unnecessary-value-param)
XMLElement DataObject::appendVersionAttribute(XMLElement element) const {
    element.setAttributeUInt("Version", version.value);
    element.setAttributeUInt("MinorVersion", minorVersion.value);
    return element;
}

void DataObject::parseVersionAttribute(XMLElement element) {
    element.getAttributeUInt("Version", version);
    element.getAttributeUInt("MinorVersion", minorVersion);
}
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace lv
