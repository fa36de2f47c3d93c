#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/CalibrationModeResult.h>

#include <string>

// The rows as a list: order, replacement, what a parse leaves, copies.

namespace lv::test {
namespace {

using Row = CalibrationModeResultObject;

std::string rowOf(const std::string& index) {
    return "<ColorMode><Index>" + index + "</Index></ColorMode>";
}

CalibrationModeResult listFrom(const std::string& rows) {
    return parsedFrom<CalibrationModeResult>(rows);
}

/// The indices of the rows in their order: "2 1 2 ".
std::string indices(const CalibrationModeResult& record) {
    std::string text;
    for (const Row& row : record.objects) {
        text += std::to_string(row.index.value) + ' ';
    }
    return text;
}

TEST(CalibrationModeResultRows, RootWithoutRowsParsesToTrueWithAnEmptyListAndParsedTrue) {
    for (const char* rows : {"", "<Index>1</Index>", "<colorMode/>", "<Other><ColorMode/></Other>", "words"}) {
        EXPECT_TRUE(listFrom(rows).objects.empty()) << rows;
        EXPECT_TRUE(listFrom(rows).parsed) << rows;
    }
}

TEST(CalibrationModeResultRows, TwoRowsWithTheSameIndexStayTwoInTheirOrder) {
    const auto record = listFrom("<ColorMode><Index>1</Index><Name>b</Name></ColorMode>"
                                 "<ColorMode><Index>1</Index><Name>a</Name></ColorMode>");
    ASSERT_EQ(record.objects.size(), 2U);
    EXPECT_EQ(record.objects[0].name.value, "b");
    EXPECT_EQ(record.objects[1].name.value, "a");
}

TEST(CalibrationModeResultRows, RowsKeepTheOrderOfTheDocumentAndAreWrittenInIt) {
    const auto record = listFrom(rowOf("3") + "<Other/>" + rowOf("1") + "<!-- -->" + rowOf("2") + rowOf("1"));
    EXPECT_EQ(indices(record), "3 1 2 1 ");
    EXPECT_EQ(indices(parsed<CalibrationModeResult>(compact(record))), "3 1 2 1 ");
}

TEST(CalibrationModeResultRows, EmptyRowsAreKeptAndWritten) {
    const auto record = listFrom("<ColorMode/><ColorMode>words</ColorMode><ColorMode><Other/></ColorMode>");
    ASSERT_EQ(record.objects.size(), 3U);
    for (const Row& row : record.objects) {
        EXPECT_EQ(describe(row), describe(Row()));
    }
    EXPECT_EQ(parsed<CalibrationModeResult>(compact(record)).objects.size(), 3U);
}

TEST(CalibrationModeResultRows, RowsInsideRowsAreNotRead) {
    EXPECT_EQ(indices(listFrom("<ColorMode><Index>1</Index><ColorMode><Index>2</Index></ColorMode></ColorMode>")),
              "1 ");
}

TEST(CalibrationModeResultRows, SecondParseLeavesOnlyTheRowsOfTheSecondDocument) {
    CalibrationModeResult record = filled<CalibrationModeResult>();
    ASSERT_TRUE(record.parseXMLString(documentOf<CalibrationModeResult>("<ColorMode><Name>new</Name></ColorMode>")));
    ASSERT_EQ(record.objects.size(), 1U);
    Row expected;
    expected.name.set("new");
    EXPECT_EQ(describe(record.objects[0]), describe(expected));
}

TEST(CalibrationModeResultRows, ParsedIsFalseUntilARootElementWasAccepted) {
    CalibrationModeResult record;
    EXPECT_FALSE(record.parsed);
    EXPECT_FALSE(record.parseXMLString("<calibrationModeResult/>"));
    EXPECT_FALSE(record.parseXMLString("<CalibrationModeResult>"));
    EXPECT_FALSE(record.parsed);
    EXPECT_TRUE(record.parseXMLString("<CalibrationModeResult/>"));
    EXPECT_FALSE(record.parseXMLString("<ColorModeSettings/>"));
    EXPECT_TRUE(record.parsed);
}

TEST(CalibrationModeResultRows, WrongRootNameLeavesTheRows) {
    for (const char* name : {"calibrationModeResult", "CALIBRATIONMODERESULT", "ColorModeSettings", "ColorMode"}) {
        CalibrationModeResult record = filled<CalibrationModeResult>();
        EXPECT_FALSE(record.parseXMLString('<' + std::string(name) + '>' + rowOf("9") + "</" + name + '>'));
        EXPECT_EQ(describe(record), describe(filled<CalibrationModeResult>())) << name;
    }
}

TEST(CalibrationModeResultRows, MalformedTextInsideARowLeavesTheRows) {
    CalibrationModeResult record = filled<CalibrationModeResult>();
    EXPECT_FALSE(
        record.parseXMLString("<CalibrationModeResult><ColorMode><Index>1</ColorMode></CalibrationModeResult>"));
    EXPECT_EQ(describe(record), describe(filled<CalibrationModeResult>()));
}

TEST(CalibrationModeResultRows, CopiesOfTheListAndOfARowAreDeep) {
    const auto original = filled<CalibrationModeResult>();
    CalibrationModeResult copy = original;
    copy.objects[0].measurementData.objects[0].XYZ[1] = 99;
    copy.objects[0].monitorParameter.redLUT.value[5] = 99;
    copy.objects[1].profileData.greenTargetCurve.value.lut.clear();
    copy.objects[1].emulationLUT.name = "other";
    copy.objects.push_back(Row());
    Row row = original.objects[0];
    row.basicData.executorType.value = "other";
    row.measurementData.objects.clear();
    EXPECT_EQ(describe(original), describe(filled<CalibrationModeResult>()));
}

TEST(CalibrationModeResultRows, HundredRowsComeBack) {
    CalibrationModeResult record;
    std::string expected;
    for (unsigned int index = 100; index > 0; --index) {
        Row row;
        row.index.set(index);
        record.objects.push_back(row);
        expected += std::to_string(index) + ' ';
    }
    EXPECT_EQ(indices(parsed<CalibrationModeResult>(compact(record))), expected);
}

}  // namespace
}  // namespace lv::test
