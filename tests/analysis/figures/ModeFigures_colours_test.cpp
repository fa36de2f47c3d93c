#include <tests/analysis/figures/ModeFigures_series.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::analysis::GamutFigures;
using lv::analysis::ModeFigures;
using lv::analysis::SixColours;
using lv::test::measuredResult;
using lv::test::resultOf;
using lv::test::settingOf;
using testing::ElementsAre;
namespace types = lv::types;

ModeFigures figuresOf(const ColorModeSettingsObject& setting, const CalibrationModeResultObject& result) {
    return lv::test::figuresOf(setting, result, {});
}

/// Primaries of sRGB, each with a sum of X, Y and Z of 100, and a white near D65.
CalibrationModeResultObject sRGBResult(const std::vector<double>& white = {95.047, 100, 108.883}) {
    return measuredResult({{64, 33, 3}, {30, 60, 10}, {15, 6, 79}, white, {0.1, 0.1, 0.1}});
}

ColorModeSettingsObject settingWithGamut(const std::string& name) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::standard);
    setting.parameterSetting.value.gamut.value = {types::gamut::fixed, name, 0};
    return setting;
}

ColorModeSettingsObject settingWithWhite(const std::string& name) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::standard);
    setting.parameterSetting.value.whitePoint.value = {types::whitePoint::fixed, 0, name};
    return setting;
}

std::string deltaOfRed(const ColorModeSettingsObject& setting) {
    return figuresOf(setting, sRGBResult()).primaries[0].deltaUV.text(4);
}

}  // namespace

// White.

TEST(WhiteFigures, TakeAStandardWhereTheTargetHasNoXAndY) {
    EXPECT_EQ(aimedWhite(figuresOf(settingWithWhite("D65"), sRGBResult()))->x, 0.3127);
    EXPECT_FALSE(figuresOf(settingWithWhite("D65"), sRGBResult()).targetChromaticity);
    EXPECT_FALSE(aimedWhite(figuresOf(settingWithWhite("Paper"), sRGBResult())));
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    setting.targetSetting.value.whitePointV7.set({types::targetStandard::standard, "D65"});
    setting.targetSetting.value.whitePoint.set({types::targetWhitePoint::temperature, 5000, 0, 0});
    EXPECT_EQ(aimedWhite(figuresOf(setting, sRGBResult()))->y, 0.3290);
    setting.targetSetting.value.whitePoint.set({types::targetWhitePoint::coordinate, 0, 3457, 3585});
    EXPECT_EQ(aimedWhite(figuresOf(setting, sRGBResult()))->y, 0.3585);
}

TEST(WhiteFigures, HaveTheTemperatureOfTheMeasuredWhite) {
    const ModeFigures mode = figuresOf(settingWithWhite("D65"), sRGBResult());
    EXPECT_NEAR(*mode.temperature.value, 6504, 5);  // D65
    EXPECT_NEAR(*mode.duv.value, 0.0032, 0.0001);
    EXPECT_EQ(figuresOf(settingWithWhite("D65"), sRGBResult({1, 100, 1})).temperature.text(0),
              "n/a (not within 0.05 of the Planckian locus from 1000 K to 100,000 K)");
    EXPECT_EQ(figuresOf(settingWithWhite("D65"), sRGBResult({24, 23, 53})).duv.text(4),  // bluer than any radiator
              "n/a (not within 0.05 of the Planckian locus from 1000 K to 100,000 K)");
    EXPECT_EQ(figuresOf(settingWithWhite("D65"), sRGBResult({0, 0, 0})).duv.text(0),
              "n/a (X, Y and Z of the white are 0)");
}

TEST(WhiteFigures, HaveTheColourDifferenceAtTheMeasuredY) {
    // The white of D65 at any Y is no colour difference: X = 0.3127 / 0.3290 Y, Z = 0.3583 / 0.3290 Y.
    const auto same = figuresOf(settingWithWhite("D65"), sRGBResult({0.3127 * 50, 0.3290 * 50, 0.3583 * 50}));
    EXPECT_EQ(same.deltaE2000.text(4), "0.0000");
    EXPECT_EQ(figuresOf(settingWithWhite("Paper"), sRGBResult()).deltaE2000.text(2), "n/a (the target has no x and y)");
    EXPECT_EQ(figuresOf(settingWithWhite("D65"), sRGBResult({1, 0, 1})).deltaE2000.text(2), "n/a (white has Y 0)");
    // L* of both is 100. a* = 500 (1.1^(1/3) - 1) = 16.140, b* = 0: of the formula only chroma counts, C' = 1.5 a* / 2
    // of both less than 7 on the mean: G = 0.5 (1 - root of (C^7 / (C^7 + 25^7))) with C = 8.070 is 0.4907, C' = 24.06,
    // S_C = 1 + 0.045 * 12.03; 24.06 / 1.5414 = 15.61.
    const auto pink = figuresOf(settingWithWhite("D65"), sRGBResult({0.3127 * 110, 0.3290 * 100, 0.3583 * 100}));
    EXPECT_NEAR(*pink.deltaE2000.value, 15.61, 0.02);
}

