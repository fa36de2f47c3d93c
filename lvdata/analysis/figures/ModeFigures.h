#pragma once

#include <lvdata/analysis/colour/difference.h>
#include <lvdata/analysis/colour/standards.h>
#include <lvdata/analysis/figures/Figure.h>
#include <lvdata/analysis/figures/joined_modes.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Units and shapes that the user knows and the records do not state.
struct KnownUnits {
    std::string yUnit{};        ///< The unit of CIE X, Y and Z, such as "cd/m²"; empty: not known.
    std::string mapUnit{};      ///< The unit of the entries of candela maps; empty: not known.
    std::size_t gridWidth = 0;  ///< The entries in a row of a candela map; 0: not known.
};

/// Who and what measured a mode, as recorded; a text is empty when the record has no value.
struct MeasuredBy {
    std::string sensorName{};       ///< The colour sensor.
    std::string sensorSerial{};     ///< Its serial number.
    std::string referenceName{};    ///< The sensor that it was correlated with.
    std::string referenceSerial{};  ///< The serial number of that sensor.
    std::string correlationDate{};  ///< When it was correlated.
    std::string software{};         ///< The software that ran the calibration.
    std::string executor{};         ///< What kind of executor ran it.
    std::string executedDate{};     ///< When it ran.
    std::string usageHours{};       ///< Hours of use, by the name of the element.
};

/// One primary: target and measured.
struct PrimaryFigures {
    std::optional<colour::Chromaticity> target{};    ///< The target: by x and y, or by a standard.
    std::optional<colour::Chromaticity> measured{};  ///< x and y of the measured primary.
    Figure deltaUV{};                                ///< Δu'v' of both.
};

/// The measured gamut against that of a standard. All are fractions, 1 for 100 %.
struct GamutFigures {
    std::string_view space{};  ///< The standard's name, see `colour::referenceSpaces`.
    Figure coverageXY{};       ///< The part of the standard's triangle that is covered, in x and y.
    Figure areaXY{};           ///< The area over that of the standard's triangle, in x and y.
    Figure coverageUV{};       ///< The same in u' and v'.
    Figure areaUV{};           ///< The same in u' and v'.
};

/// One step of the tone response: a grey patch.
struct ToneStep {
    double signal = 0;  ///< The code value as a fraction of 255.
    double light = 0;   ///< (Y - Y of black) / (Y of white - Y of black), of the series itself.
    Figure target{};    ///< The light that the target's tone curve gives for the signal.
    Figure gamma{};     ///< log(light) / log(signal).

    /// R, G and B that make this grey, each over their mean; by the measured primaries and white, 1 for balanced.
    std::optional<std::array<double, 3>> balance{};
};

/// The tone response of a mode.
struct ToneFigures {
    std::vector<ToneStep> steps{};  ///< Sorted by signal; several patches with one signal are averaged.
    std::string targetCurve{};      ///< What the target is, such as "2.2"; empty when not known.
    Figure targetGamma{};           ///< The target exponent, if the target is a power of the signal.
    Figure meanGamma{};             ///< The mean of the steps from 10 % to 90 % of the signal.
    Figure greatestDeviation{};     ///< The greatest |light - target| of all steps, as a fraction.
    Figure greatestImbalance{};     ///< The greatest |balance - 1| of a channel, of steps from 20 % of the signal.
};

/// One measurement, compared with the expected colour.
struct PatchFigures {
    std::size_t number = 0;                             ///< Which row of the series, counted from 1.
    std::optional<std::array<unsigned int, 3>> RGB{};   ///< The code values that were shown.
    std::optional<std::array<unsigned int, 4>> CMYK{};  ///< The inks that were shown, in per cent.
    std::optional<colour::Tristimulus> XYZ{};           ///< What was measured.
    std::optional<colour::Tristimulus> expected{};      ///< The expected colour.
    Figure deltaE2000{};                                ///< ΔE00 of both.
};

/// All measurements of a mode, compared with the expected colours.
struct SeriesFigures {
    std::vector<PatchFigures> patches{};  ///< In the order of the series.
    std::string reference{};              ///< The reference in words; empty when there is none.
    Figure mean{};                        ///< The mean ΔE00.
    Figure percentile95{};                ///< The least ΔE00 that 95 % of the patches do not exceed.
    Figure maximum{};                     ///< The greatest ΔE00.
    std::vector<std::size_t> worst{};     ///< The indices in `patches` of the five greatest, greatest first.
};

