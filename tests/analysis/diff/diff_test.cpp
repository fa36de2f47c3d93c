#include <lvdata/analysis/diff/diff.h>

#include <tests/analysis/diff/differences.h>
#include <tests/analysis/diff/documents.h>

#include <gmock/gmock.h>

#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/ParameterSetting.h>

#include <algorithm>
#include <ctime>

using lv::test::Counts;
using lv::test::differencesOf;
using lv::test::documentWithGamma;
using lv::test::measurementSeries;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string asset(const std::string& content) {
    return "<AssetInfo>" + content + "</AssetInfo>";
}

std::string modes(const std::string& rows) {
    return "<CalibrationModeResult>" + rows + "</CalibrationModeResult>";
}

std::string mode(const std::string& index, const std::string& name) {
    return "<ColorMode Type=''>" + (index.empty() ? "" : "<Index>" + index + "</Index>") + "<Name>" + name +
           "</Name></ColorMode>";
}

std::string row(const std::string& rgb, const std::string& pqr) {
    return "<Measurements><RGB>" + rgb + "</RGB><PQR>" + pqr + "</PQR></Measurements>";
}

}  // namespace

TEST(Diff, FindsNothingInEqualRecords) {
    EXPECT_THAT(differencesOf(asset("<Asset1>x</Asset1>"), asset("<Asset1>x</Asset1>")), IsEmpty());
}

TEST(Diff, SaysWhatWasSetClearedAndChanged) {
    EXPECT_THAT(
        differencesOf(asset("<Asset1>a</Asset1><Asset2>b</Asset2>"), asset("<Asset2>c</Asset2><Asset3/>")),
        ElementsAre("cleared AssetInfo/Asset1: a", "changed AssetInfo/Asset2: b -> c", "set AssetInfo/Asset3: "));
}

TEST(Diff, HasAttributes) {
    EXPECT_THAT(differencesOf("<AssetInfo Version='1'/>", "<AssetInfo Version='2'/>"),
                ElementsAre("changed AssetInfo/@Version: 1 -> 2 by 1"));
}

TEST(Diff, ShowsNaturalValuesExactly) {
    EXPECT_THAT(differencesOf(documentWithGamma("220"), documentWithGamma("205")),
                ElementsAre("changed ParameterSetting/Gamma/Value: 2.2 -> 2.05 by -0.15"));
}

TEST(Diff, ShowsUnitsThatAreKnown) {
    const auto brightness = [](const std::string& type) {
        return "<ParameterSetting><Brightness Type='" + type + "'><Value>50</Value></Brightness></ParameterSetting>";
    };
    EXPECT_THAT(differencesOf(brightness("Candela"), brightness("Percent")),
                ElementsAre("changed ParameterSetting/Brightness/@Type: Candela -> Percent",
                            "changed ParameterSetting/Brightness/Value: 50 candela -> 50 %"));
    EXPECT_THAT(
        differencesOf("<StandardModeResult/>", "<StandardModeResult><MaxWhite>350</MaxWhite></StandardModeResult>"),
        ElementsAre("set StandardModeResult/MaxWhite: 350"));
}

TEST(Diff, ShowsStoredIntegersWhereTheFactorIsNotAPowerOfTen) {
    EXPECT_THAT(differencesOf(measurementSeries("<Measurements><RGB>1|2|3</RGB></Measurements>"),
                              measurementSeries("<Measurements><RGB>1|2|4</RGB></Measurements>")),
                ElementsAre("cleared MeasurementData/Measurements[RGB='1|2|3']",
                            "set MeasurementData/Measurements[RGB='1|2|4']"));
    EXPECT_THAT(differencesOf(measurementSeries(row("1|2|3", "1|1|1") + row("1|2|3", "1|1|1")),
                              measurementSeries(row("1|2|3", "1|1|1") + row("1|2|5", "1|1|1"))),
                ElementsAre("changed MeasurementData/Measurements[2]/RGB: 1, 2, 3 1/255 -> 1, 2, 5 1/255, "
                            "entries 3 -> 3, 1 differ, most at 2: 3 -> 5 by 2 1/255"));
}

TEST(Diff, ListsWhatAnElementHoldsThatOnlyOneSideHas) {
    EXPECT_THAT(
        differencesOf("<TargetSetting/>",
                      "<TargetSetting><Brightness Type='Value'><Value>120</Value></Brightness></TargetSetting>"),
        ElementsAre("set TargetSetting/Brightness/@Type: Value", "set TargetSetting/Brightness/Value: 120"));
}

