#pragma once

#include <lvdata/analysis/colour/difference.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/ColorModeSettings.h>

#include <optional>
#include <string>
#include <vector>

namespace lv::analysis {

/// A number that was computed, or why it could not be.
struct Figure {
    std::optional<double> value{};  ///< The number; nothing when there is none.
    std::string reason{};           ///< Why there is none, in a few words; otherwise empty.

    /// The number with that many digits after the point, or "n/a (reason)".
    [[nodiscard]] std::string text(int decimals) const;
};

/// What a calibration aimed at and what it reached, of one colour mode. Texts are empty where the record has nothing.
struct ModeFigures {
    std::string index{};  ///< The number that tells the mode apart.
    std::string name{};   ///< Its name.
    std::string type{};   ///< Its type, such as "Calibration".

    std::string targetBrightness{};     ///< "120", "140 candela", "80 %": with a unit where the record says it.
    std::string targetBlack{};          ///< "Minimum", "1".
    std::string targetWhite{};          ///< "x 0.3127 y 0.3290", "Temperature 6500" or, of a standard mode, its name.
    std::string targetWhiteStandard{};  ///< The name of a standard, which newer targets have beside the older form.
    std::string targetGamma{};  ///< "2.2", "table", "HLG" or the name of a standard; three if the channels differ.
    std::string targetGamut{};  ///< "primaries", "native" or the name of a standard.

    std::string calibratedTime{};                                ///< When it was calibrated, as the record has it.
    std::optional<colour::Chromaticity> targetChromaticity{};    ///< Where the target white is given by x and y.
    std::optional<colour::Tristimulus> measuredWhite{};          ///< X, Y, Z of the white that was reached.
    std::optional<colour::Chromaticity> measuredChromaticity{};  ///< x and y of the measured white.
    Figure measuredY{};                                          ///< Y of the measured white. Unit not recorded.
    Figure blackY{};                                             ///< Y of the measured black. Unit not recorded.
    Figure contrast{};  ///< Y of white over Y of black, both of the profile data.
    Figure deltaUV{};   ///< Δu'v' of target and measured white, in the CIE 1976 UCS diagram.

    std::size_t measurements = 0;  ///< Rows of the mode's measurement series.
};

/// The figures of all modes, in the order of the settings; results without settings come last. Settings and results
/// belong together when they have the same index; where several have it, the first to the first, and so on.
///
/// The measured white is "JustCalibratedWhite", or else the white of the profile data; black is that of the profile
/// data. The set "Limited109" is not looked at.
[[nodiscard]] std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings,
                                                   const CalibrationModeResult& results);

}  // namespace lv::analysis
