#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/analysis/Tree.h>

#include <string>

namespace lv::analysis {

/// How much of a document is shown, and the units that the user knows and the records do not state.
struct OutlineForm {
    bool full = false;      ///< All rows and all entries of long arrays; otherwise the first ones, and their number.
    std::string yUnit{};    ///< The unit of CIE X, Y and Z, such as "cd/m²"; empty: not known.
    std::string mapUnit{};  ///< The unit of the entries of candela maps; empty: not known.
    std::size_t gridWidth = 0;  ///< The entries in a row of a candela map; 0: not known.
};

/// A document that a record printed, as readable text: a line for each element, indented, with natural values and their
/// units. Attributes follow the name of their element.
[[nodiscard]] std::string outline(const Node& element, const Shape& shape, const OutlineForm& form);

}  // namespace lv::analysis
