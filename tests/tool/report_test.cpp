#include "MonitorTest.h"

#include <ctime>
#include <iomanip>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

using Report = MonitorTest;

/// How many times one text is in another.
std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

// One page.

TEST_F(Report, IsAPageOfOneMonitor) {
    const std::string page = made({"report", studio});
    EXPECT_EQ(page.rfind("<!DOCTYPE html>", 0), 0U);
    EXPECT_TRUE(contains(page, "<title>Studio wall"));
    EXPECT_TRUE(contains(page, "27W-000417"));
    EXPECT_EQ(count(page, "<html"), 1U);
}

TEST_F(Report, ReadsStandardInput) {
    EXPECT_TRUE(contains(made({"report", "-"}, {monitor()}), "<title>Wall"));
}

TEST_F(Report, HasTheHeadingAndTheDateThatAreAskedFor) {
    EXPECT_FALSE(contains(made({"report", studio}), "Spring"));
    EXPECT_TRUE(contains(made({"report", studio, "--title", "Spring <1>"}), "<title>Spring &lt;1&gt;"));
    EXPECT_TRUE(contains(made({"report", studio, "--date", "1 May"}), "1 May"));
    EXPECT_TRUE(made({"report", studio, "--date", ""}) == made({"report", studio}));
}

/// The day it is where the test runs.
std::string today() {
    const std::time_t now = std::time(nullptr);
    std::ostringstream day;
    day << std::put_time(std::localtime(&now), "%Y-%m-%d");  // NOLINT(concurrency-mt-unsafe): one thread
    return day.str();
}

TEST_F(Report, HasTheDayOfTodayWhenAskedFor) {
    const std::string before = today();
    const std::string page = made({"report", "--date", "now", studio}, withVariable("SOURCE_DATE_EPOCH", ""));
    EXPECT_TRUE(contains(page, before) || contains(page, today()));
}

TEST_F(Report, HasTheDayOfTheVariable) {
    const Arguments command{"report", "--date", "now", studio};
    EXPECT_TRUE(contains(made(command, withVariable("SOURCE_DATE_EPOCH", "951782400")), "2000-02-29"));
    for (const std::string time : {"x", "-1", "1x", "253402300800", "99999999999999999999"}) {
        EXPECT_EQ(run(command, withVariable("SOURCE_DATE_EPOCH", time)),
                  failed("lvdata: error: SOURCE_DATE_EPOCH is not a number of seconds: '" + time + "'"));
    }
}

TEST_F(Report, ShowsOneModeOnRequest) {
    const std::string all = made({"report", studio});
    const std::string one = made({"report", studio, "--mode", "3"});
    EXPECT_GT(count(all, "<th>Contrast<"), count(one, "<th>Contrast<"));
    EXPECT_TRUE(contains(one, "Proof"));
    EXPECT_EQ(run({"report", studio, "--mode", "9"}),
              failed(studio + ": error: no colour mode has the index 9; known indices: 0, 1, 2, 3, 4"));
    EXPECT_EQ(run({"report", studio, "--mode", "x"}).exitCode, 2);
}

TEST_F(Report, HasTheUnitsThatItsUserKnows) {
    EXPECT_FALSE(contains(made({"report", studio}), "my unit"));
    EXPECT_TRUE(contains(made({"report", studio, "--y-unit", "my unit"}), "my unit"));
    EXPECT_TRUE(contains(made({"report", studio, "--map-unit", "my unit"}), "my unit"));
    EXPECT_TRUE(made({"report", studio, "--grid", "5"}) != made({"report", studio}));
}

TEST_F(Report, UsesTheLimitsThatAreAskedFor) {
    const std::string page = made({"report", studio});
    EXPECT_TRUE(made({"report", studio, "--limits", "default"}) == page);
    EXPECT_TRUE(made({"report", studio, "--limits", "iso14861"}) != page);
    EXPECT_EQ(run({"report", studio, "--limits", "missing"}).exitCode, 2);
    EXPECT_THAT(run({"report", studio, "--limits", "missing"}).error,
                StartsWith("missing: error: no file and no limit set has this name; known limit sets: default, "));
    fs::create_directory(path("folder"));
    EXPECT_EQ(run({"report", studio, "--limits", "folder"}), failed("folder: error: Is a directory"));
    write("large", std::string(1'000'001, ' '));
    EXPECT_EQ(run({"report", studio, "--limits", "large"}),
              failed("large: error: more than 1000000 bytes, too large for a limit set"));
}

