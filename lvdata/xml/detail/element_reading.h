#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tinyxml2 {
class XMLElement;
}  // namespace tinyxml2

namespace lv::detail {

/// What separates the values of an array in every document.
inline constexpr std::string_view arraySeparator = "|";

/// The line of the parsed text where the element begins, counted from 1.
[[nodiscard]] int lineOf(const tinyxml2::XMLElement* element);

/// Reads the text of an element. True when it was found, else `out` is untouched; the getters of `XMLElement` state for
/// each type what counts as found and how it is converted. Defined for std::string, int, unsigned int and bool.
template <class T>
[[nodiscard]] bool readText(const tinyxml2::XMLElement* element, T& out);

/// The same for an array. Defined for int and unsigned int, as all functions for arrays are.
template <class Number>
[[nodiscard]] bool readArray(const tinyxml2::XMLElement* element, std::vector<Number>& out, std::string_view separator);

/// The same for an attribute. Defined for std::string, int and unsigned int.
template <class T>
[[nodiscard]] bool readAttribute(const tinyxml2::XMLElement* element, const char* name, T& out);

}  // namespace lv::detail
