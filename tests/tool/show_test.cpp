#include "ShowTest.h"

#include <tools/lvdata/columns.h>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Lines = std::vector<std::string>;

const std::string studio = exampleData("studio.xml");

using Show = ShowTest;

TEST_F(Show, FitsAMonitorOnOneScreen) {
    const Outcome outcome = run({"show", studio});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.error, "");
    const Lines lines = linesIn(outcome.output);
    EXPECT_LE(lines.size(), 24U);
    for (const std::string& line : lines) {
        EXPECT_LE(tool::characterCount(line), 110U) << line;
    }
}

TEST_F(Show, HasTheMonitorAndItsModes) {
    EXPECT_EQ(
        run({"show", studio}).output,
        "Studio wall, LV-27W, serial 27W-000417\n"
        "UUID          6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417\n"
        "Assets        INV-2041, Grading suite 2, Wall, left of the mixing desk, Service & support: extension 88\n"
        "Schedule      monthly\n"
        "Correlation   2024-03-17, sensor S-3301\n"
        "Holds         3 calibrations, 484 measurements, uniformity map of 25 entries, brightness map of 25 entries\n"
        "\n"
        "Mode  Name           Target white      Measured        Δu'v'  Brightness         Y  Gamma       Calibrated\n"
        "0     Desktop        Temperature 6500  n/a               n/a  140 candela      n/a  2.2         -\n"
        "1     Follow signal  SyncSignal        n/a               n/a  SyncSignal       n/a  SyncSignal  -\n"
        "2     Photo          0.3127 0.3290     0.3129 0.3290  0.0001  120           120.03  2.2         2024-05-02\n"
        "3     Proof          0.3457 0.3585     0.3459 0.3582  0.0003  160           159.85  LStar       2024-05-02\n"
        "4     Broadcast      0.3127 0.3290     0.3128 0.3291  0.0001  1000         1000.67  HLG         2024-05-02\n"
        "\n"
        "Measured: CIE 1931 x and y of white.\n"
        "Y: CIE 1931 tristimulus value; the records do not state its unit (--y-unit).\n"
        "Δu'v': between target white and measured white, CIE 1976 UCS diagram, CIE 1931 2° observer.\n"
        "n/a: not available; --mode N gives the reason.\n"
        "Findings      none\n");
}

TEST_F(Show, HasOneMode) {
    const std::string text = run({"show", "--mode", "3", studio}).output;
    EXPECT_THAT(text, StartsWith("Mode 3, Proof\n"
                                 "Type          Calibration\n"
                                 "Calibrated    2024-05-02T09:48:00\n"
                                 "Target        brightness 160, white x 0.3457 y 0.3585 (D50), black Minimum, gamma "
                                 "LStar, gamut Native\n\n"));
    EXPECT_THAT(text, ContainsRegex("\n +Target +Measured +Difference\nWhite\n  White x +0.3457 +0.3459 +0.0002\n"));
    EXPECT_THAT(text, EndsWith("\n\nΔu'v': between target white and measured white, CIE 1976 UCS diagram, CIE 1931 2° "
                               "observer.\n"
                               "Y: CIE 1931 tristimulus value; the records do not state its unit (--y-unit).\n" +
                               noFindings));
}

TEST_F(Show, SaysWhyAFigureOfAModeIsMissing) {
    const std::string text = run({"show", "--mode", "0", studio}).output;
    EXPECT_THAT(text, StartsWith("Mode 0, Desktop\n"
                                 "Type          Standard\n"
                                 "Calibrated    -\n"
                                 "Target        brightness 140 candela, white Temperature 6500, gamma 2.2, gamut "
                                 "sRGB\n\n"));
    EXPECT_THAT(text, ContainsRegex("\n  Contrast +n/a \\(no calibration result\\)\n"));
    EXPECT_THAT(text, EndsWith("n/a (no calibration result)\n\n" + noFindings));
}

