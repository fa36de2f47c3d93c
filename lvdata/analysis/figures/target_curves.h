#pragma once

#include <lvdata/analysis/figures/ToneCurve.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/ColorModeSettings.h>

#include <array>
#include <optional>
#include <string>

namespace lv::analysis {

/// The target tone curves of a mode, or why there are none.
struct TargetCurves {
    std::optional<std::array<ToneCurve, 3>> curves{};  ///< Of red, green and blue.
    std::string label{};   ///< "2.2", or "2.2, 2.4, 2.2 (grey against green's)" where the channels differ.
    std::string reason{};  ///< Why there are none.

    /// Whether all three channels have the same curve.
    [[nodiscard]] bool areEqual() const;

    /// The exponent, if the curve of grey is a power of the signal.
    [[nodiscard]] Figure exponent() const;
};

/// The first of these that exists: the curves of the target ("Gamma"), its standard by name ("GammaV7"), the curve of
/// the parameters, and the target curves of the profile data of the types "LStar" and "Lut" (the meaning of the
/// parameter of the type "Formula" is not recorded). A curve is used if all three channels have one; HLG only where all
/// three have it, because it couples them. Either pointer may be null.
[[nodiscard]] TargetCurves targetCurvesOf(const ColorModeSettingsObject* setting,
                                          const CalibrationModeResultObject* result);

}  // namespace lv::analysis
