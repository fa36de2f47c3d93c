#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>
#include <tests/support/schedule_kinds.h>

#include <gtest/gtest.h>

#include <lvdata/records/SelfCalibrationSchedule.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace lv::test {
namespace {

/// Kinds 0 to 60, and some that share low bytes or bits with known ones.
std::vector<unsigned int> everyKind() {
    std::vector<unsigned int> kinds;
    for (unsigned int kind = 0; kind <= 60; ++kind) {
        kinds.push_back(kind);
    }
    kinds.insert(kinds.end(), {100, 129, 255, 256, 257, 273, 0x135, 0x10001, 0x7FFFFFFF, 0x80000001, 4294967295U});
    return kinds;
}

std::string ofKind(unsigned int kind, const std::string& children) {
    const std::string start = "<Type Type=\"" + std::to_string(kind) + '"';
    return children.empty() ? start + "/>" : start + '>' + children + "</Type>";
}

/// Another number for every field.
unsigned int numberOf(const std::string& name) {
    unsigned int index = 0;
    while (everyScheduleField.at(index).element != name) {
        ++index;
    }
    return 101 + index;
}

std::string elementWithNumber(const std::string& name) {
    return element(name, std::to_string(numberOf(name)));
}

const std::string timingElement = "<Timing>T</Timing>";

SelfCalibrationSchedule withEveryFieldSet(unsigned int kind) {
    SelfCalibrationSchedule record;
    record.type.set(kind);
    for (const auto& [name, member] : everyScheduleField) {
        (record.*member).set(numberOf(name));
    }
    record.timing.set("T");
    return record;
}

std::string elementsOf(unsigned int kind, const std::string& leftOut = "") {
    std::string text;
    for (const std::string& name : elementsOfKind(kind)) {
        text += name == leftOut ? "" : elementWithNumber(name);
    }
    return text;
}

TEST(SelfCalibrationSchedule, FreshRecordIsWrittenAsAnEmptyElementOfVersion10) {
    EXPECT_EQ(compact(SelfCalibrationSchedule()), R"(<SelfCalibrationSchedule Version="1" MinorVersion="0"/>)");
}

TEST(SelfCalibrationSchedule, FilledRecordWritesTheElementsOfItsKindInOrder) {
    EXPECT_EQ(compact(filled<SelfCalibrationSchedule>()),
              R"(<SelfCalibrationSchedule Version="11" MinorVersion="12"><Type Type="1">)"
              "<IntervalMonth>14</IntervalMonth><ThWeek>22</ThWeek><Weekday>23</Weekday><Hour>24</Hour>"
              "<Minute>25</Minute><Timing>timing 26</Timing></Type></SelfCalibrationSchedule>");
}

TEST(SelfCalibrationSchedule, EachKindWithEveryFieldSetWritesItsOwnFieldsAndTiming) {
    for (const unsigned int kind : everyKind()) {
        EXPECT_EQ(compact(withEveryFieldSet(kind)),
                  written<SelfCalibrationSchedule>(ofKind(kind, elementsOf(kind) + timingElement)));
    }
}

TEST(SelfCalibrationSchedule, Kind2WithEveryFieldSetWritesIntervalWeekWeekdayHourMinuteAndTimingAlone) {
    SelfCalibrationSchedule record = filled<SelfCalibrationSchedule>();
    record.type.set(2);
    EXPECT_EQ(compact(record), R"(<SelfCalibrationSchedule Version="11" MinorVersion="12"><Type Type="2">)"
                               "<IntervalWeek>15</IntervalWeek><Weekday>23</Weekday><Hour>24</Hour><Minute>25</Minute>"
                               "<Timing>timing 26</Timing></Type></SelfCalibrationSchedule>");
}

TEST(SelfCalibrationSchedule, Kinds3And31BothWriteOnlyIntervalHourAndTiming) {
    for (const unsigned int kind : {3U, 31U}) {
        EXPECT_EQ(compact(withEveryFieldSet(kind)),
                  written<SelfCalibrationSchedule>(ofKind(kind, "<IntervalHour>103</IntervalHour>" + timingElement)));
    }
}

TEST(SelfCalibrationSchedule, EachFieldUnsetInTurnIsLeftOutWithoutAnEmptyElement) {
    for (const unsigned int kind : everyKind()) {
        for (const auto& [name, member] : everyScheduleField) {
            SelfCalibrationSchedule record = withEveryFieldSet(kind);
            (record.*member).hasValue = false;
            EXPECT_EQ(compact(record),
                      written<SelfCalibrationSchedule>(ofKind(kind, elementsOf(kind, name) + timingElement)));
        }
    }
}

TEST(SelfCalibrationSchedule, Kind17WithoutAnHourWritesYearMonthDayAndMinuteAndNoEmptyHour) {
    SelfCalibrationSchedule record = withEveryFieldSet(17);
    record.timing = {};
    record.hour = {};
    EXPECT_EQ(compact(record),
              written<SelfCalibrationSchedule>(
                  R"(<Type Type="17"><Year>108</Year><Month>109</Month><Day>110</Day><Minute>107</Minute></Type>)"));
}

TEST(SelfCalibrationSchedule, EachFieldAloneIsWrittenForTheKindsItBelongsToOnly) {
    for (const unsigned int kind : everyKind()) {
        const ElementNames names = elementsOfKind(kind);
        for (const auto& [name, member] : everyScheduleField) {
            SelfCalibrationSchedule record;
            record.type.set(kind);
            (record.*member).set(numberOf(name));
            const bool belongs = std::count(names.begin(), names.end(), name) != 0;
            EXPECT_EQ(compact(record),
                      written<SelfCalibrationSchedule>(ofKind(kind, belongs ? elementWithNumber(name) : "")));
        }
    }
}

TEST(SelfCalibrationSchedule, TimingIsWrittenForEveryKindAndOnlyWhenSet) {
    for (const unsigned int kind : everyKind()) {
        SelfCalibrationSchedule record;
        record.type.set(kind);
        record.timing.value = "T";
        EXPECT_EQ(compact(record), written<SelfCalibrationSchedule>(ofKind(kind, "")));
        record.timing.hasValue = true;
        EXPECT_EQ(compact(record), written<SelfCalibrationSchedule>(ofKind(kind, timingElement)));
    }
}

TEST(SelfCalibrationSchedule, NothingButTheRootIsWrittenWithoutAType) {
    SelfCalibrationSchedule onlyTiming;
    onlyTiming.timing.set("T");
    EXPECT_EQ(compact(onlyTiming), compact(SelfCalibrationSchedule()));
    for (const unsigned int kind : everyKind()) {
        SelfCalibrationSchedule record = withEveryFieldSet(kind);
        record.type.hasValue = false;
        EXPECT_EQ(compact(record), compact(SelfCalibrationSchedule())) << kind;
    }
}

/// All fields and the timing as elements; the kinds' own and foreign ones alike.
std::string everyElement() {
    std::string text;
    for (const auto& [name, member] : everyScheduleField) {
        text += elementWithNumber(name);
    }
    return text + timingElement;
}

TEST(SelfCalibrationSchedule, EachKindIsReadWithItsOwnFieldsAndThoseOfOtherKinds) {
    for (const unsigned int kind : everyKind()) {
        const auto record = parsedFrom<SelfCalibrationSchedule>(ofKind(kind, everyElement()));
        EXPECT_EQ(describe(record), describe(withEveryFieldSet(kind))) << kind;
        EXPECT_EQ(compact(record), written<SelfCalibrationSchedule>(ofKind(kind, elementsOf(kind) + timingElement)));
    }
}

TEST(SelfCalibrationSchedule, EachFieldIsReadAloneUnderEveryKindAndSetsNothingElse) {
    for (const unsigned int kind : everyKind()) {
        for (const auto& [name, member] : everyScheduleField) {
            SelfCalibrationSchedule expected;
            expected.type.set(kind);
            (expected.*member).set(numberOf(name));
            EXPECT_EQ(describe(parsedFrom<SelfCalibrationSchedule>(ofKind(kind, elementWithNumber(name)))),
                      describe(expected))
                << name;
        }
    }
}

TEST(SelfCalibrationSchedule, YearUnderKind32IsReadAndDroppedWhenWrittenBack) {
    const auto record =
        parsedFrom<SelfCalibrationSchedule>(R"(<Type Type="32"><Year>2026</Year><Hour>7</Hour></Type>)");
    EXPECT_EQ(record.year, (property<unsigned int>{2026, true}));
    EXPECT_EQ(compact(record), written<SelfCalibrationSchedule>(R"(<Type Type="32"><Hour>7</Hour></Type>)"));
}

TEST(SelfCalibrationSchedule, TypeWithoutTheAttributeLeavesTheKindUnsetAndReadsTheFields) {
    SelfCalibrationSchedule expected = withEveryFieldSet(0);
    expected.type = {};
    const auto record = parsedFrom<SelfCalibrationSchedule>(element("Type", everyElement()));
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), compact(SelfCalibrationSchedule()));
}

