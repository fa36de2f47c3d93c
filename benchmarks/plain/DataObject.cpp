#include <lvdata/core/DataObject.h>
#include <lvdata/xml/XMLDocument.h>

// Documents are read and printed from their nodes alone, through the public interface.

namespace lv {

DataObject::~DataObject() = default;

bool DataObject::parseXMLString(const std::string& text) {
    XMLDocument document;
    return document.parseXMLString(text) && parseXMLElement(document.rootElement());
}

std::string DataObject::toXMLString(bool declaration, bool pretty) const {
    XMLDocument document;
    appendXMLElement(document);
    return document.toXMLString(declaration, pretty);
}

XMLElement DataObject::appendRootXMLElement(const std::string& name, XMLNode& parent) const {
    return parent.type() == XMLNode::documentType ? XMLDocument(parent.get()).appendChild(name)
                                                  : XMLElement(parent.get()).appendChild(name);
}

// By value are the published signatures.
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
