#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/analysis/Tree.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// Two rows that are compared, or one that only one side has.
struct RowPair {
    const Node* before;  ///< The row of the first list; null when only the second has it.
    const Node* after;   ///< The row of the second list; null when only the first has it.
    std::string step;    ///< The last step of its path: "ColorMode[Index=2]", "Measurements[7]".
};

/// The rows of two lists.
struct RowPairs {
    std::vector<RowPair> rows{};  ///< Those of the first list in its order, then those that only the second has.
    bool isReordered = false;     ///< Whether the rows that both have are in a different order.
};

/// Matches rows, in time proportional to their number:
///
/// - rows that have a number "Index" by that number; if several have the same number or none, the first of one list is
///   matched with the first of the other, and so on;
/// - rows of measurements by RGB if each row has an RGB that is unique in its list; otherwise by CMYK
/// in
///   the same way;
/// - others by position.
[[nodiscard]] RowPairs matchRows(const Shape& row, const std::vector<const Node*>& before,
                                 const std::vector<const Node*>& after);

}  // namespace lv::analysis
