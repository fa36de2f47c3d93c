#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/diff/ReferenceWhites.h>
#include <lvdata/analysis/diff/Tolerances.h>
#include <lvdata/analysis/diff/diff.h>

#include <optional>

namespace lv::analysis {

/// The same thing in two printed documents. Both have it, and it has a text.
struct ValuePair {
    Position before;  ///< In the first.
    Position after;   ///< In the second.
};

/// A difference without its path, and whether it is small enough not to be listed.
struct JudgedDifference {
    Difference difference{};         ///< The difference.
    bool isWithinTolerance = false;  ///< Whether at least one limit applies and none is exceeded.
};

/// The data that is needed to compare differences with the limits.
struct Judge {
    const Tolerances& tolerances;    ///< The limits.
    ReferenceWhites whitesBefore{};  ///< The whites of the first document.
    ReferenceWhites whitesAfter{};   ///< The whites of the second document.
};

/// The content and the value at a position, for a thing that only one document has.
[[nodiscard]] Difference::Content contentAt(const Position& position);
[[nodiscard]] std::optional<Difference::Value> shownValue(const Position& position);

/// How two values differ; no value when they are the same: the same text of the same quantity.
[[nodiscard]] std::optional<JudgedDifference> valueDifference(const ValuePair& pair, Judge& judge);

/// How two chromaticities differ, given by their coordinates x and y; no value when they are the same.
[[nodiscard]] std::optional<JudgedDifference> chromaticityDifference(const ValuePair& x, const ValuePair& y,
                                                                     const Judge& judge);

}  // namespace lv::analysis
