#pragma once

#include <lvdata/analysis/figures/gamut_figures.h>
#include <lvdata/analysis/figures/target_curves.h>

namespace lv::analysis {

/// The measurements of a result, compared with the expected colours; the white of `mode` is already set.
[[nodiscard]] SeriesFigures seriesFiguresOf(const CalibrationModeResultObject& result, const ModeFigures& mode,
                                            const TargetPrimaries& primaries, const TargetCurves& curves,
                                            const KnownUnits& known);

/// Series figures that are not available.
[[nodiscard]] SeriesFigures missingSeries(const std::string& reason);

}  // namespace lv::analysis
