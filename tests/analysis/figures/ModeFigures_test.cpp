#include <lvdata/analysis/figures/ModeFigures.h>

#include <tests/analysis/figures/ModeFigures_rows.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::ParameterSetting;
using lv::TargetSetting;
using lv::analysis::Figure;
using lv::analysis::ModeFigures;
using lv::test::figuresOf;
using lv::test::resultOf;
using lv::test::settingOf;
using lv::test::settingWithCoordinate;
using lv::test::whiteD65;
using testing::ElementsAre;
namespace types = lv::types;

ModeFigures figuresOf(const TargetSetting& target) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    setting.targetSetting.set(target);
    return figuresOf({setting}, {}).at(0);
}

ModeFigures figuresOf(const ParameterSetting& parameters, const std::string& type = types::colorMode::standard) {
    ColorModeSettingsObject setting = settingOf(type);
    setting.parameterSetting.set(parameters);
    return figuresOf({setting}, {}).at(0);
}

std::vector<std::string> namesOf(const std::vector<ModeFigures>& modes) {
    std::vector<std::string> names;
    for (const ModeFigures& mode : modes) {
        names.push_back(mode.index + ' ' + mode.name + ' ' + mode.calibratedTime);
    }
    return names;
}

std::string gammaOf(const std::string& red, const std::string& green, const std::string& blue) {
    TargetSetting target;
    TargetSetting::gamma_t gamma;
    gamma.red = {red, 220, {}, {}};
    gamma.green = {green, 240, {}, {}};
    gamma.blue = {blue, 180, {}, {}};
    target.gamma.set(gamma);
    return figuresOf(target).targetGamma;
}

}  // namespace

TEST(Figure, IsANumberOrSaysWhyThereIsNone) {
    EXPECT_EQ((Figure{0.00004, ""}.text(4)), "0.0000");
    EXPECT_EQ((Figure{1234.5678, ""}.text(2)), "1234.57");
    EXPECT_EQ((Figure{{}, "no black"}.text(2)), "n/a (no black)");
}

TEST(ModeFigures, AreEmptyWithoutRecords) {
    EXPECT_TRUE(figuresOf(std::vector<ColorModeSettingsObject>(), {}).empty());
}

TEST(ModeFigures, SayThatAModeHasNoResult) {
    const ModeFigures mode = figuresOf({settingWithCoordinate()}, {}).at(0);
    EXPECT_EQ(mode.measuredY.text(2), "n/a (no calibration result)");
    EXPECT_EQ(mode.blackY.text(2), "n/a (no calibration result)");
    EXPECT_EQ(mode.contrast.text(2), "n/a (no calibration result)");
    EXPECT_EQ(mode.deltaUV.text(2), "n/a (no calibration result)");
    EXPECT_FALSE(mode.measuredWhite);
    EXPECT_FALSE(mode.measuredChromaticity);
    EXPECT_EQ(mode.measurements, 0U);
}

TEST(ModeFigures, HaveWhatIdentifiesTheMode) {
    const ModeFigures mode = figuresOf({settingOf("Other", 7, "Photo")}, {}).at(0);
    EXPECT_EQ(mode.index, "7");
    EXPECT_EQ(mode.name, "Photo");
    EXPECT_EQ(mode.type, "Other");
}

TEST(ModeFigures, TakeNoValueWhoseFlagIsClear) {
    ColorModeSettingsObject setting = settingOf("Standard", 7, "Photo");
    setting.index.hasValue = setting.name.hasValue = false;
    CalibrationModeResultObject result = resultOf(8, "Proof");
    result.index.hasValue = result.name.hasValue = false;
    result.calibratedTime.value = "2024";
    result.basicData.justCalibratedWhite.set(whiteD65);
    result.measurementData.objects.resize(3);
    result.profileData.measuredXYZ.set({{}, {}, {}, whiteD65, whiteD65});
    const auto modes = figuresOf({setting}, {result});
    EXPECT_THAT(namesOf(modes), ElementsAre("  ", "  "));
    EXPECT_FALSE(modes.at(1).measuredWhite);
    EXPECT_EQ(modes.at(1).measurements, 0U);
    EXPECT_EQ(modes.at(1).contrast.text(0), "n/a (no complete set of MeasuredXYZ)");
}

// Which setting and which result belong together.

TEST(ModeFigures, JoinSettingsAndResultsByTheirIndex) {
    CalibrationModeResultObject first = resultOf(2, "ignored");
    first.calibratedTime.set("later");
    const auto modes = figuresOf({settingOf("Standard", 1, "a"), settingOf("Calibration", 2, "b")}, {first});
    EXPECT_THAT(namesOf(modes), ElementsAre("1 a ", "2 b later"));
    EXPECT_EQ(modes.at(0).measuredY.text(0), "n/a (no calibration result)");
    EXPECT_EQ(modes.at(1).measuredY.text(0), "n/a (no white was measured)");
}

