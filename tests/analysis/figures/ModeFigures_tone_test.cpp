#include <tests/analysis/figures/ModeFigures_series.h>

#include <string>

#include <gmock/gmock.h>

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::TargetSetting;
using lv::analysis::KnownUnits;
using lv::analysis::ModeFigures;
using lv::analysis::ToneFigures;
using lv::analysis::ToneStep;
using lv::test::addRow;
using lv::test::figuresOf;
using lv::test::measuredResult;
using lv::test::resultOf;
using lv::test::settingOf;
using testing::DoubleNear;
using testing::ElementsAre;
namespace types = lv::types;

/// A grey patch whose X, Y and Z are all the same.
void addGrey(CalibrationModeResultObject& result, unsigned int code, double Y) {
    addRow(result, {code, code, code}, {Y, Y, Y});
}

CalibrationModeResultObject greys(double black, double middle, double white) {
    CalibrationModeResultObject result = resultOf(1);
    addGrey(result, 255, white);
    addGrey(result, 0, black);
    addGrey(result, 51, middle);
    return result;
}

ToneFigures toneOf(const CalibrationModeResultObject& result, const ColorModeSettingsObject& setting,
                   const KnownUnits& known = {}) {
    return figuresOf(setting, result, known).tone;
}

ToneFigures toneOf(const CalibrationModeResultObject& result) {
    return toneOf(result, settingOf(types::colorMode::calibration));
}

TargetSetting::gamma_t gammaOf(const std::string& type, unsigned int red, unsigned int green, unsigned int blue) {
    TargetSetting::gamma_t gamma;
    gamma.red = {type, red, {}, {}};
    gamma.green = {type, green, {}, {}};
    gamma.blue = {type, blue, {}, {}};
    return gamma;
}

ColorModeSettingsObject settingWith(const TargetSetting::gamma_t& gamma) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    setting.targetSetting.value.gamma.set(gamma);
    return setting;
}

std::string curveOf(const ColorModeSettingsObject& setting, const CalibrationModeResultObject& result = resultOf(1)) {
    return toneOf(result, setting).targetCurve;
}

}  // namespace

TEST(ToneFigures, AreRelativeToBlackAndWhiteOfTheSeries) {
    const ToneFigures tone = toneOf(greys(10, 30, 110));
    ASSERT_EQ(tone.steps.size(), 3U);
    EXPECT_DOUBLE_EQ(tone.steps[0].signal, 0);
    EXPECT_DOUBLE_EQ(tone.steps[0].light, 0);
    EXPECT_DOUBLE_EQ(tone.steps[1].signal, 0.2);
    EXPECT_DOUBLE_EQ(tone.steps[1].light, 0.2);
    EXPECT_DOUBLE_EQ(tone.steps[2].light, 1);
    EXPECT_EQ(tone.steps[0].gamma.text(2), "n/a (black and white have no gamma)");
    EXPECT_EQ(tone.steps[1].gamma.text(4), "1.0000");
    EXPECT_EQ(tone.steps[2].gamma.text(2), "n/a (black and white have no gamma)");
    EXPECT_EQ(tone.meanGamma.text(4), "1.0000");
}

TEST(ToneFigures, HaveTheMeanOfPatchesOfOneCode) {
    CalibrationModeResultObject result = greys(0, 30, 100);
    addGrey(result, 51, 10);
    EXPECT_DOUBLE_EQ(toneOf(result).steps.at(1).light, 0.2);
}

TEST(ToneFigures, TakeWholeGreyPatchesAlone) {
    CalibrationModeResultObject result = greys(0, 20, 100);
    addRow(result, {100, 100, 101}, {1, 1, 1});
    addRow(result, {256, 256, 256}, {1, 1, 1});
    addRow(result, {100, 100}, {1, 1, 1});
    addRow(result, {100, 100, 100}, {1, 1});
    EXPECT_EQ(toneOf(result).steps.size(), 3U);
}

TEST(ToneFigures, HaveTheMeanGammaFrom10To90PerCent) {
    CalibrationModeResultObject result = greys(0, 4, 100);  // 0.2^2
    addGrey(result, 25, 90);                                // 9.8 %
    addGrey(result, 230, 10);                               // 90.2 %
    addGrey(result, 102, 6.4);                              // 0.4^3
    EXPECT_EQ(toneOf(result).meanGamma.text(4), "2.5000");
}

