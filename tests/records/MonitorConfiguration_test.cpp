#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorConfiguration.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

struct Text {
    std::string element;
    property<std::string> MonitorConfiguration::*member;
};

const std::array everyText = {Text{"Name", &MonitorConfiguration::name}, Text{"Model", &MonitorConfiguration::model},
                              Text{"Serial", &MonitorConfiguration::serial}};

struct Number {
    std::string element;
    property<unsigned int> MonitorConfiguration::*member;
};

const std::array everyNumber = {Number{"StandardModeCalibration", &MonitorConfiguration::standardModeCalibration},
                                Number{"KeyLock", &MonitorConfiguration::keyLock}};

const std::string defaultRecords = R"(<ColorModeSettings Version="2" MinorVersion="0"/>)"
                                   R"(<SelfCalibrationSchedule Version="1" MinorVersion="0"/>)";

TEST(MonitorConfiguration, DefaultRecordWritesTheTwoNestedRecordsAndNothingElse) {
    EXPECT_EQ(compact(MonitorConfiguration()),
              R"(<MonitorConfiguration Version="2" MinorVersion="0">)" + defaultRecords + "</MonitorConfiguration>");
}

TEST(MonitorConfiguration, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(compact(filled<MonitorConfiguration>()),
              R"(<MonitorConfiguration Version="11" MinorVersion="12">)"
              "<Name>name 13</Name><Model>model 14</Model><Serial>serial 15</Serial>" +
                  compact(filled<ColorModeSettings>()) + compact(filled<SelfCalibrationSchedule>()) +
                  "<StandardModeCalibration>16</StandardModeCalibration><KeyLock>17</KeyLock>"
                  "</MonitorConfiguration>");
}

TEST(MonitorConfiguration, ModelAloneIsWrittenAndComesBackAlone) {
    MonitorConfiguration record;
    record.model.set("M1");
    const std::string text = written<MonitorConfiguration>("<Model>M1</Model>" + defaultRecords);
    EXPECT_EQ(compact(record), text);
    const auto back = parsed<MonitorConfiguration>(text);
    EXPECT_EQ(back.version, (property<unsigned int>{2, true}));
    EXPECT_EQ(back.minorVersion, (property<unsigned int>{0, true}));
    EXPECT_EQ(back.model, (property<std::string>{"M1", true}));
    EXPECT_FALSE(back.name.hasValue);
    EXPECT_FALSE(back.serial.hasValue);
    EXPECT_EQ(compact(back), text);
}

TEST(MonitorConfiguration, TextsAndNumbersAreWrittenEachByItsOwnFlag) {
    for (unsigned int flags = 0; flags < 32; ++flags) {
        MonitorConfiguration record;
        record.name = {"a", (flags & 1U) != 0};
        record.model = {"b", (flags & 2U) != 0};
        record.serial = {"c", (flags & 4U) != 0};
        record.standardModeCalibration = {5, (flags & 8U) != 0};
        record.keyLock = {6, (flags & 16U) != 0};
        EXPECT_EQ(compact(record),
                  written<MonitorConfiguration>(
                      (record.name.hasValue ? "<Name>a</Name>" : std::string()) +
                      (record.model.hasValue ? "<Model>b</Model>" : "") +
                      (record.serial.hasValue ? "<Serial>c</Serial>" : "") + defaultRecords +
                      (record.standardModeCalibration.hasValue ? element("StandardModeCalibration", "5") : "") +
                      (record.keyLock.hasValue ? "<KeyLock>6</KeyLock>" : "")));
    }
}

TEST(MonitorConfiguration, NestedRecordsAreWrittenRegardlessOfTheirFlags) {
    for (const bool hasModes : {false, true}) {
        for (const bool hasSchedule : {false, true}) {
            auto record = filled<MonitorConfiguration>();
            record.colorModeSettings.hasValue = hasModes;
            record.selfCalibrationSchedule.hasValue = hasSchedule;
            EXPECT_EQ(compact(record), compact(filled<MonitorConfiguration>()));
        }
    }
}

TEST(MonitorConfiguration, EachTextIsReadAloneAndSetsNothingElse) {
    for (const auto& [name, member] : everyText) {
        MonitorConfiguration expected;
        (expected.*member).set("text");
        EXPECT_EQ(describe(parsedFrom<MonitorConfiguration>(element(name, "text"))), describe(expected));
    }
}

TEST(MonitorConfiguration, EachNumberIsReadAloneAndSetsNothingElse) {
    for (const auto& [name, member] : everyNumber) {
        MonitorConfiguration expected;
        (expected.*member).set(77);
        EXPECT_EQ(describe(parsedFrom<MonitorConfiguration>(element(name, "77"))), describe(expected));
    }
}

