#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

namespace lv::analysis {

/// Who and what measured, the monitor's tables and the adjustments of six colours; either may be null.
void takeAdjustments(ModeFigures& figures, const ColorModeSettingsObject* setting,
                     const CalibrationModeResultObject* result);

}  // namespace lv::analysis
