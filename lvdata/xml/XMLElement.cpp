#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/detail/ChildFinder.h>
#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/element_writing.h>
#include <lvdata/xml/detail/handle.h>

#include <tinyxml2.h>

namespace lv {
namespace {

/// The element itself where `found`, else an invalid one.
XMLElement foundOrInvalid(const XMLElement& element, bool found) {
    return found ? element : XMLElement();
}

template <class T>
XMLElement readText(const XMLElement& element, T& out) {
    return foundOrInvalid(element, detail::readText(detail::toElement(element), out));
}

template <class Number>
XMLElement readArray(const XMLElement& element, std::vector<Number>& out, std::string_view separator) {
    return foundOrInvalid(element, detail::readArray(detail::toElement(element), out, separator));
}

template <class T>
XMLElement readAttribute(const XMLElement& element, const std::string& name, T& out) {
    return foundOrInvalid(element, detail::readAttribute(detail::toElement(element), name.c_str(), out));
}

/// Sets the flag to whether the getter found its element, and hands that on.
template <class T>
XMLElement flagged(property<T>& out, const XMLElement& found) {
    out.hasValue = found.isValid();
    return found;
}

XMLElement withAttribute(const XMLElement& element, const std::string& name, const std::string& value) {
    if (tinyxml2::XMLElement* const node = detail::toElement(element)) {
        detail::setAttribute(*node, name.c_str(), value);
    }
    return element;
}

XMLElement appendWithText(const XMLElement& parent, const std::string& name, const std::string& text) {
    const XMLElement child = parent.appendChild(name);
    if (tinyxml2::XMLElement* const node = detail::toElement(child)) {
        detail::appendText(*node, text);
    }
    return child;
}

/// Appends a property: its value when set, else an empty element or nothing.
template <class T>
XMLElement appendOptional(const XMLElement& parent, const std::string& name, const property<T>& value,
                          bool writeEmpty) {
    if (value.hasValue) {
        return appendWithText(parent, name, detail::valueText(value.value));
    }
    return writeEmpty ? parent.appendChild(name) : XMLElement();
}

template <class Number>
XMLElement appendOptional(const XMLElement& parent, const std::string& name,
                          const property<std::vector<Number>>& values, const std::string& separator) {
    return values.hasValue ? appendWithText(parent, name, detail::joinNumbers(values.value, separator)) : XMLElement();
}

}  // namespace

std::string XMLElement::elementName() const {
    const tinyxml2::XMLElement* const element = detail::toElement(*this);
    return element == nullptr ? std::string() : std::string(element->Value());
}

XMLElement XMLElement::getElement(const std::string& name) const {
    return detail::toHandle(detail::findChild(detail::toElement(*this), name.c_str()));
}

std::vector<XMLElement> XMLElement::getElements(const std::string& name) const {
    std::vector<XMLElement> elements;
    for (tinyxml2::XMLElement* const child : detail::findChildren(detail::toElement(*this), name.c_str())) {
        elements.emplace_back(detail::toHandle(child));
    }
    return elements;
}

XMLElement XMLElement::getStringValue(std::string& out) const {
    return readText(*this, out);
}

XMLElement XMLElement::getIntValue(int& out) const {
    return readText(*this, out);
}

XMLElement XMLElement::getUIntValue(unsigned int& out) const {
    return readText(*this, out);
}

XMLElement XMLElement::getBoolValue(bool& out) const {
    return readText(*this, out);
}

XMLElement XMLElement::getIntArray(std::vector<int>& out, const std::string& separator) const {
    return readArray(*this, out, separator);
}

XMLElement XMLElement::getUIntArray(std::vector<unsigned int>& out, const std::string& separator) const {
    return readArray(*this, out, separator);
}

XMLElement XMLElement::getStringValue(const std::string& name, std::string& out) const {
    return getElement(name).getStringValue(out);
}

XMLElement XMLElement::getIntValue(const std::string& name, int& out) const {
    return getElement(name).getIntValue(out);
}

XMLElement XMLElement::getUIntValue(const std::string& name, unsigned int& out) const {
    return getElement(name).getUIntValue(out);
}

XMLElement XMLElement::getBoolValue(const std::string& name, bool& out) const {
    return getElement(name).getBoolValue(out);
}

XMLElement XMLElement::getIntArray(const std::string& name, std::vector<int>& out,
                                   const std::string& /*separator*/) const {
    return readArray(getElement(name), out, detail::arraySeparator);
}

XMLElement XMLElement::getUIntArray(const std::string& name, std::vector<unsigned int>& out,
                                    const std::string& /*separator*/) const {
    return readArray(getElement(name), out, detail::arraySeparator);
}

XMLElement XMLElement::getStringValue(property<std::string>& out) const {
    return flagged(out, getStringValue(out.value));
}

XMLElement XMLElement::getIntValue(property<int>& out) const {
    return flagged(out, getIntValue(out.value));
}

XMLElement XMLElement::getUIntValue(property<unsigned int>& out) const {
    return flagged(out, getUIntValue(out.value));
}

XMLElement XMLElement::getBoolValue(property<bool>& out) const {
    return flagged(out, getBoolValue(out.value));
}

XMLElement XMLElement::getIntArray(property<std::vector<int>>& out, const std::string& /*separator*/) const {
    return flagged(out, readArray(*this, out.value, detail::arraySeparator));
}

XMLElement XMLElement::getUIntArray(property<std::vector<unsigned int>>& out, const std::string& /*separator*/) const {
    return flagged(out, readArray(*this, out.value, detail::arraySeparator));
}

XMLElement XMLElement::getStringValue(const std::string& name, property<std::string>& out) const {
    return getElement(name).getStringValue(out);
}

XMLElement XMLElement::getIntValue(const std::string& name, property<int>& out) const {
    return getElement(name).getIntValue(out);
}

XMLElement XMLElement::getUIntValue(const std::string& name, property<unsigned int>& out) const {
    return getElement(name).getUIntValue(out);
}

XMLElement XMLElement::getBoolValue(const std::string& name, property<bool>& out) const {
    return getElement(name).getBoolValue(out);
}

XMLElement XMLElement::getIntArray(const std::string& name, property<std::vector<int>>& out,
                                   const std::string& separator) const {
    return getElement(name).getIntArray(out, separator);
}

XMLElement XMLElement::getUIntArray(const std::string& name, property<std::vector<unsigned int>>& out,
                                    const std::string& separator) const {
    return getElement(name).getUIntArray(out, separator);
}

XMLElement XMLElement::getAttributeString(const std::string& name, std::string& out) const {
    return readAttribute(*this, name, out);
}

XMLElement XMLElement::getAttributeInt(const std::string& name, int& out) const {
    return readAttribute(*this, name, out);
}

XMLElement XMLElement::getAttributeUInt(const std::string& name, unsigned int& out) const {
    return readAttribute(*this, name, out);
}

XMLElement XMLElement::getAttributeString(const std::string& name, property<std::string>& out) const {
    return flagged(out, getAttributeString(name, out.value));
}

XMLElement XMLElement::getAttributeInt(const std::string& name, property<int>& out) const {
    return flagged(out, getAttributeInt(name, out.value));
}

XMLElement XMLElement::getAttributeUInt(const std::string& name, property<unsigned int>& out) const {
    return flagged(out, getAttributeUInt(name, out.value));
}

XMLElement XMLElement::setAttributeString(const std::string& name, const std::string& value) const {
    return withAttribute(*this, name, value);
}

XMLElement XMLElement::setAttributeInt(const std::string& name, int value) const {
    return withAttribute(*this, name, detail::valueText(value));
}

XMLElement XMLElement::setAttributeUInt(const std::string& name, unsigned int value) const {
    return withAttribute(*this, name, detail::valueText(value));
}

XMLElement XMLElement::appendChild(const std::string& name) const {
    tinyxml2::XMLElement* const element = detail::toElement(*this);
    return element == nullptr ? nullptr : detail::toHandle(detail::appendElement(*element, name.c_str()));
}

XMLElement XMLElement::appendChildString(const std::string& name, const std::string& text) const {
    return appendWithText(*this, name, text);
}

XMLElement XMLElement::appendChildInt(const std::string& name, int value) const {
    return appendWithText(*this, name, detail::valueText(value));
}

XMLElement XMLElement::appendChildUInt(const std::string& name, unsigned int value) const {
    return appendWithText(*this, name, detail::valueText(value));
}

XMLElement XMLElement::appendChildBool(const std::string& name, bool value) const {
    return appendWithText(*this, name, detail::valueText(value));
}

XMLElement XMLElement::appendChildIntArray(const std::string& name, const std::vector<int>& values,
                                           const std::string& separator) const {
    return appendWithText(*this, name, detail::joinNumbers(values, separator));
}

XMLElement XMLElement::appendChildUIntArray(const std::string& name, const std::vector<unsigned int>& values,
                                            const std::string& separator) const {
    return appendWithText(*this, name, detail::joinNumbers(values, separator));
}

XMLElement XMLElement::appendChildString(const std::string& name, const property<std::string>& text,
                                         bool writeEmpty) const {
    return appendOptional(*this, name, text, writeEmpty);
}

XMLElement XMLElement::appendChildInt(const std::string& name, const property<int>& value, bool writeEmpty) const {
    return appendOptional(*this, name, value, writeEmpty);
}

XMLElement XMLElement::appendChildUInt(const std::string& name, const property<unsigned int>& value,
                                       bool writeEmpty) const {
    return appendOptional(*this, name, value, writeEmpty);
}

XMLElement XMLElement::appendChildBool(const std::string& name, const property<bool>& value, bool writeEmpty) const {
    return appendOptional(*this, name, value, writeEmpty);
}

XMLElement XMLElement::appendChildIntArray(const std::string& name, const property<std::vector<int>>& values,
                                           const std::string& separator) const {
    return appendOptional(*this, name, values, separator);
}

XMLElement XMLElement::appendChildUIntArray(const std::string& name, const property<std::vector<unsigned int>>& values,
                                            const std::string& separator) const {
    return appendOptional(*this, name, values, separator);
}

}  // namespace lv
