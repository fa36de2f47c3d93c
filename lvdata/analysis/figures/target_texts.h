#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

#include <string>

namespace lv::analysis {

/// The shortest text of a number with at most two digits after the point: "2.2".
[[nodiscard]] std::string shortNumber(double value);

/// The target of a mode that is calibrated; null for the other kinds of mode.
[[nodiscard]] const TargetSetting* targetOf(const ColorModeSettingsObject& setting);

/// The parameters of a mode that is not calibrated; null for the other kinds of mode.
[[nodiscard]] const ParameterSetting* parametersOf(const ColorModeSettingsObject& setting);

/// The name of a standard; empty when it is not set.
[[nodiscard]] std::string standardOf(const property<TargetSetting::standard_t>& standard);

/// The target of a mode: its texts, its Y and the x and y of its white.
void takeTarget(ModeFigures& figures, const ColorModeSettingsObject& setting);

}  // namespace lv::analysis
