#include <lvdata/core/DataObject.h>
#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/element_writing.h>

namespace lv {

DataObject::~DataObject() = default;

XMLElement DataObject::appendRootXMLElement(const std::string& name, XMLNode& parent) const {
    return XMLElement(detail::appendChild(parent.get(), name.c_str()));
}

// By value are the published signatures.
// NOLINTBEGIN(performance-unnecessary-value-param)
XMLElement DataObject::appendVersionAttribute(XMLElement element) const {
    detail::setAttribute(element.get(), "Version", version.value);
    detail::setAttribute(element.get(), "MinorVersion", minorVersion.value);
    return element;
}

void DataObject::parseVersionAttribute(XMLElement element) {
    version.hasValue = detail::readAttribute(element.get(), "Version", version.value);
    minorVersion.hasValue = detail::readAttribute(element.get(), "MinorVersion", minorVersion.value);
}
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace lv
