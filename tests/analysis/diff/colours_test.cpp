#include <tests/analysis/diff/differences.h>
#include <tests/analysis/diff/documents.h>

#include <gmock/gmock.h>

using lv::analysis::ColourChange;
using lv::analysis::Difference;
using lv::analysis::DiffOptions;
using lv::test::Counts;
using lv::test::diffOf;
using lv::test::measurementSeries;

namespace {

const std::string d65 = "95047000|100000000|108883000";
const std::string grey = "20516892|21586050|23503538";
const std::string otherGrey = "20516892|22000000|23503538";

std::string whitePoint(const std::string& x, const std::string& y) {
    return "<TargetSetting><WhitePoint Type='Coordinate'><x>" + x + "</x><y>" + y + "</y></WhitePoint></TargetSetting>";
}

std::string profile(const std::string& white, const std::string& red) {
    std::string text = "<ProfileData>";
    for (const char* const color : {"Green", "Blue", "Black"}) {
        text += "<MeasuredXYZ Color='" + std::string(color) + "'>1|1|1</MeasuredXYZ>";
    }
    return text + "<MeasuredXYZ Color='White'>" + white + "</MeasuredXYZ><MeasuredXYZ Color='Red'>" + red +
           "</MeasuredXYZ></ProfileData>";
}

std::string limited(const std::string& white, const std::string& red) {
    std::string text = "<ProfileData>";
    for (const char* const color : {"Green", "Blue"}) {
        text += "<MeasuredXYZ Color='Limited109" + std::string(color) + "'>1|1|1</MeasuredXYZ>";
    }
    return text + "<MeasuredXYZ Color='Limited109White'>" + white +
           "</MeasuredXYZ><MeasuredXYZ Color='Limited109Red'>" + red + "</MeasuredXYZ></ProfileData>";
}

std::string row(const std::string& rgb, const std::string& xyz) {
    return "<Measurements><RGB>" + rgb + "</RGB><XYZ>" + xyz + "</XYZ></Measurements>";
}

std::string modeOf(const std::string& content) {
    return "<CalibrationModeResult><ColorMode Type=''><Index>1</Index>" + content +
           "</ColorMode></CalibrationModeResult>";
}

/// The only difference.
Difference onlyOne(const std::string& before, const std::string& after) {
    const auto all = diffOf(before, after).differences;
    EXPECT_EQ(all.size(), 1U);
    return all.empty() ? Difference() : all.front();
}

ColourChange colourChange(const std::string& before, const std::string& after) {
    return onlyOne(before, after).colour.value_or(ColourChange());
}

/// How many differences are listed, and how many are small.
Counts counts(const std::string& before, const std::string& after, const std::string& tolerances) {
    DiffOptions options;
    EXPECT_EQ(options.tolerances.take(tolerances, lv::test::catalogue()), "");
    const auto result = diffOf(before, after, options);
    return {result.differences.size(), result.withinTolerance};
}

}  // namespace

TEST(DiffOfChromaticities, IsOneOfBothCoordinates) {
    const Difference difference = onlyOne(whitePoint("3127", "3290"), whitePoint("3457", "3585"));
    EXPECT_EQ(lv::test::shown(difference), "changed TargetSetting/WhitePoint/(x,y): 0.3127, 0.329 -> 0.3457, 0.3585");
    EXPECT_EQ(difference.colour->formula, ColourChange::Formula::deltaUV);
    // D65: u' 0.19783, v' 0.46834; D50: u' 0.20916, v' 0.48807
    EXPECT_NEAR(difference.colour->size.value(), 0.02275, 0.00005);
}

TEST(DiffOfChromaticities, IsNotKnownWhereThereIsNoColour) {
    const ColourChange change = colourChange(whitePoint("20000", "1"), whitePoint("3127", "3290"));
    EXPECT_FALSE(change.size);
    EXPECT_EQ(change.reason, "x and y are not those of a colour");
}

TEST(DiffOfChromaticities, HasTolerances) {
    const std::string before = whitePoint("3127", "3290");
    const std::string after = whitePoint("3132", "3290");
    EXPECT_EQ(counts(before, after, "chromaticity=0.0005"), Counts(0, 1));
    EXPECT_EQ(counts(before, after, "chromaticity=0.0004"), Counts(1, 0));
    EXPECT_EQ(counts(before, after, "duv=0.0005"), Counts(0, 1));
    EXPECT_EQ(counts(before, after, "duv=0.0002"), Counts(1, 0));
    EXPECT_EQ(counts(before, after, "chromaticity=0.0004,duv=0.0005"), Counts(1, 0));
    EXPECT_EQ(counts(before, after, "gain=1"), Counts(1, 0));
}

