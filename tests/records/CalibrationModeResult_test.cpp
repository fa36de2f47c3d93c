#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/CalibrationModeResult.h>

#include <array>
#include <string>
#include <type_traits>
#include <utility>

// What one row holds: what is written always and what only by flag, and what is read.

namespace lv::test {
namespace {

using Row = CalibrationModeResultObject;

const std::string defaultProfile = compact(ProfileData());

/// Something that a row may hold: made by `fill`, written as `text`.
struct Part {
    std::string text;
    void (*fill)(Row&);
    void (*clearFlag)(Row&);
};

template <auto member>
Part propertyPart(const std::string& text, void (*fill)(Row&)) {
    return {text, fill, [](Row& row) {
                (row.*member).hasValue = false;
            }};
}

template <auto member, auto flag>
Part recordPart() {
    using Record = std::decay_t<decltype(std::declval<Row>().*member)>;
    return {compact(filled<Record>()),
            [](Row& row) {
                row.*member = filledAndParsedBack<Record>();
                row.*flag = true;
            },
            [](Row& row) {
                row.*flag = false;
            }};
}

const auto& everyPart() {
    static const std::array all = {
        propertyPart<&Row::index>("<Index>1</Index>", [](Row& row) { row.index.set(1); }),
        propertyPart<&Row::name>("<Name>a &amp; b</Name>", [](Row& row) { row.name.set("a & b"); }),
        propertyPart<&Row::calibratedTime>("<CalibratedTime>2024-07-01</CalibratedTime>",
                                           [](Row& row) { row.calibratedTime.set("2024-07-01"); }),
        recordPart<&Row::basicData, &Row::hasBasicData>(),
        recordPart<&Row::measurementData, &Row::hasMeasurementData>(),
        propertyPart<&Row::hasValidMeasuredBlackValue>("<HasValidMeasuredBlackValue>true</HasValidMeasuredBlackValue>",
                                                       [](Row& row) { row.hasValidMeasuredBlackValue.set(true); }),
        recordPart<&Row::monitorParameter, &Row::hasMonitorParameter>()};
    return all;
}

CalibrationModeResult listOf(const Row& row) {
    CalibrationModeResult record;
    record.objects = {row};
    return record;
}

/// A row with an empty type and these children.
std::string rowElement(const std::string& children) {
    return R"(<ColorMode Type="">)" + children + "</ColorMode>";
}

/// The one row that these rows' elements give.
Row rowFrom(const std::string& colorMode) {
    const auto record = parsedFrom<CalibrationModeResult>(colorMode);
    EXPECT_EQ(record.objects.size(), 1U) << colorMode;
    return record.objects.at(0);
}

TEST(CalibrationModeResult, DefaultRecordWritesTheRootWithItsVersionAndNoRow) {
    EXPECT_EQ(compact(CalibrationModeResult()), R"(<CalibrationModeResult Version="2" MinorVersion="0"/>)");
}

TEST(CalibrationModeResult, FilledRowWritesAllElementsInOrder) {
    EXPECT_EQ(compact(listOf(filled<CalibrationModeResult>().objects.front())),
              written<CalibrationModeResult>(
                  R"(<ColorMode Type="type 13"><Index>14</Index><Name>name 15</Name>)"
                  "<CalibratedTime>calibratedTime 16</CalibratedTime>" +
                  compact(filled<BasicData>()) + compact(filled<MeasurementData>()) +
                  "<HasValidMeasuredBlackValue>true</HasValidMeasuredBlackValue>" +
                  compact(filled<MonitorParameter>()) + compact(filled<ProfileData>()) +
                  "<EmulationLUT><Availability>17</Availability><Index>18</Index><Name>name 19</Name></EmulationLUT>"
                  "</ColorMode>"));
}

TEST(CalibrationModeResult, ColorModeWithoutChildrenGivesARowWithNothingSetAndIsWrittenWithTypeAndProfile) {
    EXPECT_EQ(describe(rowFrom("<ColorMode/>")), describe(Row()));
    EXPECT_EQ(compact(listOf(rowFrom("<ColorMode/>"))), written<CalibrationModeResult>(rowElement(defaultProfile)));
}

TEST(CalibrationModeResult, EachPartIsWrittenAloneBeforeTheProfileAndReadBackAlone) {
    for (const Part& part : everyPart()) {
        Row row;
        part.fill(row);
        EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>(rowElement(part.text + defaultProfile)));
        EXPECT_EQ(describe(rowFrom("<ColorMode>" + part.text + "</ColorMode>")), describe(row));
    }
}

TEST(CalibrationModeResult, EachPartWhoseFlagIsClearIsNotWrittenRegardlessOfItsContent) {
    for (const Part& part : everyPart()) {
        Row row;
        part.fill(row);
        part.clearFlag(row);
        EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>(rowElement(defaultProfile)))
            << part.text.substr(0, 40);
    }
}

