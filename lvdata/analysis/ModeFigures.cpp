#include <lvdata/analysis/ModeFigures.h>

#include <lvdata/core/quantities.h>
#include <lvdata/records/types.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <unordered_map>

namespace lv::analysis {
namespace {

using Setting = ColorModeSettingsObject;
using Result = CalibrationModeResultObject;
using Numbers = std::vector<unsigned int>;

double natural(unsigned int stored, const Quantity& quantity) {
    return static_cast<double>(stored) / quantity.factor;
}

std::string fixedText(double value, int decimals) {
    std::array<char, 64> text{};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the only standard way to a fixed number of digits
    const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return {text.data(), std::min(static_cast<std::size_t>(length), text.size() - 1)};
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
    return isTable ? "table" : curve.type;
}

/// One text when the channels agree, or three: "2.2, 2.2, 2.4".
std::string gammaOf(const TargetSetting::gamma_t& gamma) {
    const std::string red = curveOf(gamma.red);
    const std::string green = curveOf(gamma.green);
    const std::string blue = curveOf(gamma.blue);
    return red == green && green == blue ? red : red + ", " + green + ", " + blue;
}

/// The name of a standard, which newer targets have beside the older form.
std::string standardOr(const property<TargetSetting::standard_t>& standard, const std::string& other) {
    const bool isNamed = standard.hasValue && standard.value.type == types::targetStandard::standard;
    return isNamed && !standard.value.standard.empty() ? standard.value.standard : other;
}

void takeTarget(ModeFigures& figures, const TargetSetting& target) {
    if (target.brightness.hasValue) {
        figures.targetBrightness = levelOf(target.brightness.value);
    }
    if (target.whitePoint.hasValue) {
        takeWhitePoint(figures, target.whitePoint.value);
    }
    figures.targetGamma = standardOr(target.gammaV7, target.gamma.hasValue ? gammaOf(target.gamma.value) : "");
    const bool hasPrimaries = target.gamut.hasValue && !target.gamut.value.isNative();
    figures.targetGamut = standardOr(target.gamutV7, hasPrimaries ? "primaries" : "native");
}

std::string numberOf(const property<unsigned int>& index) {
    return index.hasValue ? std::to_string(index.value) : "";
}

ModeFigures figuresOf(const Setting& setting) {
    ModeFigures figures;
    figures.index = numberOf(setting.index);
    figures.name = setting.name.hasValue ? setting.name.value : "";
    figures.type = setting.type.value;
    if (figures.type == types::colorMode::calibration) {
        takeTarget(figures, setting.targetSetting.value);
    } else if (figures.type == types::colorMode::standard || figures.type == types::colorMode::syncSignal) {
        takeParameters(figures, setting.parameterSetting.value);
    }
    return figures;
}

void takeResult(ModeFigures& figures, const Result& result) {
    figures.calibratedTime = result.calibratedTime.hasValue ? result.calibratedTime.value : "";
    figures.measurements = result.hasMeasurementData ? result.measurementData.objects.size() : 0;
    const auto& primaries = result.profileData.measuredXYZ;
    const bool hasPrimaries = result.hasProfileData && primaries.hasValue;
    const auto& white = result.basicData.justCalibratedWhite;
    figures.measuredWhite =
        result.hasBasicData && white.hasValue ? tristimulusOf(white.value) : std::optional<colour::Tristimulus>();
    if (hasPrimaries) {
        figures.measuredBlack = tristimulusOf(primaries.value.black);
        figures.measuredWhite = figures.measuredWhite ? figures.measuredWhite : tristimulusOf(primaries.value.white);
    }
    if (figures.measuredWhite) {
        figures.measuredChromaticity = chromaticityOf(*figures.measuredWhite);
    }
}

Figure contrastOf(const ModeFigures& figures) {
    if (!figures.measuredWhite) {
        return {{}, "no white was measured"};
    }
    if (!figures.measuredBlack) {
        return {{}, "no black was measured"};
    }
    const double black = (*figures.measuredBlack)[1];
    return black > 0 ? Figure{(*figures.measuredWhite)[1] / black, ""} : Figure{{}, "black has Y 0"};
}

Figure deltaUVOf(const ModeFigures& figures) {
    if (!figures.measuredWhite) {
        return {{}, "no white was measured"};
    }
    if (!figures.targetChromaticity) {
        return {{}, "the target has no x and y"};
    }
    const auto target = colour::uniform(*figures.targetChromaticity);
    const auto measured = figures.measuredChromaticity ? colour::uniform(*figures.measuredChromaticity) : std::nullopt;
    return target && measured ? Figure{colour::distance(*target, *measured), ""} : Figure{{}, "no real chromaticity"};
}

void compute(ModeFigures& figures) {
    figures.measuredY =
        figures.measuredWhite ? Figure{(*figures.measuredWhite)[1], ""} : Figure{{}, "no white was measured"};
    figures.contrast = contrastOf(figures);
    figures.deltaUV = deltaUVOf(figures);
}

}  // namespace

std::string Figure::text(int decimals) const {
    return value ? fixedText(*value, decimals) : "n/a (" + reason + ')';
}

std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings, const CalibrationModeResult& results) {
    std::vector<ModeFigures> modes;
    std::unordered_map<std::string, std::size_t> byIndex;
    for (const Setting& setting : settings.objects) {
        modes.push_back(figuresOf(setting));
        byIndex.emplace(modes.back().index, modes.size() - 1);
    }
    for (const Result& result : results.objects) {
        const auto found = byIndex.find(numberOf(result.index));
        if (found == byIndex.end() || found->first.empty()) {
            modes.push_back({numberOf(result.index), result.name.value, result.type.value});
            takeResult(modes.back(), result);
        } else {
            takeResult(modes[found->second], result);
        }
    }
    std::for_each(modes.begin(), modes.end(), &compute);
    return modes;
}

}  // namespace lv::analysis
