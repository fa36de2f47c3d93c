#include <lvdata/core/DataObject.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/core/detail/record.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/PrintedDocument.h>

namespace lv {

DataObject::~DataObject() = default;

bool DataObject::parseXMLString(const std::string& text) {
    return static_cast<bool>(parseXML(text));
}

ParseResult DataObject::parseXML(const std::string& text) {
    return ParsedDocument(text).read(*this);
}

std::string DataObject::toXMLString(bool declaration, bool pretty) const {
    detail::PrintedDocument document(declaration, pretty);
    const detail::Writer writer(document.output(), writeHLGSystemGamma);
    detail::RecordParent parent(document.nodes(), *this, writer);
    appendXMLElement(parent);
    return document.text();
}

XMLElement DataObject::appendRootXMLElement(const std::string& name, XMLNode& parent) const {
    if (parent.type() == XMLNode::documentType) {
        return XMLDocument(parent.get()).appendChild(name);
    }
    return XMLElement(parent.get()).appendChild(name);
}

// Wrappers are handles: the published signatures take them by value.
// NOLINTBEGIN(performance-unnecessary-value-param)
XMLElement DataObject::appendVersionAttribute(XMLElement element) const {
    detail::Writer io(element);
    detail::visitVersion(io, *this);
    return element;
}

void DataObject::parseVersionAttribute(XMLElement element) {
    detail::Reader io(element);
    detail::visitVersion(io, *this);
}
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace lv