TEST(WhiteFigures, HaveTheBrightnessWhereItIsANumber) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::standard);
    setting.parameterSetting.value.brightness.value = {types::brightness::candela, 140};
    EXPECT_EQ(figuresOf(setting, sRGBResult()).targetY.text(0), "140");
    setting.parameterSetting.value.brightness.value = {types::brightness::percent, 80};
    EXPECT_EQ(figuresOf(setting, sRGBResult()).targetY.text(0), "n/a (the target has no number for it)");
    setting = settingOf(types::colorMode::calibration);
    EXPECT_EQ(figuresOf(setting, sRGBResult()).targetY.text(0), "n/a (the target has no number for it)");
    setting.targetSetting.value.brightness.set({types::targetLevel::value, 120});
    EXPECT_EQ(figuresOf(setting, sRGBResult()).targetY.text(0), "120");
    setting.targetSetting.value.brightness.value.type = "Maximum";
    EXPECT_FALSE(figuresOf(setting, sRGBResult()).targetY.value);
}

// Primaries and gamuts.

TEST(PrimaryFigures, AreThoseOfAStandard) {
    const ModeFigures mode = figuresOf(settingWithGamut("sRGB"), sRGBResult());
    EXPECT_DOUBLE_EQ(mode.primaries[0].measured->x, 0.64);
    EXPECT_DOUBLE_EQ(mode.primaries[1].measured->y, 0.60);
    EXPECT_DOUBLE_EQ(mode.primaries[2].measured->x, 0.15);
    EXPECT_EQ(mode.primaries[0].target->x, 0.64);
    for (const auto& primary : mode.primaries) {
        EXPECT_EQ(primary.deltaUV.text(6), "0.000000");
    }
}

TEST(PrimaryFigures, HaveADistanceInTheUniformDiagram) {
    // By hand, CIE 15: green of sRGB is u' 1.2 / 9.6 = 0.125, v' 5.4 / 9.6 = 0.5625; green of BT.2020 is
    // u' 0.68 / 12.224 = 0.055628, v' 7.173 / 12.224 = 0.586797.
    EXPECT_EQ(figuresOf(settingWithGamut("BT.2020"), sRGBResult()).primaries[1].deltaUV.text(5), "0.07350");
}

TEST(PrimaryFigures, AreGivenByXAndYBeforeAName) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    EXPECT_EQ(deltaOfRed(setting), "n/a (the target has no gamut)");
    setting.targetSetting.value.gamutV7.set({types::targetStandard::standard, "sRGB"});
    EXPECT_EQ(deltaOfRed(setting), "0.0000");
    setting.targetSetting.value.gamut.set({{7080, 2920}, {1700, 7970}, {1310, 460}, "", 0});
    EXPECT_EQ(figuresOf(setting, sRGBResult()).primaries[0].target->x, 0.708);
    setting.targetSetting.value.gamut.value.red.x = 0;  // the panel's own
    EXPECT_EQ(deltaOfRed(setting), "0.0000");
    setting.targetSetting.value.gamutV7.value.standard = "Native";
    EXPECT_EQ(deltaOfRed(setting), "n/a (the target is the monitor's own gamut)");
    setting.targetSetting.value.gamut.hasValue = false;
    EXPECT_EQ(deltaOfRed(setting), "n/a (the primaries of the target's gamut are not known)");
}

TEST(PrimaryFigures, SayWhatIsMissing) {
    EXPECT_EQ(figuresOf(settingWithGamut("sRGB"), resultOf(1)).primaries[0].deltaUV.text(2),
              "n/a (no primaries were measured)");
    EXPECT_EQ(lv::test::figuresOf({settingWithGamut("sRGB")}, {}).at(0).primaries[0].deltaUV.text(2),
              "n/a (no calibration result)");
    EXPECT_EQ(lv::test::figuresOf({}, {sRGBResult()}).at(0).primaries[0].deltaUV.text(2),
              "n/a (the mode has no settings)");
}