TEST(ModeFigures, ListResultsWithoutSettingsLast) {
    const auto modes = figuresOf({settingOf("Standard", 2, "a")}, {resultOf(1, "b")});
    EXPECT_THAT(namesOf(modes), ElementsAre("2 a ", "1 b "));
    EXPECT_EQ(modes.at(1).type, "Calibration");
    EXPECT_EQ(modes.at(1).targetBrightness, "");
}

TEST(ModeFigures, JoinRowsOfOneIndexInTheirOrder) {
    std::vector<CalibrationModeResultObject> results{resultOf(1), resultOf(1), resultOf(1, "c")};
    results[0].calibratedTime.set("first");
    results[1].calibratedTime.set("second");
    results[2].calibratedTime.set("third");
    const auto modes = figuresOf({settingOf("", 1, "a"), settingOf("", 1, "b")}, results);
    EXPECT_THAT(namesOf(modes), ElementsAre("1 a first", "1 b second", "1 c third"));
}

TEST(ModeFigures, DoNotJoinRowsWithoutAnIndex) {
    ColorModeSettingsObject setting = settingOf("", 1, "a");
    CalibrationModeResultObject result = resultOf(1, "b");
    setting.index = result.index = {};
    EXPECT_THAT(namesOf(figuresOf({setting}, {result})), ElementsAre(" a ", " b "));
}

// Targets of calibrations.

TEST(ModeFigures, HaveNoTextsForAnEmptyTarget) {
    const ModeFigures mode = figuresOf(TargetSetting());
    EXPECT_EQ(mode.targetBrightness + mode.targetBlack + mode.targetWhite + mode.targetWhiteStandard +
                  mode.targetGamma + mode.targetGamut,
              "");
    EXPECT_FALSE(mode.targetChromaticity);
}

TEST(ModeFigures, HaveLevelsWithoutAUnit) {
    TargetSetting target;
    target.brightness.set({types::targetLevel::value, 120});
    target.blackLevel.set({"Minimum", 3});
    EXPECT_EQ(figuresOf(target).targetBrightness, "120");
    EXPECT_EQ(figuresOf(target).targetBlack, "Minimum");
}

TEST(ModeFigures, HaveATargetWhiteByCoordinates) {
    const ModeFigures mode = figuresOf({settingWithCoordinate()}, {}).at(0);
    EXPECT_EQ(mode.targetWhite, "x 0.3127 y 0.3290");
    ASSERT_TRUE(mode.targetChromaticity);
    EXPECT_DOUBLE_EQ(mode.targetChromaticity->x, 0.3127);
    EXPECT_DOUBLE_EQ(mode.targetChromaticity->y, 0.3290);
}

TEST(ModeFigures, HaveATargetWhiteByTemperatureWithoutAUnit) {
    TargetSetting target;
    target.whitePoint.set({types::targetWhitePoint::temperature, 6500, 3127, 3290});
    EXPECT_EQ(figuresOf(target).targetWhite, "Temperature 6500");
    EXPECT_FALSE(figuresOf(target).targetChromaticity);
}

TEST(ModeFigures, HaveATargetWhiteOfAnotherType) {
    TargetSetting target;
    target.whitePoint.set({"Paper", 6500, 3127, 3290});
    EXPECT_EQ(figuresOf(target).targetWhite, "Paper");
    EXPECT_FALSE(figuresOf(target).targetChromaticity);
}

TEST(ModeFigures, HaveTheNamesOfStandards) {
    TargetSetting target;
    target.gamma.set({});
    target.gamut.set({});
    target.whitePointV7.set({types::targetStandard::standard, "D65"});
    target.gammaV7.set({types::targetStandard::standard, "BT.1886"});
    target.gamutV7.set({types::targetStandard::standard, "BT.2020"});
    const ModeFigures mode = figuresOf(target);
    EXPECT_EQ(mode.targetWhite, "");
    EXPECT_EQ(mode.targetWhiteStandard, "D65");
    EXPECT_EQ(mode.targetGamma, "BT.1886");
    EXPECT_EQ(mode.targetGamut, "BT.2020");
}

TEST(ModeFigures, TakeTheOlderFormWhereNoStandardIsNamed) {
    TargetSetting target;
    TargetSetting::gamma_t gamma;
    gamma.red = gamma.green = gamma.blue = {types::targetCurve::formula, 220, {}, {}};
    target.gamma.set(gamma);
    target.gamut.set({});
    target.gammaV7.set({"Custom", "BT.1886"});
    target.gamutV7.set({types::targetStandard::standard, ""});
    EXPECT_EQ(figuresOf(target).targetGamma, "2.2");
    EXPECT_EQ(figuresOf(target).targetGamut, "native");
}