TEST_F(Show, HasTheFiguresAsJSON) {
    const std::string all = run({"show", "--json", studio}).output;
    EXPECT_THAT(all, AllOf(StartsWith("{\"monitor\":{\"uuid\":\"6f1d2c9a-"), EndsWith("}\n"), HasSubstr("\"Photo\"")));
    EXPECT_THAT(run({"show", "--json", "--mode", "3", studio}).output, Not(HasSubstr("\"Photo\"")));
    EXPECT_THAT(run({"show", "--json", "--y-unit", "cd/m²", studio}).output, HasSubstr("\"y_unit\":\"cd/m²\""));
    EXPECT_THAT(shown("<CandelaMap/>", {"--json"}), HasSubstr("\"maps\":"));
    EXPECT_EQ(run({"show", "--json", "--mode", "9", studio}).exitCode, 2);
    EXPECT_EQ(run({"show", "--json", "--full", studio}).exitCode, 2);
    write("in.xml", "<AssetInfo/>");
    EXPECT_EQ(run({"show", "--json", "in.xml"}), failed("in.xml: error: a document of AssetInfo has no figures"));
}

TEST_F(Show, HasTheUnitOfYThatItsUserKnows) {
    const std::string table = run({"show", studio, "--y-unit", "cd/m²"}).output;
    EXPECT_THAT(table, AllOf(HasSubstr("  Y cd/m²  "), HasSubstr("   120.03  "), Not(HasSubstr("--y-unit"))));
    const std::string one = run({"show", studio, "--y-unit", "cd/m²", "--mode", "3"}).output;
    EXPECT_THAT(one, ContainsRegex("\n  White Y \\(cd/m²\\) +160.0000 +159.8531 "));
    EXPECT_THAT(one, Not(HasSubstr("--y-unit")));
    EXPECT_THAT(run({"show", studio, "--y-unit", "a\nb"}).output, HasSubstr("Y a\\x0Ab"));
}

TEST_F(Show, ShowsAllModesOfOneIndex) {
    const std::string text = shown(modes(mode("1", "a") + mode("2", "b") + mode("1", "c")), {"--mode", "1"});
    EXPECT_THAT(text, AllOf(StartsWith("Mode 1, a\n"), HasSubstr("\n\nMode 1, c\n"), Not(HasSubstr("Mode 2"))));
}

TEST_F(Show, HasTwelveModesUnlessAskedForAll) {
    std::string rows;
    for (int index = 0; index < 12; ++index) {
        rows += mode(std::to_string(index), "name");
    }
    EXPECT_THAT(shown(modes(rows)), Not(HasSubstr("--all")));
    const std::string thirteen = modes(rows + mode("12", "last"));
    EXPECT_THAT(shown(thirteen), AllOf(HasSubstr("\nand 1 more mode (--all)\n"), Not(HasSubstr("last"))));
    EXPECT_THAT(shown(thirteen, {"--all"}), AllOf(HasSubstr("\n12    last  "), Not(HasSubstr("more mode"))));
    EXPECT_LE(linesIn(shown(thirteen)).size(), 24U);
}

// Failures.

TEST_F(Show, RefusesTheIndexOfNoMode) {
    write("in.xml", modes(mode("1", "a") + mode("7", "b")));
    EXPECT_EQ(run({"show", "--mode", "2", "in.xml"}),
              failed("in.xml: error: no colour mode has the index 2; known indices: 1, 7"));
    write("in.xml", modes(""));
    EXPECT_EQ(run({"show", "--mode", "2", "in.xml"}),
              failed("in.xml: error: no colour mode has the index 2; no mode has an index"));
}

TEST_F(Show, NamesTwentyIndicesAtMost) {
    std::string rows;
    for (int index = 0; index < 22; ++index) {
        rows += mode(std::to_string(index), "");
    }
    EXPECT_THAT(run({"show", "--mode", "99", "-"}, {modes(rows)}).error, EndsWith(", 18, 19, ...\n"));
}

TEST_F(Show, RefusesAModeOfOtherRecords) {
    write("in.xml", "<AssetInfo/>");
    EXPECT_EQ(run({"show", "--mode", "0", "in.xml"}),
              failed("in.xml: error: a document of AssetInfo has no colour modes"));
}

TEST_F(Show, RefusesWhatIsNotAnIndex) {
    for (const std::string text : {"", "-1", "x", "1.0", "0x1"}) {
        const Outcome outcome = run({"show", "--mode", text, studio});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_THAT(outcome.error, AllOf(StartsWith("lvdata: error: "), HasSubstr("--mode"))) << text;
    }
}