TEST(DiffOfTristimulusValues, IsRelativeToTheWhiteOfTheProfile) {
    const ColourChange change = colourChange(profile(d65, grey), profile(d65, otherGrey));
    EXPECT_EQ(change.formula, ColourChange::Formula::deltaE2000);
    EXPECT_EQ(change.whiteBefore, "MeasuredXYZ White of the same ProfileData");
    EXPECT_EQ(change.whiteAfter, change.whiteBefore);
    EXPECT_NEAR(change.size.value(), 2.80558, 0.00001);
    EXPECT_EQ(change.reason, "");
}

TEST(DiffOfTristimulusValues, ForTheLimited109SetIsRelativeToItsOwnWhite) {
    EXPECT_EQ(colourChange(limited(d65, grey), limited(d65, otherGrey)).whiteBefore,
              "MeasuredXYZ Limited109White of the same ProfileData");
}

TEST(DiffOfTristimulusValues, IsRelativeToTheWhiteRowOfTheSeries) {
    const auto measured = [](const std::string& xyz) {
        return measurementSeries(row("128|128|128", xyz) + row("255|255|255", d65));
    };
    const ColourChange change = colourChange(measured(grey), measured(otherGrey));
    EXPECT_EQ(change.whiteBefore, "the row with RGB 255, 255, 255 of the same series");
    EXPECT_DOUBLE_EQ(change.size.value(), colourChange(profile(d65, grey), profile(d65, otherGrey)).size.value());
}

TEST(DiffOfTristimulusValues, TakesTheWhiteOfTheProfileOfTheSameModeOtherwise) {
    const auto measured = [](const std::string& xyz) {
        return modeOf(measurementSeries(row("128|128|128", xyz)) + profile(d65, grey));
    };
    EXPECT_EQ(colourChange(measured(grey), measured(otherGrey)).whiteAfter,
              "MeasuredXYZ White of the ProfileData of the same mode");
}

TEST(DiffOfTristimulusValues, IsNotKnownWithoutAWhite) {
    const std::string white = row("255|255|255", d65);
    const std::string before = measurementSeries(row("128|128|128", grey));
    EXPECT_EQ(colourChange(before, measurementSeries(row("128|128|128", otherGrey))).reason, "no reference white");
    const auto one = diffOf(before + "", measurementSeries(row("128|128|128", otherGrey) + white)).differences;
    EXPECT_EQ(one.front().colour->reason, "no reference white before the change");
    const auto other = diffOf(measurementSeries(row("128|128|128", otherGrey) + white), before).differences;
    EXPECT_EQ(other.front().colour->reason, "no reference white after the change");
    EXPECT_FALSE(other.front().colour->size);
}

TEST(DiffOfTristimulusValues, IsNotKnownForTheWhiteItself) {
    const auto white = [](const std::string& xyz) {
        return measurementSeries(row("255|255|255", xyz));
    };
    EXPECT_EQ(colourChange(white(d65), white("95047000|99000000|108883000")).reason,
              "it is the reference white itself");
    EXPECT_EQ(counts(white(d65), white("95047000|99000000|108883000"), "de00=100"), Counts(1, 0));
    EXPECT_EQ(colourChange(profile(d65, grey), profile("95047000|99000000|108883000", grey)).reason,
              "it is the reference white itself");
}

TEST(DiffOfTristimulusValues, DoesNotTakeBlackForAWhite) {
    const auto measured = [](const std::string& xyz) {
        return measurementSeries(row("128|128|128", xyz) + row("255|255|255", "0|0|0"));
    };
    EXPECT_EQ(colourChange(measured(grey), measured(otherGrey)).reason, "no reference white");
}

TEST(DiffOfTristimulusValues, HasTolerances) {
    const std::string before = profile(d65, grey);
    const std::string after = profile(d65, otherGrey);
    EXPECT_EQ(counts(before, after, "de00=3"), Counts(0, 1));
    EXPECT_EQ(counts(before, after, "de00=1"), Counts(1, 0));
    EXPECT_EQ(counts(before, after, "tristimulus=0.41395"), Counts(0, 1));
    EXPECT_EQ(counts(before, after, "tristimulus=0.41394"), Counts(1, 0));
}
