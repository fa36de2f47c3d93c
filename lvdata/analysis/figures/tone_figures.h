#pragma once

#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/analysis/figures/target_curves.h>

namespace lv::analysis {

/// The tone response by the grey patches of the result's series; `known` says whether Y is absolute.
[[nodiscard]] ToneFigures toneFiguresOf(const CalibrationModeResultObject& result, const TargetCurves& target,
                                        const KnownUnits& known);

/// Tone figures that are not available.
[[nodiscard]] ToneFigures missingTone(const TargetCurves& target, const std::string& reason);

/// Whether the user said that Y is in cd/m².
[[nodiscard]] bool isAbsolute(const KnownUnits& known);

}  // namespace lv::analysis
