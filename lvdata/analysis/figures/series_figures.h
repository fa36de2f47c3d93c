#pragma once

#include <lvdata/analysis/figures/gamut_figures.h>
#include <lvdata/analysis/figures/target_curves.h>

namespace lv::analysis {

/// The measurements of a result against what they should be; `mode` already has its white.
[[nodiscard]] SeriesFigures seriesFiguresOf(const CalibrationModeResultObject& result, const ModeFigures& mode,
                                            const TargetPrimaries& primaries, const TargetCurves& curves,
                                            const KnownUnits& known);

/// Series figures that there are not.
[[nodiscard]] SeriesFigures missingSeries(const std::string& reason);

}  // namespace lv::analysis