TEST(Diff, HasRecordsOfOneSideAsAWhole) {
    EXPECT_THAT(differencesOf("<StandardModeResult/>", "<StandardModeResult><BasicData/></StandardModeResult>"),
                ElementsAre("set StandardModeResult/BasicData"));
}

TEST(Diff, KnowsWhichTextCounts) {
    const auto curve = [](const std::string& type) {
        return "<ProfileData><RedTargetCurve Type='" + type + "'>2200000</RedTargetCurve></ProfileData>";
    };
    EXPECT_THAT(differencesOf(curve("Formula"), curve("Lut")),
                ElementsAre("changed ProfileData/RedTargetCurve/@Type: Formula -> Lut",
                            "cleared ProfileData/RedTargetCurve: 2.2", "set ProfileData/RedTargetCurve: 2.2"));
}

TEST(Diff, MatchesRowsByIndex) {
    EXPECT_THAT(differencesOf(modes(mode("1", "a") + mode("2", "b")), modes(mode("2", "c") + mode("3", "d"))),
                ElementsAre("cleared CalibrationModeResult/ColorMode[Index=1]",
                            "changed CalibrationModeResult/ColorMode[Index=2]/Name: b -> c",
                            "set CalibrationModeResult/ColorMode[Index=3]"));
}

TEST(Diff, MatchesRowsOfOneIndexInTheirOrder) {
    EXPECT_THAT(differencesOf(modes(mode("1", "a") + mode("1", "b")), modes(mode("1", "a") + mode("1", "c"))),
                ElementsAre("changed CalibrationModeResult/ColorMode[Index=1][2]/Name: b -> c"));
    EXPECT_THAT(differencesOf(modes(mode("", "a") + mode("", "b")), modes(mode("", "a"))),
                ElementsAre("cleared CalibrationModeResult/ColorMode[not(Index)][2]"));
}

TEST(Diff, NoticesAChangedOrderOfRows) {
    EXPECT_THAT(differencesOf(modes(mode("1", "a") + mode("2", "b")), modes(mode("2", "b") + mode("1", "a"))),
                ElementsAre("reordered CalibrationModeResult/ColorMode"));
    EXPECT_THAT(differencesOf(modes(mode("2", "b")), modes(mode("1", "a") + mode("2", "b"))),
                ElementsAre("set CalibrationModeResult/ColorMode[Index=1]"));
}

TEST(Diff, MatchesMeasurementsByRGB) {
    EXPECT_THAT(differencesOf(measurementSeries(row("1|1|1", "1|1|1") + row("2|2|2", "1|1|1")),
                              measurementSeries(row("0|0|0", "1|1|1") + row("2|2|2", "1|1|1"))),
                ElementsAre("cleared MeasurementData/Measurements[RGB='1|1|1']",
                            "set MeasurementData/Measurements[RGB='0|0|0']"));
}

TEST(Diff, MatchesMeasurementsByCMYKWhenRGBIsNotUnique) {
    const auto inks = [](const std::string& cmyk, const std::string& pqr) {
        return "<Measurements><CMYK>" + cmyk + "</CMYK><PQR>" + pqr + "</PQR></Measurements>";
    };
    EXPECT_THAT(differencesOf(measurementSeries(inks("1|1|1|1", "1|1|1") + inks("2|2|2|2", "0|0|0")),
                              measurementSeries(inks("2|2|2|2", "0|0|0"))),
                ElementsAre("cleared MeasurementData/Measurements[CMYK='1|1|1|1']"));
}

TEST(Diff, MatchesOtherMeasurementsByPlace) {
    const std::string plain = "<Measurements><PQR>1|1|1</PQR></Measurements>";
    EXPECT_THAT(
        differencesOf(measurementSeries(plain + row("2|2|2", "1|1|1")), measurementSeries(row("2|2|2", "1|1|1"))),
        ElementsAre("set MeasurementData/Measurements[1]/RGB: 2, 2, 2 1/255",
                    "cleared MeasurementData/Measurements[2]"));
}

TEST(Diff, SummarisesTables) {
    const auto curve = [](const std::string& last) {
        return "<ProfileData><RedTargetCurve Type='Lut'>0|1|2|3|4|5|6|7|500000|" + last +
               "</RedTargetCurve></ProfileData>";
    };
    EXPECT_THAT(
        differencesOf(curve("900000"), curve("1000000|5")),
        ElementsAre("changed ProfileData/RedTargetCurve: entries 10 -> 11, 1 differ, most at 9: 0.9 -> 1 by 0.1"));
    EXPECT_THAT(differencesOf(curve("0"), curve("0|5")),
                ElementsAre("changed ProfileData/RedTargetCurve: entries 10 -> 11, 0 differ"));
}

