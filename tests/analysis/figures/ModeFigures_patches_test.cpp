#include <tests/analysis/figures/ModeFigures_series.h>

#include <lvdata/analysis/colour/difference.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::CalibrationModeResultObject;
using lv::ColorModeSettingsObject;
using lv::analysis::KnownUnits;
using lv::analysis::SeriesFigures;
using lv::analysis::colour::deltaE2000;
using lv::analysis::colour::lab;
using lv::analysis::colour::Tristimulus;
using lv::test::addRow;
using lv::test::figuresOf;
using lv::test::measuredResult;
using lv::test::resultOf;
using lv::test::settingOf;
using testing::ElementsAre;
using testing::HasSubstr;
namespace types = lv::types;

/// A target with this exponent for all channels.
ColorModeSettingsObject settingWithGamma(unsigned int hundredths) {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    const lv::TargetSetting::gamma_t::gamma_color curve{types::targetCurve::formula, hundredths, {}, {}};
    lv::TargetSetting::gamma_t gamma;
    gamma.red = gamma.green = gamma.blue = curve;
    setting.targetSetting.value.gamma.set(gamma);
    return setting;
}

/// The same with the primaries of sRGB and a white of x 0.3127, y 0.3290.
ColorModeSettingsObject settingWithPrimaries(unsigned int hundredths) {
    ColorModeSettingsObject setting = settingWithGamma(hundredths);
    setting.targetSetting.value.whitePoint.set({types::targetWhitePoint::coordinate, 0, 3127, 3290});
    setting.targetSetting.value.gamut.set({{6400, 3300}, {3000, 6000}, {1500, 600}, "", 0});
    return setting;
}

/// Primaries that are X, Y and Z alone, with a black of 1, 1, 1.
CalibrationModeResultObject simpleResult() {
    return measuredResult({{21, 1, 1}, {1, 31, 1}, {1, 1, 41}, {21, 31, 41}, {1, 1, 1}});
}

SeriesFigures seriesOf(const CalibrationModeResultObject& result, const ColorModeSettingsObject& setting) {
    return figuresOf(setting, result, {}).series;
}

/// What a patch should be.
Tristimulus expectedOf(const std::vector<unsigned int>& RGB, const CalibrationModeResultObject& result,
                       const ColorModeSettingsObject& setting) {
    CalibrationModeResultObject withRow = result;
    addRow(withRow, RGB, {1, 1, 1});
    return seriesOf(withRow, setting).patches.at(0).expected.value();
}

/// A series with these ΔE00 to the reference, as near as lightness allows: grey is white of that many L* less.
SeriesFigures seriesOfGreys(const std::vector<double>& Y) {
    CalibrationModeResultObject result = simpleResult();
    for (const double value : Y) {
        addRow(result, {255, 255, 255}, {21 * value, 31 * value, 41 * value});
    }
    return seriesOf(result, settingWithGamma(200));
}

void expectNear(const Tristimulus& actual, const Tristimulus& expected, double tolerance) {
    for (std::size_t index = 0; index < 3; ++index) {
        EXPECT_NEAR(actual.at(index), expected.at(index), tolerance) << index;
    }
}

}  // namespace

TEST(SeriesFigures, ExpectBlackAndWhatEachChannelAdds) {
    const ColorModeSettingsObject setting = settingWithGamma(200);
    expectNear(expectedOf({0, 0, 0}, simpleResult(), setting), {1, 1, 1}, 1e-9);
    expectNear(expectedOf({255, 255, 255}, simpleResult(), setting), {21, 31, 41}, 1e-9);
    expectNear(expectedOf({51, 0, 255}, simpleResult(), setting), {1 + 20 * 0.04, 1, 41}, 1e-9);
}

TEST(SeriesFigures, ScalePrimariesToTheWhite) {
    const CalibrationModeResultObject half =
        measuredResult({{11, 1, 1}, {1, 16, 1}, {1, 1, 21}, {21, 31, 41}, {1, 1, 1}});
    expectNear(expectedOf({51, 0, 255}, half, settingWithGamma(200)), {1 + 20 * 0.04, 1, 41}, 1e-9);
}

TEST(SeriesFigures, TakeNoBlackThatIsNotValid) {
    CalibrationModeResultObject result = measuredResult({{20, 0, 0}, {0, 30, 0}, {0, 0, 40}, {20, 30, 40}, {9, 9, 9}});
    result.hasValidMeasuredBlackValue.set(false);
    expectNear(expectedOf({0, 0, 0}, result, settingWithGamma(200)), {0, 0, 0}, 1e-9);
    addRow(result, {0, 0, 0}, {1, 1, 1});
    EXPECT_EQ(seriesOf(result, settingWithGamma(220)).reference,
              "profile: measured primaries and white, tone curve 2.2");
}

