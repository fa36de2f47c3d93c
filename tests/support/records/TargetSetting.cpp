#include <tests/support/samples.h>
#include <tests/support/six_colours.h>

namespace lv::test {
namespace {

using Settings = TargetSetting::advanced_settings_t;

TargetSetting::gamma_t filledGamma() {
    TargetSetting::gamma_t gamma;
    gamma.red = {"Lut", 221, {1, 22, 333}, {4444, 55555}};
    gamma.green = {"Lut24", 222, {6, 77}, {888, 9999, 16777215}};
    gamma.blue = {"Formula", 223, {11}, {12, 13}};
    gamma.pqhlgClipping = "Clip 1";
    gamma.hlgSystemGamma = 126;
    gamma.importedLutFile = {"curve2.txt"};
    return gamma;
}

Settings filledSettings() {
    Settings settings;
    settings.hue.set(-31);
    settings.saturation.set(32);
    settings.blackLevel.set({33, -34, 35});
    settings.sixColorsHue.set({1, -2, 3, -4, 5, -6});
    settings.sixColorsSaturation.set({-11, 12, -13, 14, -15, 16});
    settings.sixColorsLightness.set({21, -22, 23, -24, 25, -26});
    return settings;
}

}  // namespace

void describe(Description& out, const TargetSetting::level_t& level) {
    out.member("type", level.type);
    out.member("value", level.value);
}

void describe(Description& out, const TargetSetting::standard_t& named) {
    out.member("type", named.type);
    out.member("standard", named.standard);
}

void describe(Description& out, const TargetSetting::white_point_t& whitePoint) {
    out.member("type", whitePoint.type);
    out.member("temperature", whitePoint.temperature);
    out.member("x", whitePoint.x);
    out.member("y", whitePoint.y);
}

void describe(Description& out, const TargetSetting::gamma_t::gamma_color& color) {
    out.member("type", color.type);
    out.member("formula", color.formula);
    out.member("lut", color.lut);
    out.member("lut24", color.lut24);
}

void describe(Description& out, const TargetSetting::gamma_t& gamma) {
    out.member("red", gamma.red);
    out.member("green", gamma.green);
    out.member("blue", gamma.blue);
    out.member("pqhlgClipping", gamma.pqhlgClipping);
    out.member("hlgSystemGamma", gamma.hlgSystemGamma);
    out.member("importedLutFile.fileName", gamma.importedLutFile.fileName);
}

void describe(Description& out, const TargetSetting::gamut_t::coordinate& primary) {
    out.member("x", primary.x);
    out.member("y", primary.y);
}

void describe(Description& out, const TargetSetting::gamut_t& gamut) {
    out.member("red", gamut.red);
    out.member("green", gamut.green);
    out.member("blue", gamut.blue);
    out.member("profileName", gamut.profileName);
    out.member("gamutClipping", gamut.gamutClipping);
}

void describe(Description& out, const TargetSetting::black_level_t& tint) {
    out.member("red", tint.red);
    out.member("green", tint.green);
    out.member("blue", tint.blue);
}

void describe(Description& out, const Settings::advanced_settings_six_colors_t& colours) {
    describeSixColours(out, colours);
}

void describe(Description& out, const Settings& settings) {
    out.member("hue", settings.hue);
    out.member("saturation", settings.saturation);
    out.member("blackLevel", settings.blackLevel);
    out.member("sixColorsHue", settings.sixColorsHue);
    out.member("sixColorsSaturation", settings.sixColorsSaturation);
    out.member("sixColorsLightness", settings.sixColorsLightness);
}

void describe(Description& out, const TargetSetting& record) {
    describeBase(out, record);
    out.member("lumivaleVersion", record.lumivaleVersion);
    out.member("fineContrast", record.fineContrast);
    out.member("brightness", record.brightness);
    out.member("blackLevel", record.blackLevel);
    out.member("whitePoint", record.whitePoint);
    out.member("whitePointV7", record.whitePointV7);
    out.member("gamma", record.gamma);
    out.member("gammaV7", record.gammaV7);
    out.member("gamut", record.gamut);
    out.member("gamutV7", record.gamutV7);
    out.member("grayBalance", record.grayBalance);
    out.member("creationType", record.creationType);
    out.member("advancedSettings", record.advancedSettings);
    out.member("optimizeForLimited109", record.optimizeForLimited109);
}

template <>
TargetSetting filled<TargetSetting>() {
    TargetSetting record;
    fillBase(record);
    record.lumivaleVersion.set("7.1.2");
    record.fineContrast.set("Contrast 1");
    record.brightness.set({"Value", 123});
    record.blackLevel.set({"Value", 24});
    record.whitePoint.set({"Coordinate", 6503, 3127, 3291});
    record.whitePointV7.set({"Standard", "White 65"});
    record.gamma.set(filledGamma());
    record.gammaV7.set({"Standard", "Curve 24"});
    record.gamut.set({{6401, 3302}, {3003, 6004}, {1505, 606}, "Profile 3", 45});
    record.gamutV7.set({"Standard", "Gamut 709"});
    record.grayBalance.set(3);
    record.creationType.set("Creation 4");
    record.advancedSettings.set(filledSettings());
    record.optimizeForLimited109.set("Limited 109");
    return record;
}

template <>
TargetSetting filledAndParsedBack<TargetSetting>() {
    auto record = filled<TargetSetting>();
    record.writeHLGSystemGamma = false;
    record.whitePoint.value.temperature = 0;
    auto& gamma = record.gamma.value;
    gamma.red = {gamma.red.type, 0, gamma.red.lut, {}};
    gamma.green = {gamma.green.type, 0, {}, gamma.green.lut24};
    gamma.blue = {gamma.blue.type, gamma.blue.formula, {}, {}};
    gamma.pqhlgClipping = "";
    return record;
}

template <>
std::string filledAfterEmptyRoot<TargetSetting>() {
    auto record = filled<TargetSetting>();
    auto& settings = record.advancedSettings.value;
    settings.hue.hasValue = false;
    settings.saturation.hasValue = false;
    settings.blackLevel.hasValue = false;
    settings.sixColorsHue.hasValue = false;
    settings.sixColorsSaturation.hasValue = false;
    settings.sixColorsLightness.hasValue = false;
    return withClearFlags(describe(record));
}

}  // namespace lv::test