TEST(SelfCalibrationSchedule, FieldsOutsideTheFirstTypeAreNotRead) {
    SelfCalibrationSchedule expected;
    expected.type.set(53);
    EXPECT_EQ(describe(parsedFrom<SelfCalibrationSchedule>(everyElement() + R"(<Type Type="53"/>)")),
              describe(expected));
    EXPECT_EQ(describe(parsedFrom<SelfCalibrationSchedule>(everyElement())), describe(SelfCalibrationSchedule()));
    EXPECT_EQ(describe(parsedFrom<SelfCalibrationSchedule>(R"(<Type Type="53"/>)" + ofKind(2, everyElement()))),
              describe(expected));
}

TEST(SelfCalibrationSchedule, SecondDocumentClearsTheFlagsOfWhatItLacksAndKeepsTheValues) {
    for (const auto& [name, member] : everyScheduleField) {
        SelfCalibrationSchedule record = withEveryFieldSet(53);
        ASSERT_TRUE(record.parseXMLString(documentOf<SelfCalibrationSchedule>(ofKind(2, element(name, "4294967295")))));
        SelfCalibrationSchedule expected = withEveryFieldSet(2);
        for (const ScheduleField& other : everyScheduleField) {
            (expected.*other.member).hasValue = false;
        }
        expected.timing.hasValue = false;
        (expected.*member).set(4294967295U);
        EXPECT_EQ(describe(record), describe(expected)) << name;
    }
}