TEST_F(Show, ReportsWhatCannotBeRead) {
    EXPECT_EQ(run({"show", "missing.xml"}), failed("missing.xml: error: No such file or directory"));
    write("in.xml", "to do");
    EXPECT_EQ(run({"show", "in.xml"}), failed("in.xml: error: line 1: there is text where the root element belongs"));
    EXPECT_EQ(run({"show", "--max-size", "4", "in.xml"}),
              failed("in.xml: error: more than 4 bytes (limit: --max-size)"));
}

// Other documents.

TEST_F(Show, HasAMonitorWithoutAnything) {
    for (const std::string name :
         {"MonitorInfo", "MonitorConfiguration", "ColorModeSettings", "CalibrationModeResult"}) {
        EXPECT_THAT(shown('<' + name + "/>"), AllOf(StartsWith(name + "\nFindings  "), Not(HasSubstr("Mode  "))));
    }
}

TEST_F(Show, OutlinesRecordsThatAreNotOfAMonitor) {
    EXPECT_EQ(shown("<AssetInfo Version='1' MinorVersion='0'><Asset1>a</Asset1></AssetInfo>"),
              "AssetInfo\n  Asset1: a\n" + noFindings);
}

TEST_F(Show, HasTheGridAndTheUnitOfMapsThatItsUserKnows) {
    const std::string map =
        "<CandelaMap Version='1' MinorVersion='0'><Uniformity><Values>1|2|3</Values></Uniformity></CandelaMap>";
    EXPECT_THAT(shown(map), HasSubstr("    Values: 1, 2, 3\n"));
    EXPECT_THAT(shown(map, {"--map-unit", "%", "--grid", "2"}),
                HasSubstr("    Values: 3 entries, %\n      1 2\n      3\n"));
}

TEST_F(Show, HasEveryElementWhenAskedTo) {
    const std::string asset = "<AssetInfo Version='1' MinorVersion='0'><Asset1>a</Asset1></AssetInfo>";
    EXPECT_EQ(shown(asset, {"--full"}), shown(asset));
    EXPECT_THAT(shown("<MonitorInfo><UUID>u</UUID></MonitorInfo>", {"--full"}),
                AllOf(StartsWith("MonitorInfo\nUUID          u\nFindings"),
                      HasSubstr("\n\nMonitorInfo\n  UUID: u\n  MonitorConfiguration\n")));
    EXPECT_THAT(run({"show", "--full", "--mode", "3", studio}).output,
                AllOf(StartsWith("Mode 3, Proof\n"), HasSubstr("\n\nMonitorInfo\n  UUID: 6f1d2c9a")));
}

TEST_F(Show, CountsFindingsAndStillSucceeds) {
    EXPECT_THAT(shown("<AssetInfo Version='1' MinorVersion='0'><Owner>x</Owner></AssetInfo>"),
                AllOf(HasSubstr("Findings      "), HasSubstr(" (lvdata check)\n"), Not(HasSubstr(noFindings))));
}

// The document and the terminal.

TEST_F(Show, LeavesTheFileAsItIs) {
    const std::string text = "<AssetInfo>\n<Owner/></AssetInfo>";
    write("in.xml", text);
    EXPECT_EQ(run({"show", "in.xml"}).exitCode, 0);
    EXPECT_EQ(read("in.xml"), text);
    EXPECT_EQ(names(), Lines{"in.xml"});
}

TEST_F(Show, ReadsStandardInput) {
    write("in.xml", modes(mode("1", "a")));
    EXPECT_EQ(run({"show", "-"}, {read("in.xml")}), run({"show", "in.xml"}));
}

TEST_F(Show, IsColouredOnRequestAlone) {
    const std::string plain = run({"show", studio}).output;
    EXPECT_THAT(plain, Not(HasSubstr("\x1B")));
    EXPECT_EQ(run({"show", "--color", "never", studio}), printed(plain));
    const std::string coloured = run({"show", "--color", "always", studio}).output;
    EXPECT_THAT(coloured, StartsWith("\x1B[1mStudio wall, LV-27W, serial 27W-000417\x1B[0m\n"));
    EXPECT_THAT(coloured, HasSubstr("\x1B[1mMode  Name "));
    EXPECT_THAT(run({"show", "--color", "always", "--mode", "3", studio}).output,
                StartsWith("\x1B[1mMode 3, Proof\x1B[0m\n"));
}

}  // namespace
