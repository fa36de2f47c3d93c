#pragma once

#include <lvdata/analysis/Position.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The integers of a number or an array in a printed document, and what they stand for.
struct StoredArray {
    std::vector<std::int64_t> numbers{};  ///< The stored integers; one of a number.
    const Quantity* quantity = nullptr;   ///< What they stand for. Never null where `isNumeric` holds.
};

/// How two arrays differ, entry by entry.
struct ComparedArrays {
    /// The largest change.
    struct Largest {
        std::size_t index = 0;  ///< Its index, counted from 0.
        std::string change{};   ///< The second minus the first, as shown.
        double size = 0;        ///< The same without its sign.
    };

    std::size_t differing = 0;         ///< How many differ, of those that both have.
    std::optional<Largest> largest{};  ///< The first of the largest; no value when the quantities are not comparable.
};

/// The stored integers of an array's text.
[[nodiscard]] std::vector<std::int64_t> storedNumbers(std::string_view text);

/// The text at the position; empty when it could have a text but has none. Null for an element that only holds others.
[[nodiscard]] const std::string_view* storedText(const Position& position);

/// The integers at the position, where `isNumeric` holds.
[[nodiscard]] StoredArray storedArray(const Position& position);

/// Compares the entries with the same index, exactly, even if the factors differ.
[[nodiscard]] ComparedArrays compareArrays(const StoredArray& before, const StoredArray& after);

/// The value of a stored integer, exactly; the integer itself when the factor is not a power of ten.
[[nodiscard]] std::string shownNumber(std::int64_t stored, const Quantity& quantity);

/// The unit of such a value: "1/255" for stored integers with a factor, empty where it is not recorded.
[[nodiscard]] std::string shownUnit(const Quantity& quantity);

}  // namespace lv::analysis
