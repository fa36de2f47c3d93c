#include "RecordSample.h"
#include "ShowTest.h"

#include <tests/support/documents.h>
#include <tests/support/parameter_names.h>
#include <tests/support/repeated.h>

#include <lvdata/records/EveryRecord.h>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ShowContent : public ShowTest {
protected:
    /// The line with that beginning, without it.
    [[nodiscard]] std::string lineOf(const std::string& head, const std::string& document) const {
        for (const std::string& line : linesIn(shown(document))) {
            if (line.rfind(head + ' ', 0) == 0) {
                return line.substr(line.find_first_not_of(' ', head.size()));
            }
        }
        return "";
    }

    [[nodiscard]] std::string scheduleOf(const std::string& type, const std::string& content = "") const {
        return lineOf("Schedule", configuration("<SelfCalibrationSchedule><Type Type='" + type + "'>" + content +
                                                "</Type></SelfCalibrationSchedule>"));
    }
};

// Single lines.

TEST_F(ShowContent, HasWhatIsKnownOfAMonitorAsHeading) {
    const auto heading = [this](const std::string& content) {
        return linesIn(shown(configuration(content))).at(0);
    };
    EXPECT_EQ(heading("<Name>a</Name><Model>b</Model><Serial>c</Serial>"), "a, b, serial c");
    EXPECT_EQ(heading("<Model>b</Model>"), "b");
    EXPECT_EQ(heading("<Name/><Model/><Serial>c</Serial>"), "serial c");
    EXPECT_EQ(heading("<Name/><Model/><Serial/>"), "MonitorConfiguration");
}

TEST_F(ShowContent, HasEveryKindOfSchedule) {
    EXPECT_EQ(scheduleOf("1", "<IntervalMonth>1</IntervalMonth>"), "every 1 month");
    EXPECT_EQ(scheduleOf("2", "<IntervalWeek>2</IntervalWeek>"), "every 2 weeks");
    EXPECT_EQ(scheduleOf("3", "<IntervalHour>200</IntervalHour>"), "every 200 hours");
    EXPECT_EQ(scheduleOf("31", "<IntervalHour>3</IntervalHour>"), "every 3 hours");
    EXPECT_EQ(scheduleOf("1"), "every N months");
    EXPECT_EQ(scheduleOf("17"), "once");
    EXPECT_EQ(scheduleOf("32"), "daily");
    EXPECT_EQ(scheduleOf("33"), "weekly");
    EXPECT_EQ(scheduleOf("50"), "monthly");
    EXPECT_EQ(scheduleOf("51"), "quarterly");
    EXPECT_EQ(scheduleOf("52"), "half-yearly");
    EXPECT_EQ(scheduleOf("53"), "yearly");
    EXPECT_EQ(scheduleOf("99"), "unknown kind 99");
    EXPECT_EQ(lineOf("Schedule", configuration("")), "");
}

TEST_F(ShowContent, HasTheCorrelation) {
    const auto correlation = [this](const std::string& content) {
        return lineOf("Correlation", "<MonitorInfo><CorrelationInfo>" + content + "</CorrelationInfo></MonitorInfo>");
    };
    const std::string date = "<CorrelationDate>2024</CorrelationDate>";
    const std::string serial = "<ReferenceSensorSerial>S</ReferenceSensorSerial>";
    EXPECT_EQ(correlation(date + serial), "2024, sensor S");
    EXPECT_EQ(correlation(date), "2024");
    EXPECT_EQ(correlation(serial), "sensor S");
    EXPECT_EQ(correlation("<ReferenceSensorSerial/>"), "");
}

TEST_F(ShowContent, HasTheAssetsThatAreNotEmpty) {
    EXPECT_EQ(lineOf("Assets", "<MonitorInfo><AssetInfo><Asset1>a</Asset1><Asset2/><Asset8>h</Asset8></AssetInfo>"
                               "</MonitorInfo>"),
              "a, h");
}

TEST_F(ShowContent, SaysWhatTheRecordHolds) {
    const std::string series = "><Measurements><RGB>1|1|1</RGB></Measurements></";
    EXPECT_EQ(lineOf("Holds", "<MonitorInfo><StandardModeResult><MeasurementData" + series +
                                  "MeasurementData><MeasurementDataSecondary" + series +
                                  "MeasurementDataSecondary></StandardModeResult><CandelaMap><Brightness><Values>1"
                                  "</Values></Brightness></CandelaMap></MonitorInfo>"),
              "2 measurements, brightness map of 1 entry");
    EXPECT_EQ(lineOf("Holds", "<MonitorInfo/>"), "");
}