TEST(ModeFigures, HaveOneGammaForEqualCurves) {
    for (const auto& [type, text] : std::vector<std::pair<std::string, std::string>>{
             {types::targetCurve::lut, "table"},
             {types::targetCurve::lut24, "table"},
             {types::targetCurve::pq, "PQ"},
             {types::targetCurve::hlg, "HLG"},
             {"Other", "Other"},
             {"", ""},
         }) {
        EXPECT_EQ(gammaOf(type, type, type), text);
    }
}

TEST(ModeFigures, HaveThreeGammasForDifferentCurves) {
    EXPECT_EQ(gammaOf("Formula", "Formula", "Formula"), "2.2, 2.4, 1.8");
    EXPECT_EQ(gammaOf("Formula", "Lut24", "HLG"), "2.2, table, HLG");
    EXPECT_EQ(gammaOf("PQ", "PQ", ""), "PQ, PQ, -");
    EXPECT_EQ(gammaOf("PQ", "HLG", "HLG"), "PQ, HLG, HLG");
}

TEST(ModeFigures, HaveAnExponentWithoutNeedlessZeros) {
    const auto exponent = [](unsigned int stored) {
        ParameterSetting parameters;
        parameters.gamma.value.type = types::gamma::value;
        parameters.gamma.value.value = stored;
        return figuresOf(parameters).targetGamma;
    };
    EXPECT_EQ(exponent(0), "0");
    EXPECT_EQ(exponent(5), "0.05");
    EXPECT_EQ(exponent(240), "2.4");
    EXPECT_EQ(exponent(1000), "10");
    EXPECT_EQ(exponent(4294967295), "42949672.95");
}

TEST(ModeFigures, DistinguishPrimariesFromTheNativeGamut) {
    TargetSetting target;
    target.gamut.set({{6400, 3300}, {3000, 6000}, {1500, 600}, "", 0});
    EXPECT_EQ(figuresOf(target).targetGamut, "primaries");
    target.gamut.value.blue.y = 0;
    EXPECT_EQ(figuresOf(target).targetGamut, "native");
}

// Parameters of modes that are not calibrated.

TEST(ModeFigures, HaveABrightnessWithTheUnitThatTheRecordSays) {
    ParameterSetting parameters;
    parameters.brightness.set({types::brightness::candela, 140});
    EXPECT_EQ(figuresOf(parameters).targetBrightness, "140 candela");
    parameters.brightness.set({types::brightness::percent, 80});
    EXPECT_EQ(figuresOf(parameters).targetBrightness, "80 %");
    parameters.brightness.set({types::brightness::syncSignal, 80});
    EXPECT_EQ(figuresOf(parameters).targetBrightness, "SyncSignal");
}

TEST(ModeFigures, HaveParametersByName) {
    ParameterSetting parameters;
    parameters.whitePoint.set({types::whitePoint::fixed, 6500, "D50"});
    parameters.gamma.value.type = types::gamma::fixed;
    parameters.gamma.value.fixed = types::fixedGamma::pq;
    parameters.gamut.set({types::gamut::fixed, "sRGB", 0});
    const ModeFigures mode = figuresOf(parameters);
    EXPECT_EQ(mode.targetWhite, "D50");
    EXPECT_EQ(mode.targetGamma, "PQ");
    EXPECT_EQ(mode.targetGamut, "sRGB");
}

TEST(ModeFigures, HaveParametersThatFollowTheSignal) {
    ParameterSetting parameters;
    parameters.whitePoint.set({types::whitePoint::temperature, 5000, "D50"});
    parameters.gamma.value.type = types::gamma::syncSignal;
    parameters.gamut.set({types::gamut::syncSignal, "sRGB", 0});
    const ModeFigures mode = figuresOf(parameters, types::colorMode::syncSignal);
    EXPECT_EQ(mode.targetWhite, "Temperature 5000");
    EXPECT_EQ(mode.targetGamma, "SyncSignal");
    EXPECT_EQ(mode.targetGamut, "SyncSignal");
}

TEST(ModeFigures, HaveNoTargetForAnUnknownType) {
    ParameterSetting parameters;
    parameters.brightness.set({types::brightness::candela, 140});
    EXPECT_EQ(figuresOf(parameters, "Other").targetBrightness, "");
    EXPECT_EQ(figuresOf(parameters, types::colorMode::calibration).targetBrightness, "");
}