TEST_F(Report, FailsOnLimitsOnRequest) {
    const std::string figure =
        R"({"name": "own", "title": "Own", "notice": "", "limits": [{"figure": "white_delta_uv", "maximum": )";
    write("strict.json", figure + "0}]}");
    write("lax.json", figure + "1}]}");
    EXPECT_EQ(run({"report", studio, "--limits", "strict.json", "-o", "out.html"}), done());
    EXPECT_EQ(run({"report", studio, "--limits", "strict.json", "-o", "out.html", "--fail-on-limits"}).exitCode, 1);
    EXPECT_EQ(run({"report", studio, "--limits", "lax.json", "-o", "out.html", "--fail-on-limits"}), done());
    EXPECT_EQ(run({"report", studio, "--limits", "strict.json", "-o", "out/", "--fail-on-limits"}).exitCode, 1);
    EXPECT_EQ(run({"report", studio, "--limits", "lax.json", "-o", "out/", "--fail-on-limits"}), done());
}

/// Modes without a result are not judged on the page, so they do not fail.
TEST_F(Report, FailsOnLimitsOfItsPageOnly) {
    const std::string limit = R"({"figure": "patches_count", "minimum": 1})";
    write("own.json", R"({"name": "own", "title": "Own", "notice": "", "limits": [)" + limit + "]}");
    write("in.xml", monitor());
    EXPECT_EQ(run({"report", studio, "--limits", "own.json", "-o", "out.html", "--fail-on-limits"}), done());
    EXPECT_TRUE(contains(read("out.html"), "3 of 3 figures within the limits"));
    EXPECT_EQ(run({"report", "in.xml", "--limits", "own.json", "-o", "out.html", "--fail-on-limits"}).exitCode, 1);
}

