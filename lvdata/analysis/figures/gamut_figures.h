#pragma once

#include <lvdata/analysis/figures/stored_values.h>

namespace lv::analysis {

/// The target primaries of a mode, or why there are none.
struct TargetPrimaries {
    std::optional<colour::Primaries> primaries{};  ///< By x and y, or by the name of a standard.
    std::string reason{};                          ///< Why there are none.
};

/// By x and y where the target has them, otherwise by the name of a standard. A null pointer gives none.
[[nodiscard]] TargetPrimaries targetPrimariesOf(const ColorModeSettingsObject* setting);

/// Primaries and gamuts; either may be missing.
void takeGamut(ModeFigures& figures, const ColorModeSettingsObject* setting, const CalibrationModeResultObject* result);

}  // namespace lv::analysis
