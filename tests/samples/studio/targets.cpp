#include <tests/samples/studio/targets.h>

#include <cmath>
#include <vector>

namespace studio {
namespace {

using Gamma = lv::TargetSetting::gamma_t;
using Gamut = lv::TargetSetting::gamut_t;

lv::colour chromaticity(double x, double y) {
    lv::colour result;
    result.x = x;
    result.y = y;
    return result;
}

lv::TargetSetting::white_point_t whitePoint(const ColourMode& mode) {
    lv::TargetSetting::white_point_t result;
    result.type = "Coordinate";
    result.coordinate_x(chromaticity(mode.whiteX, mode.whiteY));
    return result;
}

/// The curve as a table of 16 bits.
std::vector<double> lightTable(ToneCurve curve) {
    constexpr int entries = 33;
    std::vector<double> table;
    table.reserve(entries);
    for (int index = 0; index < entries; ++index) {
        table.push_back(lightOfGrey(curve, index / (entries - 1.0)));
    }
    return table;
}

Gamma::gamma_color channelCurve(ToneCurve curve) {
    Gamma::gamma_color channel;
    switch (curve) {
    case ToneCurve::gamma:
        channel.type = "Formula";
        channel.formula_x(photoGamma);
        break;
    case ToneCurve::lightness:
        channel.type = "Lut";
        channel.lut_x(lightTable(curve));
        break;
    case ToneCurve::hlg:
        channel.type = "HLG";
        break;
    }
    return channel;
}

Gamma gamma(ToneCurve curve) {
    Gamma result;
    result.red = channelCurve(curve);
    result.green = result.red;
    result.blue = result.red;
    if (curve == ToneCurve::hlg) {
        result.pqhlgClipping = "Soft";
        result.hlgSystemGamma_x(hlgSystemGamma);
    }
    if (curve == ToneCurve::lightness) {
        result.importedLutFile.fileName_x("lightness-33.lut");
    }
    return result;
}

/// The primaries of ITU-R BT.2100 (table 2) for what is broadcast, otherwise the panel's own.
Gamut gamut(ToneCurve curve) {
    Gamut result;
    if (curve == ToneCurve::hlg) {
        result.red_x(chromaticity(0.708, 0.292));
        result.green_x(chromaticity(0.170, 0.797));
        result.blue_x(chromaticity(0.131, 0.046));
        result.gamutClipping = 1;
    }
    return result;
}

/// Small corrections that bring the proof to the printed sheet.
lv::TargetSetting::advanced_settings_t corrections() {
    lv::TargetSetting::advanced_settings_t settings;
    settings.hue.set(0);
    settings.saturation.set(-2);
    settings.blackLevel.set({1, 0, -1});
    settings.sixColorsHue.set({0, 1, -2, 0, 1, 0});
    settings.sixColorsSaturation.set({-1, -3, 0, 0, 2, -1});
    settings.sixColorsLightness.set({0, 0, 1, -1, 0, 0});
    return settings;
}

}  // namespace

lv::TargetSetting targetSetting(const ColourMode& mode) {
    lv::TargetSetting target;
    target.lumivaleVersion.set("7.2.0");
    target.fineContrast.set("Off");
    target.brightness.set({"Value", static_cast<unsigned int>(std::lround(mode.luminance))});
    target.blackLevel.set({"Minimum", 0});
    target.whitePoint.set(whitePoint(mode));
    target.whitePointV7.set({"Standard", mode.whiteStandard});
    target.gamma.set(gamma(mode.curve));
    target.gammaV7.set({"Standard", mode.curveStandard});
    target.gamut.set(gamut(mode.curve));
    target.gamutV7.set({"Standard", mode.gamutStandard});
    target.grayBalance.set(1);
    target.creationType.set("Manual");
    target.advancedSettings = {corrections(), mode.curve == ToneCurve::lightness};
    target.optimizeForLimited109.set(mode.curve == ToneCurve::hlg ? "On" : "Off");
    return target;
}

}  // namespace studio