TEST(SeriesFigures, TakeTheTargetWhereItHasPrimariesAndWhite) {
    // IEC 61966-2-1 has the X, Y and Z of the primaries of a white of Y 1; here Y of the white is 31.
    const ColorModeSettingsObject setting = settingWithPrimaries(200);
    expectNear(expectedOf({255, 0, 0}, simpleResult(), setting), {31 * 0.4124, 31 * 0.2126, 31 * 0.0193}, 0.005);
    expectNear(expectedOf({0, 51, 0}, simpleResult(), setting), {1.24 * 0.3576, 1.24 * 0.7152, 1.24 * 0.1192}, 0.001);
    expectNear(expectedOf({0, 0, 0}, simpleResult(), setting), {0, 0, 0}, 0);
}

TEST(SeriesFigures, SayWhatTheyComparePatchesWith) {
    CalibrationModeResultObject result = simpleResult();
    addRow(result, {0, 0, 0}, {1, 1, 1});
    EXPECT_EQ(seriesOf(result, settingWithGamma(220)).reference,
              "profile: measured primaries, white and black, tone curve 2.2");
    EXPECT_EQ(seriesOf(result, settingWithPrimaries(220)).reference,
              "target: its primaries and white, Y of the measured white, no black, tone curve 2.2");
    EXPECT_EQ(seriesOf(result, settingOf(types::colorMode::calibration)).reference, "");
}

TEST(SeriesFigures, HaveTheDifferenceRelativeToTheWhite) {
    CalibrationModeResultObject result = simpleResult();
    addRow(result, {51, 51, 51}, {2, 3, 4});
    const Tristimulus white{21, 31, 41};
    const Tristimulus expected{1.8, 2.2, 2.6};
    const double difference = deltaE2000(lab({2, 3, 4}, white), lab(expected, white));
    EXPECT_NEAR(*seriesOf(result, settingWithGamma(200)).patches.at(0).deltaE2000.value, difference, 1e-9);
    EXPECT_GT(difference, 1);
}

TEST(SeriesFigures, SayWhyAPatchHasNoDifference) {
    CalibrationModeResultObject result = simpleResult();
    addRow(result, {256, 0, 0}, {1, 1, 1});
    addRow(result, {}, {1, 1, 1});
    addRow(result, {0, 0, 0}, {1, 1});
    const SeriesFigures series = seriesOf(result, settingWithGamma(200));
    EXPECT_EQ(series.patches.at(0).deltaE2000.text(2), "n/a (a code value above 255)");
    EXPECT_EQ(series.patches.at(1).deltaE2000.text(2), "n/a (no R, G and B were shown)");
    EXPECT_EQ(series.patches.at(2).deltaE2000.text(2), "n/a (no X, Y and Z were measured)");
    EXPECT_EQ(series.mean.text(2), "n/a (a code value above 255)");
    EXPECT_TRUE(series.worst.empty());
}

TEST(SeriesFigures, SayWhatIsMissing) {
    const ColorModeSettingsObject setting = settingWithGamma(200);
    CalibrationModeResultObject result = resultOf(1);
    EXPECT_EQ(seriesOf(result, setting).mean.text(2), "n/a (no measurements)");
    result.hasMeasurementData = true;
    EXPECT_EQ(seriesOf(result, setting).maximum.text(2), "n/a (no measurements)");
    addRow(result, {0, 0, 0}, {1, 1, 1});
    EXPECT_EQ(seriesOf(result, setting).percentile95.text(2),
              "n/a (no complete set of primaries and white was measured)");
    EXPECT_EQ(seriesOf(result, settingOf(types::colorMode::calibration)).mean.text(2),
              "n/a (the tone curve of the target is not known)");
}

TEST(SeriesFigures, NeedPrimariesThatCanMakeTheWhite) {
    const ColorModeSettingsObject setting = settingWithGamma(200);
    CalibrationModeResultObject line = measuredResult({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {0, 0, 0}});
    addRow(line, {0, 0, 0}, {1, 1, 1});
    EXPECT_EQ(seriesOf(line, setting).mean.text(2), "n/a (the measured primaries cannot make the measured white)");
    CalibrationModeResultObject dark = measuredResult({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {4, 4, 0}, {0, 0, 0}});
    addRow(dark, {0, 0, 0}, {1, 1, 1});
    EXPECT_EQ(seriesOf(dark, setting).reference, "");
}