TEST(CalibrationModeResult, EachPartAloneIsLeftOutOfARowThatHoldsAllOthers) {
    for (const Part& missing : everyPart()) {
        Row row;
        std::string children;
        for (const Part& part : everyPart()) {
            part.fill(row);
            children += &part == &missing ? "" : part.text;
        }
        missing.clearFlag(row);
        EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>(rowElement(children + defaultProfile)));
    }
}

TEST(CalibrationModeResult, FirstOfRepeatedChildrenCounts) {
    const Row row = rowFrom("<ColorMode><Index>1</Index><Index>2</Index><BasicData/>" + compact(filled<BasicData>()) +
                            "</ColorMode>");
    EXPECT_EQ(row.index, (property<unsigned int>{1, true}));
    EXPECT_EQ(describe(row.basicData), describe(BasicData()));
}

TEST(CalibrationModeResult, TypeIsAlwaysWrittenEvenWhenUnsetEmptyOrStale) {
    for (const bool flag : {false, true}) {
        for (const char* text : {"", "User", "a\"<&"}) {
            Row row;
            row.type = {text, flag};
            const std::string escaped = std::string(text) == "a\"<&" ? "a&quot;&lt;&amp;" : text;
            EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>("<ColorMode Type=\"" + escaped + "\">" +
                                                                           defaultProfile + "</ColorMode>"));
        }
    }
}

TEST(CalibrationModeResult, TypeIsFoundWhenTheAttributeExists) {
    EXPECT_EQ(rowFrom(R"(<ColorMode Type="User &amp; 1"/>)").type, (property<std::string>{"User & 1", true}));
    EXPECT_EQ(rowFrom(R"(<ColorMode Type=""/>)").type, (property<std::string>{"", true}));
    for (const char* row :
         {"<ColorMode/>", R"(<ColorMode type="User"/>)", "<ColorMode><Type>User</Type></ColorMode>"}) {
        EXPECT_EQ(rowFrom(row).type, (property<std::string>{"", false})) << row;
    }
}

TEST(CalibrationModeResult, ProfileIsWrittenRegardlessOfItsFlag) {
    for (const bool flag : {false, true}) {
        Row row;
        row.hasProfileData = flag;
        row.profileData = filled<ProfileData>();
        EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>(rowElement(compact(filled<ProfileData>()))));
    }
}

TEST(CalibrationModeResult, ProfileIsReadAndItsFlagSaysWhetherItWasFound) {
    Row expected;
    expected.profileData = filledAndParsedBack<ProfileData>();
    expected.hasProfileData = true;
    EXPECT_EQ(describe(rowFrom("<ColorMode>" + compact(filled<ProfileData>()) + "</ColorMode>")), describe(expected));
    EXPECT_TRUE(rowFrom("<ColorMode><ProfileData/></ColorMode>").hasProfileData);
    EXPECT_FALSE(rowFrom("<ColorMode><profileData/></ColorMode>").hasProfileData);
}

TEST(CalibrationModeResult, RowReadWithoutAProfileGainsADefaultOne) {
    const auto again = parsed<CalibrationModeResult>(compact(listOf(rowFrom("<ColorMode/>"))));
    EXPECT_TRUE(again.objects.at(0).hasProfileData);
    EXPECT_FALSE(again.objects.at(0).profileData.measuredXYZ.hasValue);
    EXPECT_TRUE(again.objects.at(0).profileData.redTargetCurve.hasValue);
}