TEST(MonitorConfiguration, EachNestedRecordIsReadAloneAndSetsNothingElse) {
    MonitorConfiguration withModes;
    withModes.colorModeSettings.set(filledAndParsedBack<ColorModeSettings>());
    EXPECT_EQ(describe(parsedFrom<MonitorConfiguration>(compact(filled<ColorModeSettings>()))), describe(withModes));
    MonitorConfiguration withSchedule;
    withSchedule.selfCalibrationSchedule.set(filledAndParsedBack<SelfCalibrationSchedule>());
    EXPECT_EQ(describe(parsedFrom<MonitorConfiguration>(compact(filled<SelfCalibrationSchedule>()))),
              describe(withSchedule));
}

TEST(MonitorConfiguration, EmptyTextIsSetAndIsWrittenBack) {
    for (const auto& [name, member] : everyText) {
        for (const std::string& text : {'<' + name + "/>", element(name, ""), element(name, " \n ")}) {
            const auto record = parsedFrom<MonitorConfiguration>(text);
            EXPECT_EQ(record.*member, (property<std::string>{"", true})) << text;
            EXPECT_EQ(compact(record), written<MonitorConfiguration>(element(name, "") + defaultRecords));
        }
    }
}

TEST(MonitorConfiguration, TextWithoutContentKeepsTheEarlierOneAndSetsTheFlag) {
    for (const auto& [name, member] : everyText) {
        auto expected = withClearFlags(filled<MonitorConfiguration>());
        (expected.*member).hasValue = true;
        EXPECT_EQ(describe(afterReading(filled<MonitorConfiguration>(), '<' + name + "/>")), describe(expected));
    }
}

TEST(MonitorConfiguration, EmptyNumberCountsAsMissing) {
    for (const auto& [name, member] : everyNumber) {
        EXPECT_EQ(describe(afterReading(filled<MonitorConfiguration>(), '<' + name + "/>")),
                  describe(withClearFlags(filled<MonitorConfiguration>())));
        EXPECT_EQ(parsedFrom<MonitorConfiguration>('<' + name + "/>").*member, (property<unsigned int>{0, false}));
    }
}

TEST(MonitorConfiguration, DocumentWithoutKeyLockClearsItsFlagAndPrintsWithoutIt) {
    const auto record =
        afterReading(filled<MonitorConfiguration>(), "<StandardModeCalibration>5</StandardModeCalibration>");
    EXPECT_EQ(record.keyLock, (property<unsigned int>{17, false}));
    EXPECT_EQ(compact(record).find("KeyLock"), std::string::npos);
}

