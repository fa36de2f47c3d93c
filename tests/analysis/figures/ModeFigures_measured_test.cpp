#include <lvdata/analysis/figures/ModeFigures.h>

#include <tests/analysis/figures/ModeFigures_rows.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::analysis::ModeFigures;
using lv::test::figuresOf;
using lv::test::resultOf;
using lv::test::settingOf;
using lv::test::settingWithCoordinate;
using lv::test::whiteD65;
using testing::ElementsAre;
namespace types = lv::types;

void setReached(CalibrationModeResultObject& result, const std::vector<unsigned int>& white) {
    result.hasBasicData = true;
    result.basicData.justCalibratedWhite.set(white);
}

void setMeasured(CalibrationModeResultObject& result, const std::vector<unsigned int>& white,
                 const std::vector<unsigned int>& black) {
    result.hasProfileData = true;
    result.profileData.measuredXYZ.set({{1, 2, 3}, {1, 2, 3}, {1, 2, 3}, white, black});
}

ModeFigures figuresOf(const CalibrationModeResultObject& result) {
    return figuresOf({}, {result}).at(0);
}

std::string deltaOf(const ColorModeSettingsObject& setting, const std::vector<unsigned int>& white) {
    CalibrationModeResultObject result = resultOf(1);
    setReached(result, white);
    return figuresOf({setting}, {result}).at(0).deltaUV.text(7);
}

std::string contrastOf(const std::vector<unsigned int>& white, const std::vector<unsigned int>& black) {
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, white, black);
    return figuresOf(result).contrast.text(2);
}

}  // namespace

TEST(ModeFigures, HaveTheWhiteThatTheCalibrationReached) {
    CalibrationModeResultObject result = resultOf(1);
    setReached(result, whiteD65);
    setMeasured(result, {1, 1, 1}, {1, 1, 1});
    const ModeFigures mode = figuresOf(result);
    EXPECT_THAT(*mode.measuredWhite, ElementsAre(95.047, 100.0, 108.883));
    EXPECT_EQ(mode.measuredY.text(3), "100.000");
    EXPECT_NEAR(mode.measuredChromaticity->x, 0.31273, 0.00001);  // 95.047 / 303.93
    EXPECT_NEAR(mode.measuredChromaticity->y, 0.32902, 0.00001);  // 100 / 303.93
}

TEST(ModeFigures, HaveTheWhiteOfTheProfileDataOtherwise) {
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, whiteD65, {80000, 85000, 110000});
    EXPECT_EQ(figuresOf(result).measuredY.text(3), "100.000");
    EXPECT_EQ(figuresOf(result).blackY.text(3), "0.085");
    setReached(result, {1, 2});
    EXPECT_EQ(figuresOf(result).measuredY.text(3), "100.000");
    setReached(result, {1, 2, 3, 4});
    EXPECT_EQ(figuresOf(result).measuredY.text(3), "100.000");
}

TEST(ModeFigures, SayThatASetHasTheWrongLength) {
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, {1, 2}, {1, 2, 3, 4});
    const ModeFigures mode = figuresOf(result);
    EXPECT_EQ(mode.measuredY.text(2), "n/a (no white was measured)");
    EXPECT_EQ(mode.deltaUV.text(2), "n/a (no white was measured)");
    EXPECT_EQ(mode.blackY.text(2), "n/a (no black was measured)");
}

TEST(ModeFigures, HaveAContrastOfOneSet) {
    EXPECT_EQ(contrastOf({1, 100000000, 1}, {1, 250000, 1}), "400.00");
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, {1, 1000000, 1}, {1, 1000, 1});
    setReached(result, {1, 500000000, 1});
    EXPECT_EQ(figuresOf(result).contrast.text(2), "1000.00");
}

