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

/// "256 or 1024", when the number of entries is not valid for an array of the shape; otherwise empty.
[[nodiscard]] std::string expectedEntries(const Shape& shape, std::size_t entries);

/// What an XML document cannot carry in the text, "a carriage return" or the like; otherwise empty. Whitespace-only
/// text is possible in an attribute, but not in an element. The text must be UTF-8.
[[nodiscard]] std::string whatXMLCannotCarry(std::string_view text, Description::Place place);

}  // namespace lv::analysis