TEST(MonitorConfiguration, StandardModeCalibrationOfMinusOneReadsAs4294967295) {
    const auto record = parsedFrom<MonitorConfiguration>("<StandardModeCalibration>-1</StandardModeCalibration>");
    EXPECT_EQ(record.standardModeCalibration, (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(compact(record),
              written<MonitorConfiguration>(defaultRecords + element("StandardModeCalibration", "4294967295")));
}

TEST(MonitorConfiguration, NumbersReadAsUnsignedWithoutEverFailing) {
    for (const auto& [name, member] : everyNumber) {
        const auto number = [&, &name = name, &member = member](const std::string& text) {
            return parsedFrom<MonitorConfiguration>(element(name, text)).*member;
        };
        EXPECT_EQ(number("-1"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(number("99999999999"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(number(" 12.9"), (property<unsigned int>{12, true})) << name;
        EXPECT_EQ(number("abc"), (property<unsigned int>{0, true})) << name;
    }
}

TEST(MonitorConfiguration, TextsTakeAnythingAndComeBack) {
    const std::string text = " <B\u00fcro> & \"1\" 'a' \u6771\u4eac ]]> ";
    for (const auto& [name, member] : everyText) {
        MonitorConfiguration record;
        (record.*member).set(text);
        EXPECT_EQ(parsed<MonitorConfiguration>(compact(record)).*member, record.*member) << name;
    }
    EXPECT_EQ(parsedFrom<MonitorConfiguration>("<Serial>&lt;&#48;01&amp;</Serial>").serial,
              (property<std::string>{"<001&", true}));
}

TEST(MonitorConfiguration, NestedRecordThatIsMissingClearsItsOwnFlagAndKeepsItsValue) {
    const std::string schedule = compact(filled<SelfCalibrationSchedule>());
    auto withoutModes = withClearFlags(filled<MonitorConfiguration>());
    withoutModes.selfCalibrationSchedule.hasValue = true;
    ASSERT_TRUE(withoutModes.selfCalibrationSchedule.value.parseXMLString(schedule));
    EXPECT_EQ(describe(afterReading(filled<MonitorConfiguration>(), schedule)), describe(withoutModes));
    const std::string modes = compact(filled<ColorModeSettings>());
    auto withoutSchedule = withClearFlags(filled<MonitorConfiguration>());
    withoutSchedule.colorModeSettings.hasValue = true;
    ASSERT_TRUE(withoutSchedule.colorModeSettings.value.parseXMLString(modes));
    EXPECT_EQ(describe(afterReading(filled<MonitorConfiguration>(), modes)), describe(withoutSchedule));
}

TEST(MonitorConfiguration, NestedRecordThatWasMissingIsWrittenWithItsEarlierValue) {
    auto expected = withClearFlags(filled<MonitorConfiguration>());
    EXPECT_EQ(compact(afterReading(filled<MonitorConfiguration>(), "")), compact(expected));
    EXPECT_NE(compact(expected).find(compact(filled<ColorModeSettings>())), std::string::npos);
    EXPECT_NE(compact(expected).find(compact(filled<SelfCalibrationSchedule>())), std::string::npos);
}

TEST(MonitorConfiguration, NestedRecordWithOtherCaseOrPlaceCountsAsMissing) {
    const std::string modes = compact(filled<ColorModeSettings>());
    const std::string schedule = compact(filled<SelfCalibrationSchedule>());
    for (const std::string& text : {std::string("<colorModeSettings/><selfCalibrationSchedule/>"),
                                    "<Other>" + modes + schedule + "</Other>", "<Name>" + modes + "</Name>"}) {
        const auto record = parsedFrom<MonitorConfiguration>(text);
        EXPECT_EQ(describe(record.colorModeSettings.value), describe(ColorModeSettings())) << text;
        EXPECT_FALSE(record.colorModeSettings.hasValue) << text;
        EXPECT_FALSE(record.selfCalibrationSchedule.hasValue) << text;
    }
}

TEST(MonitorConfiguration, NestedRecordInsideTheOtherCountsAsMissing) {
    const auto record =
        parsedFrom<MonitorConfiguration>("<ColorModeSettings><SelfCalibrationSchedule/></ColorModeSettings>");
    EXPECT_TRUE(record.colorModeSettings.hasValue);
    EXPECT_FALSE(record.selfCalibrationSchedule.hasValue);
}

TEST(MonitorConfiguration, EmptyNestedRecordIsFoundAndEmptiesTheRows) {
    auto expected = withClearFlags(filled<MonitorConfiguration>());
    expected.colorModeSettings.hasValue = true;
    expected.colorModeSettings.value.version.hasValue = false;
    expected.colorModeSettings.value.minorVersion.hasValue = false;
    expected.colorModeSettings.value.objects.clear();
    EXPECT_EQ(describe(afterReading(filled<MonitorConfiguration>(), "<ColorModeSettings/>")), describe(expected));
}

TEST(MonitorConfiguration, EmptyScheduleIsFoundAndClearsItsFlags) {
    const auto record = afterReading(filled<MonitorConfiguration>(), "<SelfCalibrationSchedule/>");
    EXPECT_TRUE(record.selfCalibrationSchedule.hasValue);
    EXPECT_EQ(describe(record.selfCalibrationSchedule.value), filledAfterEmptyRoot<SelfCalibrationSchedule>());
}

TEST(MonitorConfiguration, FirstOfRepeatedNestedRecordsIsTheOneThatIsRead) {
    const auto record =
        parsedFrom<MonitorConfiguration>("<ColorModeSettings/>" + compact(filled<ColorModeSettings>()) +
                                         "<SelfCalibrationSchedule/>" + compact(filled<SelfCalibrationSchedule>()));
    EXPECT_EQ(describe(record),
              describe(parsedFrom<MonitorConfiguration>("<ColorModeSettings/><SelfCalibrationSchedule/>")));
}

TEST(MonitorConfiguration, NameOfAColorModeIsNotTheNameOfTheMonitor) {
    const auto record = parsedFrom<MonitorConfiguration>(
        "<ColorModeSettings><ColorMode><Name>mode</Name></ColorMode></ColorModeSettings>");
    EXPECT_EQ(record.name, (property<std::string>{"", false}));
    EXPECT_EQ(record.colorModeSettings.value.objects.at(0).name, (property<std::string>{"mode", true}));
}

TEST(MonitorConfiguration, VersionsOfTheNestedRecordsAreTheirOwn) {
    const auto record = parsedFrom<MonitorConfiguration>(
        R"(<ColorModeSettings Version="7"/><SelfCalibrationSchedule MinorVersion="8"/>)");
    EXPECT_EQ(compact(record),
              written<MonitorConfiguration>(R"(<ColorModeSettings Version="7" MinorVersion="0"/>)"
                                            R"(<SelfCalibrationSchedule Version="1" MinorVersion="8"/>)"));
}

TEST(MonitorConfiguration, CopyOfItsNestedRecordsSharesNothing) {
    const auto original = filled<MonitorConfiguration>();
    MonitorConfiguration copy = original;
    copy.colorModeSettings.value.objects.at(2).targetSetting.value.gamma.value.red.lut24.push_back(1);
    copy.colorModeSettings.value.objects.pop_back();
    copy.selfCalibrationSchedule.value.timing.value += 1;
    EXPECT_EQ(describe(original), describe(filled<MonitorConfiguration>()));
}

}  // namespace
}  // namespace lv::test