TEST_F(Report, SaysWhatIsWrongWithAFileOfLimits) {
    write("limits.json", "{\n\"name\": 1\n}");
    const Outcome outcome = run({"report", studio, "--limits", "limits.json", "-o", "out.html"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, StartsWith("limits.json: error: line 2: "));
    EXPECT_EQ(names(), std::vector<std::string>{"limits.json"});
}

TEST_F(Report, IsTheSameEachTime) {
    for (const std::string jobs : {"1", "2"}) {
        EXPECT_TRUE(made({"report", studio, "--jobs", jobs}) == made({"report", studio}));
    }
}

// Several documents of one monitor.

TEST_F(Report, HasTheHistoryOfOneMonitor) {
    write("new.xml", monitor({"Wall", "1", "u-1", "2024-05-02T09:31:00"}));
    write("old.xml", monitor({"Attic", "1", "u-1", "2023-04-01T09:31:00"}));
    const std::string page = made({"report", "new.xml", "old.xml"});
    for (const std::string text : {"<title>Wall", "old.xml", "new.xml", "2023-04-01"}) {
        EXPECT_TRUE(contains(page, text)) << text;
    }
    EXPECT_TRUE(made({"report", "old.xml", "new.xml"}) == page);
    EXPECT_TRUE(made({"report", "."}) == page);
}

/// A page is the same on every machine, and tells nothing of its folders.
TEST_F(Report, NamesDocumentsWithoutTheirFolders) {
    fs::create_directory(path("secret"));
    write("in.xml", monitor());
    write("secret/in.xml", monitor());
    EXPECT_FALSE(contains(made({"report", "secret/in.xml"}), "secret"));
    EXPECT_TRUE(made({"report", pathText("secret/in.xml")}) == made({"report", "in.xml"}));
    EXPECT_EQ(run({"report", "secret/in.xml", "--mode", "9"}),
              failed("secret/in.xml: error: no colour mode has the index 9; known indices: 2"));
}

TEST_F(Report, KnowsAMonitorByItsSerialNumberAndModel) {
    const std::string modes = "<ColorModeSettings Version='2' MinorVersion='0'/>";
    const auto configuration = [&](const std::string& serial) {
        return "<MonitorConfiguration Version='2' MinorVersion='0'><Model>M</Model><Serial>" + serial + "</Serial>" +
               modes + "</MonitorConfiguration>";
    };
    write("a.xml", configuration("1"));
    write("b.xml", configuration("1"));
    write("c.xml", configuration("2"));
    EXPECT_TRUE(contains(made({"report", "a.xml", "b.xml"}), "</html>"));
    EXPECT_EQ(run({"report", "a.xml", "b.xml", "c.xml"}).exitCode, 2);
}

TEST_F(Report, HasOneMonitorInAFile) {
    write("a.xml", monitor({"Wall", "1", "u-1"}));
    write("b.xml", monitor({"Wall", "1", "u-2"}));
    const std::string message =
        "b.xml: error: is about a different monitor than the documents before it; with -o FOLDER/ "
        "there is a page for each monitor";
    EXPECT_EQ(run({"report", "a.xml", "b.xml"}), failed(message));
    EXPECT_EQ(run({"report", "a.xml", "b.xml", "-o", "out.html"}), failed(message));
    EXPECT_EQ(names(), (Arguments{"a.xml", "b.xml"}));
    write("a.xml", "<ColorModeSettings/>");
    EXPECT_EQ(run({"report", "a.xml", "a.xml"}),
              failed("a.xml: error: has no UUID and no serial number, so it cannot be matched with the monitor of "
                     "the documents before it; with -o FOLDER/ there is a page for each monitor"));
}

// Documents that are none of a monitor.

TEST_F(Report, RefusesWhatIsNotOfAMonitor) {
    write("asset.xml", "<AssetInfo/>");
    write("bad.xml", "<MonitorInfo>\n</MonitorConfiguration>");
    EXPECT_EQ(run({"report", "asset.xml", "-o", "out.html"}),
              failed("asset.xml: error: a document of AssetInfo does not describe a monitor"));
    EXPECT_THAT(run({"report", "bad.xml"}).error, StartsWith("bad.xml: error: line 2: "));
    EXPECT_EQ(run({"report", "none.xml"}), failed("none.xml: error: No such file or directory"));
    EXPECT_EQ(run({"report", "--max-size", "4", "bad.xml"}),
              failed("bad.xml: error: more than 4 bytes (limit: --max-size)"));
    EXPECT_EQ(names(), (Arguments{"asset.xml", "bad.xml"}));
}

TEST_F(Report, GoesOnAfterABadDocument) {
    write("asset.xml", "<AssetInfo/>");
    write("in.xml", monitor());
    const Outcome outcome = run({"report", "asset.xml", "none.xml", "in.xml", "-o", "out/"});
    EXPECT_EQ(outcome, (Outcome{2, "",
                                "asset.xml: error: a document of AssetInfo does not describe a monitor\n"
                                "none.xml: error: No such file or directory\n"}));
    EXPECT_THAT(namesIn("out"), ElementsAre("Wall-1.html", "index.html"));
}

TEST_F(Report, MakesAPageOfEveryRecordOfAMonitor) {
    for (const std::string root :
         {"MonitorInfo", "MonitorConfiguration", "ColorModeSettings", "CalibrationModeResult", "CandelaMap"}) {
        EXPECT_TRUE(contains(made({"report", "-"}, {'<' + root + "/>"}), "</html>")) << root;
    }
}

// Output files.

TEST_F(Report, WritesIntoAFile) {
    EXPECT_EQ(run({"report", studio, "-o", "out.html"}), done());
    EXPECT_EQ(read("out.html"), made({"report", studio}));
    EXPECT_EQ(run({"report", studio, "-o", "-"}).output, read("out.html"));
    EXPECT_EQ(names(), Arguments{"out.html"});
    EXPECT_EQ(run({"report", studio, "-o", "no/out.html"}), failed("no/out.html: error: No such file or directory"));
    EXPECT_EQ(run({"report", studio, "-o", ""}).exitCode, 2);
}

TEST_F(Report, DoesNotOverwriteAnInput) {
    const std::string message = ": error: not overwritten, since it is one of the inputs";
    write("in.xml", monitor());
    write("bad.xml", "<AssetInfo/>");
    EXPECT_EQ(run({"report", "in.xml", "-o", "in.xml"}), failed("in.xml" + message));
    EXPECT_EQ(run({"report", "./in.xml", "-o", "in.xml"}), failed("in.xml" + message));
    EXPECT_THAT(run({"report", "in.xml", "bad.xml", "-o", "bad.xml"}).error, HasSubstr("bad.xml" + message));
    EXPECT_EQ(run({"report", "-", "-o", "in.xml"}, withInputFrom(path("in.xml"))), failed("in.xml" + message));
    EXPECT_EQ(read("in.xml"), monitor());
    EXPECT_EQ(read("bad.xml"), "<AssetInfo/>");
    fs::create_directory(path("out"));
    write("out/index.html", monitor());
    EXPECT_EQ(run({"report", "out/index.html", "-o", "out"}), failed("out/index.html" + message));
    EXPECT_EQ(read("out/index.html"), monitor());
}

TEST_F(Report, LeavesTheFileWhenItFails) {
    write("out.html", "before");
    EXPECT_EQ(run({"report", "none.xml", "-o", "out.html"}).exitCode, 2);
    EXPECT_EQ(run({"report", studio, "--mode", "9", "-o", "out.html"}).exitCode, 2);
    EXPECT_EQ(read("out.html"), "before");
    EXPECT_EQ(names(), Arguments{"out.html"});
}

}  // namespace
