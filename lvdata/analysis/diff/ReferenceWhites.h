#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/colour/difference.h>

#include <optional>
#include <string_view>
#include <unordered_map>

namespace lv::analysis {

/// The white that a document states for a tristimulus value.
struct ReferenceWhite {
    colour::Tristimulus value{};    ///< The white, as stored.
    std::string_view source{};      ///< Which one it is, in words.
    const Node* element = nullptr;  ///< Where it stands.
};

/// Finds the white that a tristimulus value of a printed document is relative to:
///
/// - of a value with a key, such as "MeasuredXYZ[@Color='Red']", the one whose key ends in "White" and is otherwise the
///   same;
/// - of a row of measurements, the row of the same series in which R, G and B are 255; or else the white with the key
/// of
///   the profile that stands beside the series, which is that of the same colour mode.
///
/// A white whose X, Y or Z is not above 0 does not count. Each series is searched once.
class ReferenceWhites {
public:
    /// The white of the value at the position, an element or a text; no value when none is stated.
    [[nodiscard]] std::optional<ReferenceWhite> of(const Position& tristimulus);

private:
    [[nodiscard]] std::optional<ReferenceWhite> ofSeries(const Position& tristimulus);

    std::unordered_map<const Node*, std::optional<ReferenceWhite>> series_{};
};

}  // namespace lv::analysis
