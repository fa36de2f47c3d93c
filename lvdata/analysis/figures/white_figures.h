#pragma once

#include <lvdata/analysis/figures/stored_values.h>

namespace lv::analysis {

/// Measured white and black, compared with the target that is already in `figures`.
void takeWhite(ModeFigures& figures, const CalibrationModeResultObject& result);

/// The CCT of a white in K, and its Δuv.
struct TemperatureFigures {
    Figure kelvin{};
    Figure duv{};
};
[[nodiscard]] TemperatureFigures temperatureFiguresOf(const colour::Chromaticity& white);

/// Sets every figure of white and black to n/a.
void missWhite(ModeFigures& figures, const std::string& reason);

}  // namespace lv::analysis