TEST(ToneFigures, NeedBlackAndWhite) {
    CalibrationModeResultObject result = resultOf(1);
    EXPECT_EQ(toneOf(result).meanGamma.text(2), "n/a (no measurements)");
    result.hasMeasurementData = true;
    EXPECT_EQ(toneOf(result).meanGamma.text(2), "n/a (no black patch, code 0, was measured)");
    addGrey(result, 0, 1);
    EXPECT_EQ(toneOf(result).meanGamma.text(2), "n/a (no white patch, code 255, was measured)");
    addGrey(result, 255, 1);
    EXPECT_EQ(toneOf(result).greatestDeviation.text(2), "n/a (the white patch is not brighter than the black patch)");
    addGrey(result, 255, 100);
    EXPECT_EQ(toneOf(result).meanGamma.text(2),
              "n/a (no grey patch from 10 % to 90 % of the signal is brighter than black)");
    EXPECT_TRUE(toneOf(greys(5, 5, 5)).steps.empty());
}

TEST(ToneFigures, HaveNoGammaForStepsThatAreNotBrighterThanBlack) {
    EXPECT_EQ(toneOf(greys(10, 10, 110)).steps.at(1).gamma.text(2), "n/a (not brighter than black)");
    EXPECT_EQ(toneOf(greys(10, 10, 110)).meanGamma.text(2),
              "n/a (no grey patch from 10 % to 90 % of the signal is brighter than black)");
    EXPECT_EQ(toneOf(greys(10, -50, 110)).steps.at(1).gamma.text(2), "n/a (not brighter than black)");
}

TEST(ToneFigures, HaveTheDistanceFromTheTarget) {
    const ToneFigures tone = toneOf(greys(0, 5, 100), settingWith(gammaOf("Formula", 200, 200, 200)));
    EXPECT_EQ(tone.targetCurve, "2");
    EXPECT_EQ(tone.targetGamma.text(2), "2.00");
    EXPECT_EQ(tone.steps.at(1).target.text(4), "0.0400");
    EXPECT_EQ(tone.greatestDeviation.text(4), "0.0100");
    EXPECT_EQ(toneOf(greys(0, 5, 100)).greatestDeviation.text(2), "n/a (the tone curve of the target is not known)");
}

TEST(ToneFigures, CompareGreyWithGreen) {
    const ToneFigures tone = toneOf(greys(0, 4, 100), settingWith(gammaOf("Formula", 100, 200, 300)));
    EXPECT_EQ(tone.targetCurve, "1, 2, 3 (grey against green's)");
    EXPECT_EQ(tone.greatestDeviation.text(4), "0.0000");
}

TEST(ToneFigures, TakeTheFirstTargetThatThereIs) {
    ColorModeSettingsObject setting = settingWith(gammaOf("Formula", 180, 180, 180));
    setting.targetSetting.value.gammaV7.set({"Standard", "sRGB"});
    EXPECT_EQ(curveOf(setting), "1.8");
    setting.targetSetting.value.gamma.value.green.type = "Other";
    EXPECT_EQ(curveOf(setting), "sRGB");
    setting.targetSetting.value.gammaV7.value.standard = "Other";
    EXPECT_EQ(curveOf(setting), "");
    CalibrationModeResultObject result = resultOf(1);
    result.hasProfileData = true;
    result.profileData.redTargetCurve.set({"LStar", 0, {}});
    result.profileData.greenTargetCurve.set({"LStar", 0, {}});
    EXPECT_EQ(curveOf(setting, result), "");
    result.profileData.blueTargetCurve.set({"LStar", 0, {}});
    EXPECT_EQ(curveOf(setting, result), "LStar");
    result.profileData.blueTargetCurve.set({"Formula", 2200000, {}});  // its meaning is not recorded
    EXPECT_EQ(curveOf(setting, result), "");
    result.profileData.blueTargetCurve.set({"Lut", 0, {0, 1000000}});
    EXPECT_EQ(curveOf(setting, result), "LStar, LStar, table (grey against green's)");
}

TEST(ToneFigures, HaveAnExponentOrANameForParameters) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::standard);
    setting.parameterSetting.value.gamma.value.type = types::gamma::value;
    setting.parameterSetting.value.gamma.value.value = 240;
    EXPECT_EQ(curveOf(setting), "2.4");
    setting.parameterSetting.value.gamma.value = {types::gamma::fixed, 0, "BT.1886", "", 0};
    EXPECT_EQ(curveOf(setting), "BT.1886");
    setting.parameterSetting.value.gamma.value.type = types::gamma::syncSignal;
    EXPECT_EQ(curveOf(setting), "");
}

TEST(ToneFigures, TakeTablesOfBothKinds) {
    TargetSetting::gamma_t gamma = gammaOf("Lut", 0, 0, 0);
    gamma.red.lut = gamma.green.lut = gamma.blue.lut = {0, 6553, 65535};
    EXPECT_EQ(toneOf(greys(0, 4, 100), settingWith(gamma)).steps.at(1).target.text(4), "0.0400");
    gamma = gammaOf("Lut24", 0, 0, 0);
    gamma.red.lut24 = gamma.green.lut24 = gamma.blue.lut24 = {0, 16777215};
    EXPECT_EQ(toneOf(greys(0, 4, 100), settingWith(gamma)).steps.at(1).target.text(4), "0.2000");
    gamma.green.lut24 = {1};
    EXPECT_EQ(curveOf(settingWith(gamma)), "");
}