TEST(SelfCalibrationSchedule, MissingTypeLeavesEveryMemberUnsetWithItsValue) {
    SelfCalibrationSchedule record = withEveryFieldSet(53);
    ASSERT_TRUE(record.parseXMLString("<SelfCalibrationSchedule/>"));
    EXPECT_EQ(describe(record), describe(withClearFlags(withEveryFieldSet(53))));
}

TEST(SelfCalibrationSchedule, EmptyFieldCountsAsMissingAndEmptyTimingAsSet) {
    for (const auto& [name, member] : everyScheduleField) {
        EXPECT_EQ((parsedFrom<SelfCalibrationSchedule>(element("Type", '<' + name + "/>")).*member),
                  (property<unsigned int>{0, false}))
            << name;
    }
    EXPECT_EQ(parsedFrom<SelfCalibrationSchedule>("<Type><Timing/></Type>").timing, (property<std::string>{"", true}));
}

TEST(SelfCalibrationSchedule, NumbersAreReadAsUnsignedWithoutEverFailing) {
    const std::map<std::string, unsigned int> numbers = {
        {"-1", 4294967295U}, {"99999999999", 4294967295U}, {" 12.9", 12}, {"007", 7}, {"abc", 0}, {"0x11", 0}};
    for (const auto& [text, number] : numbers) {
        for (const auto& [name, member] : everyScheduleField) {
            EXPECT_EQ((parsedFrom<SelfCalibrationSchedule>(element("Type", element(name, text))).*member),
                      (property<unsigned int>{number, true}));
        }
        EXPECT_EQ(parsedFrom<SelfCalibrationSchedule>("<Type Type=\"" + text + "\"/>").type,
                  (property<unsigned int>{number, true}))
            << text;
    }
    EXPECT_EQ(parsedFrom<SelfCalibrationSchedule>(R"(<Type Type=""/>)").type, (property<unsigned int>{0, false}));
}

TEST(SelfCalibrationSchedule, NamesInAnotherCaseAreNotFound) {
    EXPECT_EQ(describe(parsedFrom<SelfCalibrationSchedule>("<type Type=\"53\">" + everyElement() + "</type>")),
              describe(SelfCalibrationSchedule()));
    EXPECT_EQ(
        describe(parsedFrom<SelfCalibrationSchedule>(R"(<Type type="53"><hour>1</hour><TIMING>T</TIMING></Type>)")),
        describe(SelfCalibrationSchedule()));
}

}  // namespace
}  // namespace lv::test
