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
    bool isReordered = false;     ///< Whether rows that both have stand in a different order.
};

/// Finds the rows that belong together, in time proportional to their number:
///
/// - rows that have a number "Index" by that number; of equal ones, and of those without, the first of one list belongs
///   to the first of the other, and so on;
/// - rows of measurements by RGB when each row of both lists has one that no other of its list has; otherwise by CMYK
/// in
///   the same way;
/// - others by their place.
[[nodiscard]] RowPairs matchRows(const Shape& row, const std::vector<const Node*>& before,
                                 const std::vector<const Node*>& after);

}  // namespace lv::analysis
