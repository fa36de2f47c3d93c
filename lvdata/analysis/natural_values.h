#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/core/Quantity.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The text of a document for a natural number, as records write it; null when it is out of range.
[[nodiscard]] std::optional<std::string> storedText(std::string_view natural, const Shape& shape,
                                                    const Quantity* quantity);

/// "a number from -2147.483648 to 2147.483647": what numbers of the shape can be.
[[nodiscard]] std::string rangeText(const Shape& shape, const Quantity* quantity);

/// "256 or 1024", when an array of the shape counts only with other numbers of entries than that; otherwise empty.
[[nodiscard]] std::string expectedEntries(const Shape& shape, std::size_t entries);

/// What keeps an XML document from carrying the text, "a carriage return" or the like; otherwise empty. An attribute
/// carries a text of nothing but white space, an element does not. The text must be UTF-8.
[[nodiscard]] std::string whatXMLCannotCarry(std::string_view text, Description::Place place);

}  // namespace lv::analysis
