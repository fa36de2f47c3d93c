#pragma once

#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/number_writing.h>

#include <string>
#include <vector>

namespace tinyxml2 {
class XMLElement;
class XMLNode;
}  // namespace tinyxml2

namespace lv::detail {

/// The text of a value as documents hold it; the appenders of `XMLElement` state it for each type.
[[nodiscard]] inline std::string valueText(const char* value) = delete;  // it would be taken for a bool
[[nodiscard]] inline const std::string& valueText(const std::string& value) {
    return value;
}
[[nodiscard]] inline std::string valueText(bool value) {
    return value ? "true" : "false";
}
[[nodiscard]] inline std::string valueText(int value) {
    return decimalText(value);
}
[[nodiscard]] inline std::string valueText(unsigned int value) {
    return decimalText(value);
}
template <class Number>
[[nodiscard]] std::string valueText(const std::vector<Number>& values) {
    return joinNumbers(values, arraySeparator);
}

/// Appends a new element without a text node as the last child of an element or a document.
tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name);

/// Appends a text node, an empty one included, as the last child.
void appendText(tinyxml2::XMLElement& element, const std::string& text);

/// Creates or replaces an attribute.
void setAttribute(tinyxml2::XMLElement& element, const char* name, const std::string& value);

}  // namespace lv::detail