TEST(CalibrationModeResult, NestedRecordThatIsNotFoundClearsItsOwnFlagAlone) {
    const std::array<bool Row::*, 4> flags = {&Row::hasBasicData, &Row::hasMeasurementData, &Row::hasMonitorParameter,
                                              &Row::hasProfileData};
    const std::array<std::string, 4> names = {"BasicData", "MeasurementData", "MonitorParameter", "ProfileData"};
    for (std::size_t missing = 0; missing < names.size(); ++missing) {
        std::string children;
        for (std::size_t index = 0; index < names.size(); ++index) {
            children += index == missing ? "<x" + names[index] + "/>" : '<' + names[index] + "/>";
        }
        const Row row = rowFrom("<ColorMode>" + children + "</ColorMode>");
        for (std::size_t index = 0; index < names.size(); ++index) {
            EXPECT_EQ(row.*flags[index], index != missing) << names[index];
        }
    }
}

TEST(CalibrationModeResult, NestedMeasurementDataSecondaryIsIgnored) {
    const std::string secondary = compact(filled<MeasurementDataSecondary>());
    EXPECT_EQ(describe(rowFrom("<ColorMode>" + secondary + "</ColorMode>")), describe(Row()));
}

TEST(CalibrationModeResult, BlackValueIsTrueForTrueInSmallOrCapitalLettersOnly) {
    const auto read = [](const std::string& text) {
        return rowFrom("<ColorMode><HasValidMeasuredBlackValue>" + text + "</HasValidMeasuredBlackValue></ColorMode>")
            .hasValidMeasuredBlackValue;
    };
    for (const char* text : {"true", "TRUE"}) {
        EXPECT_EQ(read(text), (property<bool>{true, true})) << text;
    }
    for (const char* text : {"false", "FALSE", "True", "1", "yes", " true"}) {
        EXPECT_EQ(read(text), (property<bool>{false, true})) << text;
    }
    EXPECT_EQ(read(""), (property<bool>{false, false}));
}

TEST(CalibrationModeResult, BlackValueOfFalseIsWrittenWhenItIsSet) {
    Row row;
    row.hasValidMeasuredBlackValue.set(false);
    EXPECT_EQ(compact(listOf(row)),
              written<CalibrationModeResult>(
                  rowElement("<HasValidMeasuredBlackValue>false</HasValidMeasuredBlackValue>" + defaultProfile)));
}

TEST(CalibrationModeResult, IndexReadsAsUnsignedWithoutEverFailingAndEmptyCountsAsMissing) {
    const auto read = [](const std::string& text) {
        return rowFrom("<ColorMode><Index>" + text + "</Index></ColorMode>").index;
    };
    EXPECT_EQ(read("-1"), (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(read("99999999999"), (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(read("abc"), (property<unsigned int>{0, true}));
    EXPECT_EQ(read(""), (property<unsigned int>{0, false}));
}

TEST(CalibrationModeResult, EmptyTextsAreFoundAndWrittenBack) {
    const Row row = rowFrom("<ColorMode><Name/><CalibratedTime></CalibratedTime></ColorMode>");
    EXPECT_EQ(row.name, (property<std::string>{"", true}));
    EXPECT_EQ(row.calibratedTime, (property<std::string>{"", true}));
    EXPECT_EQ(compact(listOf(row)), written<CalibrationModeResult>(
                                        rowElement("<Name></Name><CalibratedTime></CalibratedTime>" + defaultProfile)));
}

TEST(CalibrationModeResult, NamesOfTheChildrenAreComparedWithTheirCase) {
    EXPECT_EQ(describe(rowFrom("<ColorMode><index>1</index><name>a</name><calibratedTime>b</calibratedTime>"
                               "<basicData/><measurementData/><monitorParameter/><emulationLut/>"
                               "<hasValidMeasuredBlackValue>true</hasValidMeasuredBlackValue></ColorMode>")),
              describe(Row()));
}

}  // namespace
}  // namespace lv::test