TEST(Diff, ComparesTablesOfDifferentScalesByTheirValues) {
    const auto table = [](const std::string& isHDR, const std::string& first, const std::string& others) {
        std::string entries = first;
        for (int each = 1; each < 256; ++each) {
            entries += '|' + others;
        }
        return "<MonitorParameter><RedLUT>" + entries + "</RedLUT><isHDRLUT>" + isHDR +
               "</isHDRLUT></MonitorParameter>";
    };
    EXPECT_THAT(differencesOf(table("0", "500000", "1000"), table("1", "500000001", "1000000")),
                testing::Contains("changed MonitorParameter/RedLUT: entries 256 -> 256, 1 differ, "
                                  "most at 0: 0.5 -> 0.500000001 by 0.000000001"));
    EXPECT_THAT(differencesOf(table("1", "500000001", "1000000"), table("0", "500000", "1000")),
                testing::Contains(testing::HasSubstr("1 differ, most at 0: 0.500000001 -> 0.5 by -0.000000001")));
    EXPECT_THAT(differencesOf(table("0", "1", "1"), table("1", "1", "1")),
                testing::Contains(testing::HasSubstr("256 differ, most at 0: 0.000001 -> 0.000000001")));
}

TEST(Diff, RefusesRecordsOfDifferentClasses) {
    const auto result = diff(lv::AssetInfo(), lv::CorrelationInfo(), lv::test::catalogue());
    EXPECT_EQ(std::get<lv::analysis::DiffRefusal>(result).reason,
              "records of different classes: AssetInfo and CorrelationInfo");
}

TEST(Diff, ComparesWhatTheRecordsPrint) {
    lv::ParameterSetting one;
    lv::ParameterSetting other;
    one.gamma.set({});
    other.gamma.set({});
    other.writeHLGSystemGamma = true;
    const auto result = std::get<lv::analysis::Diff>(diff(one, other, lv::test::catalogue()));
    ASSERT_EQ(result.differences.size(), 1U);
    EXPECT_EQ(result.differences.front().path, "ParameterSetting/Gamma/HLGSystemGamma");
}

TEST(Diff, LeavesOutIgnoredPathsAndCountsThem) {
    const std::string before = modes(mode("1", "a") + mode("2", "b"));
    const std::string after = modes(mode("1", "x") + mode("2", "y"));
    const auto ignoring = [&](const std::string& path) {
        lv::analysis::DiffOptions options;
        options.ignoredPaths = {path};
        const auto result = lv::test::diffOf(before, after, options);
        return std::pair(result.differences.size(), result.ignored);
    };
    EXPECT_EQ(ignoring("CalibrationModeResult/ColorMode[Index=2]"), Counts(1, 1));
    EXPECT_EQ(ignoring("CalibrationModeResult/ColorMode/Name"), Counts(0, 2));
    EXPECT_EQ(ignoring("//Name"), Counts(0, 2));
    EXPECT_EQ(ignoring("//ColorMode"), Counts(0, 2));
    EXPECT_EQ(ignoring("//ColorMode[Index=1]/Name"), Counts(1, 1));
    EXPECT_EQ(ignoring("CalibrationModeResult/ColorMod"), Counts(2, 0));
    EXPECT_EQ(ignoring("Name"), Counts(2, 0));
    EXPECT_EQ(ignoring("//ame"), Counts(2, 0));
}

TEST(Diff, TakesTimeInProportionToTheRows) {
    const auto ticksOf = [](int rows) {
        lv::MeasurementData before;
        for (int each = 0; each < rows; ++each) {
            lv::MeasurementDataObject row;
            row.RGB = {static_cast<unsigned int>(each), 0, 0};
            row.XYZ = {each, 2, 3};
            before.objects.push_back(row);
        }
        lv::MeasurementData after = before;
        std::reverse(after.objects.begin(), after.objects.end());
        after.objects.front().XYZ = {0, 0, 0};
        const std::clock_t begin = std::clock();
        const auto result = std::get<lv::analysis::Diff>(diff(before, after, lv::test::catalogue()));
        EXPECT_EQ(result.differences.size(), 2U);
        return static_cast<double>(std::clock() - begin);
    };
    ticksOf(1000);  // warms up
    // Eight times the rows: 64 times the time when each row is compared with each.
    EXPECT_LT(ticksOf(100'000), 32 * ticksOf(12'500));
}