TEST(ModeFigures, HaveNoContrastThatCannotBeComputed) {
    EXPECT_EQ(contrastOf(whiteD65, {0, 0, 1}), "n/a (black has Y 0)");
    EXPECT_EQ(contrastOf({0, 0, 0}, {1, 1, 1}), "n/a (white has Y 0)");
    EXPECT_EQ(contrastOf({0, 0, 0}, {0, 0, 0}), "n/a (white has Y 0)");
    EXPECT_EQ(contrastOf({}, {1, 1, 1}), "n/a (no white was measured)");
    EXPECT_EQ(contrastOf(whiteD65, {}), "n/a (no black was measured)");
    EXPECT_EQ(figuresOf(resultOf(1)).contrast.text(2), "n/a (no complete set of MeasuredXYZ)");
}

TEST(ModeFigures, TakeNoSetThatIsNotComplete) {
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, whiteD65, {1, 1000000, 1});
    result.profileData.measuredXYZ.hasValue = false;
    EXPECT_EQ(figuresOf(result).contrast.text(0), "n/a (no complete set of MeasuredXYZ)");
    EXPECT_EQ(figuresOf(result).measuredY.text(0), "n/a (no white was measured)");
}

TEST(ModeFigures, TakeNoBlackThatIsMarkedAsNotValid) {
    CalibrationModeResultObject result = resultOf(1);
    setMeasured(result, whiteD65, {1, 1000000, 1});
    result.hasValidMeasuredBlackValue.set(true);
    EXPECT_EQ(figuresOf(result).contrast.text(0), "100");
    result.hasValidMeasuredBlackValue.set(false);
    EXPECT_EQ(figuresOf(result).contrast.text(0), "n/a (the black measurement is marked as not valid)");
    EXPECT_EQ(figuresOf(result).blackY.text(0), "n/a (the black measurement is marked as not valid)");
    EXPECT_EQ(figuresOf(result).measuredY.text(0), "100");
}

TEST(ModeFigures, HaveTheDifferenceOfTargetAndMeasuredWhite) {
    // By hand, CIE 15. Target: u' = 4x / (-2x + 12y + 3) = 1.2508 / 6.3226 = 0.1978300,
    // v' = 9y / 6.3226 = 2.961 / 6.3226 = 0.4683200. Measured: u' = 4X / (X + 15Y + 3Z) = 380.188 / 1921.696
    // = 0.1978398, v' = 9Y / 1921.696 = 0.4683363. The root of 0.0000098² + 0.0000163² is 0.0000190.
    EXPECT_EQ(deltaOf(settingWithCoordinate(), whiteD65), "0.0000190");
}

TEST(ModeFigures, HaveADifferenceThatDoesNotDependOnTheUnitOfY) {
    // D50, X 96.42, Y 100, Z 82.49, from the same target: u' = 385.68 / 1843.89 = 0.2091665,
    // v' = 900 / 1843.89 = 0.4880986; Δu' = 0.0113365, Δv' = 0.0197786.
    EXPECT_EQ(deltaOf(settingWithCoordinate(), {96420000, 100000000, 82490000}), "0.0227971");
    EXPECT_EQ(deltaOf(settingWithCoordinate(), {9642000, 10000000, 8249000}), "0.0227971");
}

TEST(ModeFigures, HaveNoDifferenceThatCannotBeComputed) {
    EXPECT_EQ(deltaOf(settingWithCoordinate(), {0, 0, 0}), "n/a (X, Y and Z of the white are 0)");
    EXPECT_EQ(deltaOf(settingWithCoordinate(), {1, 2}), "n/a (no white was measured)");
    EXPECT_EQ(deltaOf(settingOf(types::colorMode::calibration), whiteD65), "n/a (the target has no x and y)");
    ColorModeSettingsObject unreal = settingWithCoordinate();
    unreal.targetSetting.value.whitePoint.value.x = 30000;  // -2x + 12y + 3 is below 0
    unreal.targetSetting.value.whitePoint.value.y = 1;
    EXPECT_EQ(deltaOf(unreal, whiteD65), "n/a (x and y are not of a real colour)");
}

TEST(ModeFigures, CountTheMeasurements) {
    CalibrationModeResultObject result = resultOf(1);
    result.hasMeasurementData = true;
    result.measurementData.objects.resize(3);
    EXPECT_EQ(figuresOf(result).measurements, 3U);
}
