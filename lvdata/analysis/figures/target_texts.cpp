#include <lvdata/analysis/figures/target_texts.h>

#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/records/types.h>

namespace lv::analysis {
namespace {

constexpr const char* notANumber = "the target has no number for it";

void takeBrightness(ModeFigures& figures, const ParameterSetting::brightness_t& brightness) {
    figures.targetY = missing(notANumber);
    if (brightness.type == types::brightness::candela) {
        figures.targetBrightness = std::to_string(brightness.value) + " candela";
        figures.targetY = {static_cast<double>(brightness.value), ""};
    } else {
        const bool isPercent = brightness.type == types::brightness::percent;
        figures.targetBrightness = isPercent ? std::to_string(brightness.value) + " %" : brightness.type;
    }
}

void takeWhitePoint(ModeFigures& figures, const ParameterSetting::white_point_t& white) {
    if (white.type == types::whitePoint::temperature) {
        figures.targetWhite = "Temperature " + std::to_string(white.temperature);
    } else if (white.type == types::whitePoint::fixed) {
        figures.targetWhite = white.fixed;
        figures.standardChromaticity = colour::whiteNamed(white.fixed);
    } else {
        figures.targetWhite = white.type;
    }
}

void takeParameters(ModeFigures& figures, const ParameterSetting& setting) {
    takeBrightness(figures, setting.brightness.value);
    takeWhitePoint(figures, setting.whitePoint.value);
    const auto& gamma = setting.gamma.value;
    figures.targetGamma = gamma.type == types::gamma::value   ? shortNumber(gamma.value_x())
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
        return shortNumber(curve.formula_x());
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
    const std::string name = standardOf(standard);
    return name.empty() ? other : name;
}

std::string gamutOf(const property<TargetSetting::gamut_t>& gamut) {
    return !gamut.hasValue ? "" : gamut.value.isNative() ? "native" : "primaries";
}

void takeBrightness(ModeFigures& figures, const property<TargetSetting::level_t>& brightness) {
    const bool isNumber = brightness.hasValue && brightness.value.type == types::targetLevel::value;
    figures.targetBrightness = brightness.hasValue ? levelOf(brightness.value) : "";
    figures.targetY = isNumber ? Figure{static_cast<double>(brightness.value.value), ""} : missing(notANumber);
}

void takeTarget(ModeFigures& figures, const TargetSetting& target) {
    takeBrightness(figures, target.brightness);
    figures.targetBlack = target.blackLevel.hasValue ? levelOf(target.blackLevel.value) : "";
    if (target.whitePoint.hasValue) {
        takeWhitePoint(figures, target.whitePoint.value);
    }
    figures.targetWhiteStandard = standardOf(target.whitePointV7);
    figures.standardChromaticity = colour::whiteNamed(figures.targetWhiteStandard);
    figures.targetGamma = standardOr(target.gammaV7, target.gamma.hasValue ? gammaOf(target.gamma.value) : "");
    figures.targetGamut = standardOr(target.gamutV7, gamutOf(target.gamut));
}

}  // namespace

std::string shortNumber(double value) {
    std::string text = fixedText(value, 2);
    text.erase(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

const TargetSetting* targetOf(const ColorModeSettingsObject& setting) {
    return setting.type.value == types::colorMode::calibration ? &setting.targetSetting.value : nullptr;
}

const ParameterSetting* parametersOf(const ColorModeSettingsObject& setting) {
    const std::string& type = setting.type.value;
    const bool hasParameters = type == types::colorMode::standard || type == types::colorMode::syncSignal;
    return hasParameters ? &setting.parameterSetting.value : nullptr;
}

std::string standardOf(const property<TargetSetting::standard_t>& standard) {
    const bool isNamed = standard.hasValue && standard.value.type == types::targetStandard::standard;
    return isNamed ? standard.value.standard : "";
}

void takeTarget(ModeFigures& figures, const ColorModeSettingsObject& setting) {
    if (const TargetSetting* const target = targetOf(setting)) {
        takeTarget(figures, *target);
    } else if (const ParameterSetting* const parameters = parametersOf(setting)) {
        takeParameters(figures, *parameters);
    }
}

}  // namespace lv::analysis