TEST(ToneFigures, HaveNoTargetCurveWhenHLGIsMixedWithAnotherType) {
    TargetSetting::gamma_t gamma = gammaOf("HLG", 0, 0, 0);
    gamma.hlgSystemGamma = 120;
    EXPECT_EQ(curveOf(settingWith(gamma)), "HLG");
    gamma.blue.type = "PQ";
    EXPECT_EQ(curveOf(settingWith(gamma)), "");
}

TEST(ToneFigures, KnowTheUnitOfYFromTheUser) {
    const ColorModeSettingsObject setting = settingWith(gammaOf("PQ", 0, 0, 0));
    KnownUnits known;
    EXPECT_FALSE(toneOf(greys(0, 4, 100), setting, known).greatestDeviation.value);
    known.yUnit = "nt";
    EXPECT_FALSE(toneOf(greys(0, 4, 100), setting, known).greatestDeviation.value);
    known.yUnit = "cd/m²";
    EXPECT_TRUE(toneOf(greys(0, 4, 100), setting, known).greatestDeviation.value);
    known.yUnit = "cd/m2";
    EXPECT_TRUE(toneOf(greys(0, 4, 100), setting, known).greatestDeviation.value);
}

// Primaries that are X, Y and Z alone: then R, G and B are X, Y and Z over those of white.

TEST(ToneFigures, HaveTheBalanceOfTheMeasuredPrimaries) {
    CalibrationModeResultObject result = measuredResult({{2, 0, 0}, {0, 3, 0}, {0, 0, 4}, {20, 30, 40}, {0, 0, 0}});
    addRow(result, {0, 0, 0}, {0, 0, 0});
    addRow(result, {255, 255, 255}, {20, 30, 40});
    addRow(result, {128, 128, 128}, {2, 3, 4.4});  // 0.1, 0.1, 0.11
    addRow(result, {50, 50, 50}, {1, 3, 4});       // 19.6 % of the signal
    const ToneFigures tone = toneOf(result);
    EXPECT_FALSE(tone.steps.at(0).balance);
    EXPECT_THAT(*tone.steps.at(3).balance, ElementsAre(DoubleNear(1, 1e-9), DoubleNear(1, 1e-9), DoubleNear(1, 1e-9)));
    EXPECT_NEAR((*tone.steps.at(2).balance)[0], 0.1 / (0.31 / 3), 1e-9);
    EXPECT_NEAR((*tone.steps.at(2).balance)[2], 0.11 / (0.31 / 3), 1e-9);
    EXPECT_NEAR(*tone.greatestImbalance.value, 0.11 / (0.31 / 3) - 1, 1e-9);
}

TEST(ToneFigures, TakeTheBlackOffTheBalance) {
    CalibrationModeResultObject result = measuredResult({{3, 1, 1}, {1, 4, 1}, {1, 1, 5}, {21, 31, 41}, {1, 1, 1}});
    addRow(result, {0, 0, 0}, {1, 1, 1});
    addRow(result, {255, 255, 255}, {21, 31, 41});
    addRow(result, {128, 128, 128}, {3, 4, 5});  // 0.1, 0.1, 0.1 above black
    EXPECT_NEAR(*toneOf(result).greatestImbalance.value, 0, 1e-9);
}

TEST(ToneFigures, HaveNoBalanceWithoutPrimaries) {
    EXPECT_FALSE(toneOf(greys(0, 4, 100)).steps.at(1).balance);
    EXPECT_EQ(toneOf(greys(0, 4, 100)).greatestImbalance.text(1),
              "n/a (no complete set of primaries and white was measured)");
    CalibrationModeResultObject line = measuredResult({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {0, 0, 0}});
    addRow(line, {0, 0, 0}, {0, 0, 0});
    addRow(line, {255, 255, 255}, {4, 4, 4});
    EXPECT_EQ(toneOf(line).greatestImbalance.text(1), "n/a (the measured primaries cannot make the measured white)");
}

TEST(ToneFigures, HaveNoBalanceOfPatchesWithoutLight) {
    CalibrationModeResultObject result = measuredResult({{21, 1, 1}, {1, 31, 1}, {1, 1, 41}, {21, 31, 41}, {1, 1, 1}});
    addRow(result, {0, 0, 0}, {0, 0, 0});
    addRow(result, {255, 255, 255}, {0, 0.5, 0});
    EXPECT_EQ(toneOf(result).greatestImbalance.text(1),
              "n/a (no grey patch from 20 % of the signal is brighter than black)");
}