TEST(GamutFigures, CompareWithEachSpace) {
    const std::vector<GamutFigures> gamuts = figuresOf(settingWithGamut(""), sRGBResult()).gamuts;
    ASSERT_EQ(gamuts.size(), 4U);
    EXPECT_EQ(gamuts[0].space, "sRGB");
    EXPECT_NEAR(*gamuts[0].coverageXY.value, 1, 1e-9);
    EXPECT_NEAR(*gamuts[0].areaUV.value, 1, 1e-9);
    EXPECT_EQ(gamuts[3].space, "BT.2020");
    // Areas of the triangles in x and y by the cross product: 0.11205 of sRGB, 0.2118665 of BT.2020.
    EXPECT_NEAR(*gamuts[3].areaXY.value, 0.11205 / 0.2118665, 1e-6);
    EXPECT_NEAR(*gamuts[3].coverageXY.value, 0.11205 / 0.2118665, 1e-6);
}

TEST(GamutFigures, NeedATriangle) {
    const auto line = measuredResult({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {3, 3, 3}, {0, 0, 0}});
    EXPECT_EQ(figuresOf(settingWithGamut(""), line).gamuts.at(2).coverageUV.text(1),
              "n/a (the measured primaries form no triangle)");
    const auto dark = measuredResult({{0, 0, 0}, {1, 1, 1}, {1, 1, 1}, {3, 3, 3}, {0, 0, 0}});
    EXPECT_EQ(figuresOf(settingWithGamut(""), dark).gamuts.at(2).areaXY.text(1), "n/a (no primaries were measured)");
}

// What the monitor was set to, and who measured.

TEST(SixColourFigures, AreThoseThatAreSet) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    CalibrationModeResultObject result = resultOf(1);
    result.monitorParameter.hue.set({1, 2, 3, 4, 5, 6});  // red, green, blue, cyan, magenta, yellow
    EXPECT_TRUE(figuresOf(setting, result).sixColours.empty());
    result.hasMonitorParameter = true;
    auto& settings = setting.targetSetting.value.advancedSettings;
    settings.value.sixColorsLightness.set({-1, -2, -3, -4, -5, -6});
    EXPECT_EQ(figuresOf(setting, result).sixColours.size(), 1U);
    settings.hasValue = true;
    const std::vector<SixColours> colours = figuresOf(setting, result).sixColours;
    ASSERT_EQ(colours.size(), 2U);
    EXPECT_EQ(colours[0].name, "Hue");
    EXPECT_EQ(colours[0].place, "monitor");
    EXPECT_THAT(colours[0].values, ElementsAre(1, 6, 2, 4, 3, 5));
    EXPECT_EQ(colours[1].name, "Lightness");
    EXPECT_EQ(colours[1].place, "target");
    EXPECT_THAT(colours[1].values, ElementsAre(-1, -6, -2, -4, -3, -5));
}

TEST(TableFigures, AreThoseThatAreSet) {
    CalibrationModeResultObject result = resultOf(1);
    result.hasMonitorParameter = true;
    result.monitorParameter.redLUT.set({0, 500000, 1000000});
    result.monitorParameter.greenLUT.value = {1};
    ModeFigures mode = figuresOf(settingOf(""), result);
    EXPECT_THAT(mode.tables[0], ElementsAre(0, 0.5, 1));
    EXPECT_TRUE(mode.tables[1].empty());
    result.hasMonitorParameter = false;
    EXPECT_TRUE(figuresOf(settingOf(""), result).tables[0].empty());
}

TEST(MeasuredByFigures, AreTheTextsThatAreSet) {
    CalibrationModeResultObject result = resultOf(1);
    result.basicData.colorSensorName.set("Sensor");
    result.basicData.usageHours.set(1204);
    result.basicData.software.value = "not set";
    EXPECT_EQ(figuresOf(settingOf(""), result).measuredBy.sensorName, "");
    result.hasBasicData = true;
    EXPECT_EQ(figuresOf(settingOf(""), result).measuredBy.sensorName, "Sensor");
    EXPECT_EQ(figuresOf(settingOf(""), result).measuredBy.usageHours, "1204");
    EXPECT_EQ(figuresOf(settingOf(""), result).measuredBy.software, "");
}