TEST_F(ShowContent, HasOnlyNotesOnWhatItShows) {
    EXPECT_THAT(shown(modes(mode("1", "a"))),
                AllOf(HasSubstr("n/a: "), Not(HasSubstr("Δu'v':")), Not(HasSubstr("--y-unit"))));
}

TEST_F(ShowContent, HasTheStandardOfATargetWithoutAnOlderForm) {
    const std::string document =
        modes("<ColorMode Type='Calibration'><Index>1</Index><Target><TargetSetting><WhitePointV7 Type='Standard'>"
              "<Standard>D65</Standard></WhitePointV7></TargetSetting></Target></ColorMode>");
    EXPECT_THAT(shown(document), HasSubstr("\n1     -     D65           n/a  "));
    EXPECT_THAT(shown(document, {"--mode", "1"}), HasSubstr("\nTarget        white D65\n"));
}

TEST_F(ShowContent, SaysThatAWhiteOfZerosHasNoChromaticity) {
    const std::string white =
        "<CalibrationModeResult><ColorMode Type='Calibration'><Index>1</Index><BasicData><JustCalibratedWhite>0|0|0"
        "</JustCalibratedWhite></BasicData></ColorMode></CalibrationModeResult>";
    EXPECT_THAT(
        shown(white, {"--mode", "1"}),
        ContainsRegex("\n  White x +n/a \\(the target has no x and y\\) +n/a \\(X, Y and Z of the white are 0\\) "));
    EXPECT_THAT(shown(white), HasSubstr("1     -     -             n/a         n/a  "));
}

// Names as they should not be.

TEST_F(ShowContent, ShowsNamesOnOneLine) {
    const std::string hostile = "a&#10;b&#27;[2J\xFF\u2028";
    const std::string harmless = "a\\x0Ab\\x1B[2J\\xFF\\xE2\\x80\\xA8";
    const std::string document = configuration("<Name>" + hostile + "</Name><Model>" + hostile + "</Model><Serial>" +
                                               hostile + "</Serial>" + modes(mode("1", hostile)));
    const std::string text = shown(document);
    EXPECT_EQ(linesIn(text).at(0), harmless + ", " + harmless + ", serial " + harmless);
    EXPECT_THAT(text, HasSubstr("\n1     a\\x0Ab\\x1B[2J\\xFF\\x…  D65  "));
    EXPECT_THAT(shown(document, {"--mode", "1"}), StartsWith("Mode 1, " + harmless + "\n"));
}

TEST_F(ShowContent, ShowsTextsOnOneLine) {
    const std::string text =
        shown("<MonitorInfo><UUID>a&#10;b</UUID><AssetInfo><Asset1>c&#10;d</Asset1></AssetInfo><CorrelationInfo>"
              "<ReferenceSensorSerial>e&#10;f</ReferenceSensorSerial><CorrelationDate>g&#10;h</CorrelationDate>"
              "</CorrelationInfo></MonitorInfo>");
    EXPECT_THAT(text, AllOf(HasSubstr("UUID          a\\x0Ab\n"), HasSubstr("Assets        c\\x0Ad\n"),
                            HasSubstr("Correlation   g\\x0Ah, sensor e\\x0Af\n")));
}

TEST_F(ShowContent, CutsLongNamesInTheTableAlone) {
    const std::string name = lv::test::repeated("ä", 100'000);
    const std::string document = modes(mode("1", name) + mode("2", lv::test::repeated("ä", 20)));
    EXPECT_THAT(shown(document), AllOf(HasSubstr("\n1     " + lv::test::repeated("ä", 19) + "…  D65  "),
                                       HasSubstr("\n2     " + lv::test::repeated("ä", 20) + "  D65  ")));
    EXPECT_THAT(shown(document, {"--mode", "1"}), StartsWith("Mode 1, " + name + "\n"));
}

class ShownRecord : public ToolTest, public testing::WithParamInterface<RecordSample> {};

TEST_P(ShownRecord, IsTextForATerminal) {
    EXPECT_THAT(run({"show", "--full", "-"}, {GetParam().document()}).output, HasSubstr(GetParam().name + '\n'));
    for (const std::string option : {"--all", "--full"}) {
        const Outcome outcome = run({"show", option, "-"}, {GetParam().document()});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.error, "");
        EXPECT_THAT(outcome.output, HasSubstr("\nFindings      "));
        for (const std::string& line : linesIn(outcome.output)) {
            EXPECT_THAT(line, Not(EndsWith(" ")));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Records, ShownRecord, testing::ValuesIn(recordSamples(lv::EveryRecord())),
                         lv::test::nameOfParameter);

}  // namespace