/// The adjustments of six colours: red, yellow, green, cyan, blue, magenta.
struct SixColours {
    std::string_view name{};      ///< "Hue", "Saturation" or "Lightness".
    std::string_view place{};     ///< "monitor" or "target": which record has them.
    std::array<int, 6> values{};  ///< In steps of the monitor.
};

/// The target and the result of the calibration of one colour mode. Texts are empty when the record has no value.
struct ModeFigures {
    std::string index{};  ///< The number that identifies the mode.
    std::string name{};   ///< Its name.
    std::string type{};   ///< Its type, such as "Calibration".

    std::string targetBrightness{};     ///< "120", "140 candela", "80 %": with a unit if the record states it.
    std::string targetBlack{};          ///< "Minimum", "1".
    std::string targetWhite{};          ///< "x 0.3127 y 0.3290", "Temperature 6500" or, of a standard mode, its name.
    std::string targetWhiteStandard{};  ///< The name of a standard, which newer targets have beside the older form.
    std::string targetGamma{};  ///< "2.2", "table", "HLG" or the name of a standard; three if the channels differ.
    std::string targetGamut{};  ///< "primaries", "native" or the name of a standard.

    std::string calibratedTime{};                                ///< When it was calibrated, as the record has it.
    MeasuredBy measuredBy{};                                     ///< Who and what measured.
    Figure targetY{};                                            ///< The target brightness, if it is a number.
    std::optional<colour::Chromaticity> targetChromaticity{};    ///< Target white, if given by x and y.
    std::optional<colour::Chromaticity> standardChromaticity{};  ///< White of the standard named by the target.
    std::optional<colour::Tristimulus> measuredWhite{};          ///< X, Y, Z of the white that was reached.
    std::optional<colour::Chromaticity> measuredChromaticity{};  ///< x and y of the measured white.
    std::optional<colour::Tristimulus> measuredBlack{};          ///< X, Y, Z of the measured black.
    Figure measuredY{};                                          ///< Y of the measured white. Unit not recorded.
    Figure blackY{};                                             ///< Y of the measured black. Unit not recorded.
    Figure contrast{};     ///< Y of white over Y of black, both of the profile data.
    Figure deltaUV{};      ///< Δu'v' of target and measured white, in the CIE 1976 UCS diagram.
    Figure deltaE2000{};   ///< ΔE00 of target and measured white, both at the measured Y, relative to the target.
    Figure temperature{};  ///< CCT of the measured white in K.
    Figure duv{};          ///< Δuv of the measured white, its distance from the Planckian locus.

    std::array<PrimaryFigures, 3> primaries{};  ///< Red, green, blue.
    std::vector<GamutFigures> gamuts{};         ///< Against each of `colour::referenceSpaces`.
    ToneFigures tone{};                         ///< From the grey patches of the series.
    SeriesFigures series{};                     ///< All measurements.

    std::array<std::vector<double>, 3> tables{};  ///< The monitor's look-up tables of red, green, blue; as fractions.
    std::vector<SixColours> sixColours{};         ///< The adjustments that are set.

    std::size_t measurements = 0;  ///< Rows of the mode's measurement series.
};

/// The target white of a mode: by x and y, or else by a standard.
[[nodiscard]] inline std::optional<colour::Chromaticity> aimedWhite(const ModeFigures& mode) {
    return mode.targetChromaticity ? mode.targetChromaticity : mode.standardChromaticity;
}

/// The figures of one mode.
///
/// The measured white is "JustCalibratedWhite", or else the white of the profile data; black and primaries are those of
/// the profile data. The set "Limited109" is not used.
[[nodiscard]] ModeFigures modeFigures(const JoinedMode& mode, const KnownUnits& known = {});

/// The figures of all modes, joined and ordered as `joinedModes` does it.
[[nodiscard]] std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings,
                                                   const CalibrationModeResult& results, const KnownUnits& known = {});

/// Whether anything of a calibration or measurement of the mode is known.
[[nodiscard]] bool hasResult(const ModeFigures& mode);

}  // namespace lv::analysis