TEST(SeriesFigures, NeedAWhiteBrighterThanBlack) {
    // Each channel takes light away, and all three make a white below black.
    CalibrationModeResultObject result = measuredResult({{9, 9, 10}, {10, 8, 10}, {10, 9, 9}, {9, 6, 9}, {10, 10, 10}});
    addRow(result, {128, 128, 128}, {9, 9, 9});
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    setting.targetSetting.value.gammaV7.set({types::targetStandard::standard, "PQ"});
    KnownUnits known;
    known.yUnit = "cd/m²";
    EXPECT_EQ(figuresOf(setting, result, known).series.mean.text(2),
              "n/a (the measured white is not brighter than the measured black)");
}

TEST(SeriesFigures, KeepWhatWasShownAndMeasured) {
    CalibrationModeResultObject result = simpleResult();
    addRow(result, {1, 2, 3}, {4, -5, 6});
    result.measurementData.objects.back().CMYK = {10, 20, 30, 40};
    const auto patch = seriesOf(result, settingWithGamma(200)).patches.at(0);
    EXPECT_EQ(patch.number, 1U);
    EXPECT_THAT(*patch.RGB, ElementsAre(1, 2, 3));
    EXPECT_THAT(*patch.CMYK, ElementsAre(10, 20, 30, 40));
    EXPECT_THAT(*patch.XYZ, ElementsAre(4, -5, 6));
    EXPECT_TRUE(patch.deltaE2000.value);
}

TEST(SeriesFigures, ForOnePatchAreThoseOfThatPatch) {
    const SeriesFigures series = seriesOfGreys({0.5});
    EXPECT_EQ(series.mean.value, series.patches.at(0).deltaE2000.value);
    EXPECT_EQ(series.percentile95.value, series.mean.value);
    EXPECT_EQ(series.maximum.value, series.mean.value);
    EXPECT_THAT(series.worst, ElementsAre(0));
}

TEST(SeriesFigures, HaveTheFiveWorstTheWorstFirst) {
    const SeriesFigures series = seriesOfGreys({0.9, 0.5, 1, 0.8, 0.5, 0.7, 0.6, 0.95});
    EXPECT_THAT(series.worst, ElementsAre(1, 4, 6, 5, 3));
    EXPECT_EQ(series.maximum.value, series.patches.at(1).deltaE2000.value);
}

TEST(SeriesFigures, HaveThePercentileByNearestRank) {
    std::vector<double> lights;
    for (int count = 1; count <= 20; ++count) {
        lights.push_back(1 - count / 100.0);
    }
    const SeriesFigures twenty = seriesOfGreys(lights);  // rank 19 of 20
    EXPECT_EQ(twenty.percentile95.value, twenty.patches.at(18).deltaE2000.value);
    lights.pop_back();
    const SeriesFigures nineteen = seriesOfGreys(lights);  // rank 19 of 19
    EXPECT_EQ(nineteen.percentile95.value, nineteen.patches.at(18).deltaE2000.value);
}

TEST(SeriesFigures, ForHLGCombineTheChannels) {
    ColorModeSettingsObject setting = settingWithGamma(200);
    auto& gamma = setting.targetSetting.value.gamma.value;
    gamma.red.type = gamma.green.type = gamma.blue.type = types::targetCurve::hlg;
    gamma.hlgSystemGamma = 200;
    // Full red is Y^(2 - 1) of its own luminance; Y of red is 10 of 31 above black: X = 1 + 20 * 10 / 30.
    const auto result = measuredResult({{21, 11, 1}, {1, 11, 1}, {1, 11, 41}, {21, 31, 41}, {1, 1, 1}});
    expectNear(expectedOf({255, 0, 0}, result, setting), {1 + 20.0 / 3, 1 + 10.0 / 3, 1}, 1e-6);
    gamma.hlgSystemGamma = 0;
    CalibrationModeResultObject one = result;
    addRow(one, {255, 0, 0}, {1, 1, 1});
    EXPECT_THAT(seriesOf(one, setting).mean.text(2), HasSubstr("no HLG system gamma"));
}

TEST(SeriesFigures, ForExtremeNumbersAreComputedWithoutFailure) {
    const std::vector<double> huge = {4294.967295, 4294.967295, 4294.967295};
    const std::vector<double> least = {-2147.483648, -2147.483648, -2147.483648};
    CalibrationModeResultObject result = simpleResult();
    for (unsigned int code = 0; code < 1024; ++code) {
        addRow(result, {code % 256, 4294967295U, 0}, least);
        addRow(result, {code % 256, 0, 0}, code % 2 == 0 ? least : std::vector<double>{0, 0, 0});
    }
    EXPECT_TRUE(seriesOf(result, settingWithGamma(1)).mean.value);
    EXPECT_TRUE(seriesOf(result, settingWithGamma(4294967295U)).mean.value);
    const auto same = measuredResult({huge, huge, huge, huge, huge});
    EXPECT_FALSE(seriesOf(same, settingWithGamma(220)).mean.value);
}
