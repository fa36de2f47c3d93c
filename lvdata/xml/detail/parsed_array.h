#pragma once

#include <vector>

namespace tinyxml2 {
class XMLElement;
}  // namespace tinyxml2

namespace lv::detail {

/// Whether this version of the XML library keeps texts where they were parsed. Else `readParsedArray` takes longer.
[[nodiscard]] bool keepsTextsWhereParsed();

/// Reads an array, separated as in every document, of an element whose document is as it was parsed: nothing in it was
/// changed since, and no attribute holds a NUL (`&#0;`). The result is that of `readArray`.
///
/// The XML library resolves entities and line ends in a text when it gives it out, character by character; for a long
/// array that costs more than the conversion of the numbers. But it keeps names, attributes and texts where they were
/// parsed, in a copy of the whole document. So plain numbers are read there, and whatever might not be plain numbers is
/// left to `readArray`.
template <class Number>
[[nodiscard]] bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<Number>& out);

}  // namespace lv::detail
