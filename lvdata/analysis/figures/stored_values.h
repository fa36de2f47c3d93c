#pragma once

#include <lvdata/analysis/colour/standards.h>
#include <lvdata/analysis/figures/ModeFigures.h>
#include <lvdata/core/quantities.h>
#include <lvdata/records/CalibrationModeResult.h>

#include <optional>
#include <string>
#include <vector>

namespace lv::analysis {

/// A figure that is not available.
[[nodiscard]] Figure missing(const std::string& reason);

/// A figure that was computed; n/a if the result is out of the range of numbers.
[[nodiscard]] Figure computed(double value);

/// The value of a stored integer.
[[nodiscard]] inline double natural(double stored, const Quantity& quantity) {
    return stored / quantity.factor;
}

/// X, Y and Z of a stored array; no value unless it has three entries.
template <class Integer>
[[nodiscard]] std::optional<colour::Tristimulus> tristimulusOf(const std::vector<Integer>& stored) {
    if (stored.size() != 3) {
        return std::nullopt;
    }
    const auto value = [&](std::size_t index) {
        return natural(stored[index], quantities::tristimulus);
    };
    return colour::Tristimulus{value(0), value(1), value(2)};
}

/// x and y; no value where X + Y + Z is not above 0.
[[nodiscard]] std::optional<colour::Chromaticity> chromaticityOf(const colour::Tristimulus& XYZ);

/// X, Y and Z of a chromaticity that has the given Y; no value where y is not above 0.
[[nodiscard]] std::optional<colour::Tristimulus> tristimulusOf(const colour::Chromaticity& chromaticity, double Y);

/// The text of a value that is set; otherwise an empty text.
[[nodiscard]] inline std::string textOf(const property<std::string>& text) {
    return text.hasValue ? text.value : "";
}

/// The measured colours of the profile data. Empty when the set is not complete; black is also empty when it is marked
/// as not valid.
struct MeasuredSet {
    std::optional<colour::Tristimulus> red{};
    std::optional<colour::Tristimulus> green{};
    std::optional<colour::Tristimulus> blue{};
    std::optional<colour::Tristimulus> white{};
    std::optional<colour::Tristimulus> black{};
    std::string blackReason{};  ///< Why there is no black.
};

[[nodiscard]] MeasuredSet measuredSetOf(const CalibrationModeResultObject& result);

}  // namespace lv::analysis
