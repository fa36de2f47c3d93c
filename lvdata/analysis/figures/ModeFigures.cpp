#include <lvdata/analysis/figures/ModeFigures.h>

#include <lvdata/core/quantities.h>
#include <lvdata/records/types.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <deque>
#include <iterator>
#include <unordered_map>

namespace lv::analysis {
namespace {

using Setting = ColorModeSettingsObject;
using Result = CalibrationModeResultObject;
using Numbers = std::vector<unsigned int>;

double natural(unsigned int stored, const Quantity& quantity) {
    return static_cast<double>(stored) / quantity.factor;
}

/// The shortest text of a number with two digits after the point: "2.2".
std::string hundredths(unsigned int stored) {
    std::string text = fixedText(stored / 100.0, 2);
    text.erase(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

std::optional<colour::Tristimulus> tristimulusOf(const Numbers& stored) {
    if (stored.size() != 3) {
        return std::nullopt;
    }
    const auto value = [&](std::size_t index) {
        return natural(stored[index], quantities::tristimulus);
    };
    return colour::Tristimulus{value(0), value(1), value(2)};
}

std::optional<colour::Chromaticity> chromaticityOf(const colour::Tristimulus& XYZ) {
    const double sum = XYZ[0] + XYZ[1] + XYZ[2];
    return sum > 0 ? std::optional(colour::Chromaticity{XYZ[0] / sum, XYZ[1] / sum}) : std::nullopt;
}

void takeParameters(ModeFigures& figures, const ParameterSetting& setting) {
    const auto& brightness = setting.brightness.value;
    if (brightness.type == types::brightness::candela) {
        figures.targetBrightness = std::to_string(brightness.value) + " candela";
    } else {
        const bool isPercent = brightness.type == types::brightness::percent;
        figures.targetBrightness = isPercent ? std::to_string(brightness.value) + " %" : brightness.type;
    }
    const auto& white = setting.whitePoint.value;
    figures.targetWhite = white.type == types::whitePoint::temperature
                              ? "Temperature " + std::to_string(white.temperature)
                          : white.type == types::whitePoint::fixed ? white.fixed
                                                                   : white.type;
    const auto& gamma = setting.gamma.value;
    figures.targetGamma = gamma.type == types::gamma::value   ? hundredths(gamma.value)
                          : gamma.type == types::gamma::fixed ? gamma.fixed
                                                              : gamma.type;
    const auto& gamut = setting.gamut.value;
    figures.targetGamut = gamut.type == types::gamut::fixed ? gamut.fixed : gamut.type;
}

std::string levelOf(const TargetSetting::level_t& level) {
    return level.type == types::targetLevel::value ? std::to_string(level.value) : level.type;
}

void takeWhitePoint(ModeFigures& figures, const TargetSetting::white_point_t& white) {
    if (white.type == types::targetWhitePoint::coordinate) {
        const double x = natural(white.x, quantities::chromaticity);
        const double y = natural(white.y, quantities::chromaticity);
        figures.targetChromaticity = colour::Chromaticity{x, y};
        figures.targetWhite = "x " + fixedText(x, 4) + " y " + fixedText(y, 4);
    } else if (white.type == types::targetWhitePoint::temperature) {
        figures.targetWhite = "Temperature " + std::to_string(white.temperature);
    } else {
        figures.targetWhite = white.type;
    }
}

std::string curveOf(const TargetSetting::gamma_t::gamma_color& curve) {
    if (curve.type == types::targetCurve::formula) {
        return hundredths(curve.formula);
    }
    const bool isTable = curve.type == types::targetCurve::lut || curve.type == types::targetCurve::lut24;
    return isTable ? "table" : curve.type.empty() ? "-" : curve.type;
}

/// One text when the channels agree, or three: "2.2, 2.2, 2.4".
std::string gammaOf(const TargetSetting::gamma_t& gamma) {
    const std::string red = curveOf(gamma.red);
    const std::string green = curveOf(gamma.green);
    const std::string blue = curveOf(gamma.blue);
    const bool isOne = red == green && green == blue;
    return !isOne ? red + ", " + green + ", " + blue : red == "-" ? "" : red;
}

/// The name of a standard, which newer targets have beside the older form.
std::string standardOr(const property<TargetSetting::standard_t>& standard, const std::string& other) {
    const bool isNamed = standard.hasValue && standard.value.type == types::targetStandard::standard;
    return isNamed && !standard.value.standard.empty() ? standard.value.standard : other;
}

std::string gamutOf(const property<TargetSetting::gamut_t>& gamut) {
    return !gamut.hasValue ? "" : gamut.value.isNative() ? "native" : "primaries";
}

void takeTarget(ModeFigures& figures, const TargetSetting& target) {
    figures.targetBrightness = target.brightness.hasValue ? levelOf(target.brightness.value) : "";
    figures.targetBlack = target.blackLevel.hasValue ? levelOf(target.blackLevel.value) : "";
    if (target.whitePoint.hasValue) {
        takeWhitePoint(figures, target.whitePoint.value);
    }
    figures.targetWhiteStandard = standardOr(target.whitePointV7, "");
    figures.targetGamma = standardOr(target.gammaV7, target.gamma.hasValue ? gammaOf(target.gamma.value) : "");
    figures.targetGamut = standardOr(target.gamutV7, gamutOf(target.gamut));
}

Figure missing(const std::string& reason) {
    return {{}, reason};
}

std::string numberOf(const property<unsigned int>& index) {
    return index.hasValue ? std::to_string(index.value) : "";
}

ModeFigures figuresOf(const Setting& setting) {
    ModeFigures figures;
    figures.index = numberOf(setting.index);
    figures.name = setting.name.hasValue ? setting.name.value : "";
    figures.type = setting.type.value;
    figures.measuredY = figures.blackY = figures.contrast = figures.deltaUV = missing("no calibration result");
    if (figures.type == types::colorMode::calibration) {
        takeTarget(figures, setting.targetSetting.value);
    } else if (figures.type == types::colorMode::standard || figures.type == types::colorMode::syncSignal) {
        takeParameters(figures, setting.parameterSetting.value);
    }
    return figures;
}

Figure blackYOf(const Result& result) {
    if (!result.hasProfileData || !result.profileData.measuredXYZ.hasValue) {
        return missing("no complete set of MeasuredXYZ");
    }
    const auto& valid = result.hasValidMeasuredBlackValue;
    if (valid.hasValue && !valid.value) {
        return missing("the black measurement is marked as not valid");
    }
    const auto black = tristimulusOf(result.profileData.measuredXYZ.value.black);
    return black ? Figure{(*black)[1], ""} : missing("no black was measured");
}

/// Of white and black of one set: other whites may have another unit.
Figure contrastOf(const Result& result, const Figure& blackY) {
    if (!blackY.value) {
        return blackY;
    }
    const auto white = tristimulusOf(result.profileData.measuredXYZ.value.white);
    if (!white) {
        return missing("no white was measured");
    }
    const double whiteY = (*white)[1];
    if (whiteY > 0 && *blackY.value > 0) {
        return {whiteY / *blackY.value, ""};
    }
    return missing(whiteY > 0 ? "black has Y 0" : "white has Y 0");
}

Figure deltaUVOf(const ModeFigures& figures) {
    if (!figures.targetChromaticity) {
        return missing("the target has no x and y");
    }
    if (!figures.measuredChromaticity) {
        return missing("X, Y and Z of the white are 0");
    }
    const auto target = colour::uniform(*figures.targetChromaticity);
    const auto measured = colour::uniform(*figures.measuredChromaticity);
    return target && measured ? Figure{colour::distance(*target, *measured), ""}
                              : missing("x and y are not of a real colour");
}

/// The white that the calibration reached, or else that of the profile data.
std::optional<colour::Tristimulus> measuredWhiteOf(const Result& result) {
    const auto& reached = result.basicData.justCalibratedWhite;
    if (result.hasBasicData && reached.hasValue && reached.value.size() == 3) {
        return tristimulusOf(reached.value);
    }
    const auto& measured = result.profileData.measuredXYZ;
    const bool hasMeasured = result.hasProfileData && measured.hasValue;
    return hasMeasured ? tristimulusOf(measured.value.white) : std::nullopt;
}

void takeResult(ModeFigures& figures, const Result& result) {
    figures.calibratedTime = result.calibratedTime.hasValue ? result.calibratedTime.value : "";
    figures.measurements = result.hasMeasurementData ? result.measurementData.objects.size() : 0;
    figures.blackY = blackYOf(result);
    figures.contrast = contrastOf(result, figures.blackY);
    figures.measuredWhite = measuredWhiteOf(result);
    if (figures.measuredWhite) {
        figures.measuredChromaticity = chromaticityOf(*figures.measuredWhite);
        figures.measuredY = {(*figures.measuredWhite)[1], ""};
        figures.deltaUV = deltaUVOf(figures);
    } else {
        figures.measuredY = figures.deltaUV = missing("no white was measured");
    }
}

/// The modes that have no result yet, by their index.
using Waiting = std::unordered_map<std::string, std::deque<std::size_t>>;

/// The first mode of the result's index that is waiting for one, or else a new mode.
ModeFigures& modeFor(const Result& result, std::vector<ModeFigures>& modes, Waiting& waiting) {
    const std::string index = numberOf(result.index);
    const auto found = waiting.find(index);
    if (index.empty() || found == waiting.end() || found->second.empty()) {
        return modes.emplace_back(ModeFigures{index, result.name.hasValue ? result.name.value : "", result.type.value});
    }
    ModeFigures& mode = modes[found->second.front()];
    found->second.pop_front();
    return mode;
}

}  // namespace

std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings, const CalibrationModeResult& results,
                                     const KnownUnits& /*known*/) {
    std::vector<ModeFigures> modes;
    Waiting waiting;
    for (const Setting& setting : settings.objects) {
        modes.push_back(figuresOf(setting));
        waiting[modes.back().index].push_back(modes.size() - 1);
    }
    for (const Result& result : results.objects) {
        takeResult(modeFor(result, modes, waiting), result);
    }
    return modes;
}

}  // namespace lv::analysis
