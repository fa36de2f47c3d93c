#include "MonitorTest.h"

// Reports of many monitors: a page for each in a folder, and a table of all.

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

class ReportFolder : public MonitorTest {
protected:
    ReportFolder() {
        fs::create_directory(path("in"));
        write("in/a.xml", monitor({"Wall", "1", "u-1"}));
        write("in/b.xml", monitor({"Desk", "2", "u-2"}));
        write("in/c.xml", monitor({"Wall", "1", "u-1", "2023-05-02"}));
    }

    /// The bytes of all pages.
    [[nodiscard]] std::string contentsOf(const std::string& folder) const {
        std::string all;
        for (const std::string& name : namesIn(folder)) {
            all += name + '\n' + read(folder + '/' + name);
        }
        return all;
    }
};

TEST_F(ReportFolder, HasAPageForEachMonitorAndATable) {
    EXPECT_EQ(run({"report", "in", "-o", "out/"}), done());
    EXPECT_THAT(namesIn("out"), ElementsAre("Desk-2.html", "Wall-1.html", "index.html"));
    const std::string index = read("out/index.html");
    EXPECT_TRUE(contains(index, "Desk-2.html"));
    EXPECT_TRUE(contains(index, "Wall-1.html"));
    EXPECT_LT(index.find("Desk-2.html"), index.find("Wall-1.html"));
    const std::string page = read("out/Wall-1.html");
    EXPECT_TRUE(contains(page, "a.xml"));
    EXPECT_TRUE(contains(page, "c.xml"));
    EXPECT_FALSE(contains(page, "b.xml"));
}

/// A set with one limit.
std::string limitsWith(const std::string& limit) {
    return R"({"name": "own", "title": "Own", "notice": "", "limits": [{"figure": )" + limit + "}]}";
}

TEST_F(ReportFolder, HasTheVerdictsOfMaps) {
    write("map.json", limitsWith(R"("brightness_mean", "maximum": 0)"));
    EXPECT_EQ(run({"report", studio, "--limits", "map.json", "-o", "maps/"}), done());
    EXPECT_TRUE(contains(read("maps/Studio-wall-27W-000417.html"), "1 outside"));
    EXPECT_TRUE(contains(read("maps/index.html"), "✗ Fail</span>"));
}

/// The table of a calibration is a result, too.
TEST_F(ReportFolder, HasTheVerdictsOfModesWithTables) {
    std::string table = "0";
    for (int entry = 1; entry < 256; ++entry) {
        table += '|' + std::to_string(entry);
    }
    write("lut.xml", "<MonitorInfo><UUID>u</UUID><CalibrationModeResult><ColorMode><Index>1</Index><MonitorParameter>"
                     "<RedLUT>" +
                         table + "</RedLUT></MonitorParameter></ColorMode></CalibrationModeResult></MonitorInfo>");
    write("white.json", limitsWith(R"("white_delta_uv", "maximum": 1)"));
    EXPECT_EQ(run({"report", "lut.xml", "--limits", "white.json", "-o", "tables/"}), done());
    EXPECT_TRUE(contains(read("tables/u.html"), " Incomplete</span>"));
    EXPECT_TRUE(contains(read("tables/index.html"), " Incomplete</span>"));
}

TEST_F(ReportFolder, GivesTheHeadingToTheTable) {
    EXPECT_EQ(run({"report", "in", "-o", "out/", "--title", "Spring"}), done());
    EXPECT_TRUE(contains(read("out/index.html"), "<title>Spring"));
    EXPECT_TRUE(contains(read("out/Wall-1.html"), "<title>Wall"));
}

TEST_F(ReportFolder, IsMadeAgainInTheSamePlace) {
    fs::create_directory(path("out"));
    EXPECT_EQ(run({"report", "in", "-o", "out", "--jobs", "1"}), done());
    const std::string before = contentsOf("out");
    EXPECT_EQ(run({"report", "in", "-o", "out", "--jobs", "2"}), done());
    EXPECT_EQ(contentsOf("out"), before);
    EXPECT_EQ(run({"report", "in/c.xml", "in/b.xml", "in/a.xml", "-o", "other/"}), done());
    EXPECT_EQ(contentsOf("other"), before);
}

TEST_F(ReportFolder, KeepsFilesOfOthers) {
    fs::create_directory(path("out"));
    write("out/Wall-1.html", "mine");
    EXPECT_EQ(run({"report", "in", "-o", "out"}),
              failed("out/Wall-1.html: error: not overwritten, since it is not a page that lvdata made"));
    EXPECT_EQ(read("out/Wall-1.html"), "mine");
    EXPECT_EQ(fs::exists(path("out/index.html")), false);
}

TEST_F(ReportFolder, IsNotMadeForNothing) {
    EXPECT_EQ(run({"report", "none.xml", "-o", "out/"}), failed("none.xml: error: No such file or directory"));
    EXPECT_EQ(names(), Arguments{"in"});
}

TEST_F(ReportFolder, LeavesOutAMonitorWithoutTheMode) {
    write("in/b.xml", "<MonitorInfo><UUID>u-2</UUID></MonitorInfo>");
    EXPECT_EQ(run({"report", "in", "-o", "out/", "--mode", "2"}),
              failed("in/b.xml: error: no colour mode has the index 2; no mode has an index"));
    EXPECT_THAT(namesIn("out"), ElementsAre("Wall-1.html", "index.html"));
    EXPECT_FALSE(contains(read("out/index.html"), "u-2"));
}

TEST_F(ReportFolder, TakesListsOfDocuments) {
    EXPECT_EQ(run({"report", "--files-from", "-", "-o", "out/"}, {"in/a.xml\nin/b.xml\nin/c.xml\n"}), done());
    EXPECT_EQ(run({"report", "in", "-o", "other/"}), done());
    EXPECT_EQ(contentsOf("out"), contentsOf("other"));
}

TEST_F(ReportFolder, KeepsStandardInputForTheSecondReading) {
    EXPECT_EQ(run({"report", "-", "in/b.xml", "-o", "out/"}, {monitor({"Stream", "9", "u-9"})}), done());
    EXPECT_THAT(namesIn("out"), ElementsAre("Desk-2.html", "Stream-9.html", "index.html"));
}

TEST_F(ReportFolder, SaysWhenItCannotBeMade) {
    EXPECT_EQ(run({"report", "in", "-o", "in/a.xml/"}), failed("in/a.xml/: error: not a folder"));
    const Outcome outcome = run({"report", "in", "-o", "in/b.xml/none/"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.error, StartsWith("in/b.xml/none/: error: "));
}

// Names of pages.

/// The names that the pages of monitors with these names and serial numbers have.
class PageNames : public MonitorTest {
protected:
    std::vector<std::string> pagesOf(const std::vector<MonitorText>& monitors) const {
        std::vector<std::string> arguments{"report", "-o", "out/"};
        for (std::size_t index = 0; index < monitors.size(); ++index) {
            const std::string name = std::to_string(index) + ".xml";
            write(name, monitor(monitors[index]));
            arguments.push_back(name);
        }
        EXPECT_EQ(run(arguments), done());
        std::vector<std::string> pages = namesIn("out");
        pages.erase(std::remove(pages.begin(), pages.end(), "index.html"), pages.end());
        fs::remove_all(path("out"));
        return pages;
    }
};

TEST_F(PageNames, HaveLettersAndDigitsOnly) {
    EXPECT_THAT(pagesOf({{"../../etc/passwd", "..", "u"}}), ElementsAre("etc-passwd.html"));
    EXPECT_THAT(pagesOf({{"B\xC3\xBCro &lt;b&gt; &amp;\n", "-o", "u"}}), ElementsAre("B-ro-b-o.html"));
    EXPECT_THAT(pagesOf({{"/", ".", "u-7"}}), ElementsAre("u-7.html"));
    EXPECT_THAT(pagesOf({{"", "", "..."}}), ElementsAre("monitor.html"));
    EXPECT_THAT(pagesOf({{std::string(10000, 'x'), std::string(10000, 'y'), "u"}}),
                ElementsAre(std::string(60, 'x') + '-' + std::string(60, 'y') + ".html"));
}

TEST_F(PageNames, AreDifferent) {
    EXPECT_THAT(pagesOf({{"A", "1", "u-1"}, {"A", "1", "u-2"}}), ElementsAre("A-1-u-1.html", "A-1-u-2.html"));
    EXPECT_THAT(pagesOf({{"A", "1", "u-1"}, {"a", "1", "u-2"}}), ElementsAre("A-1-u-1.html", "a-1-u-2.html"));
    EXPECT_THAT(pagesOf({{"A", "1", "u 1"}, {"A", "1", "u+1"}, {"A", "1", "u-1-2"}}),
                ElementsAre("A-1-u-1-2-2.html", "A-1-u-1-2.html", "A-1-u-1.html"));
}

TEST_F(PageNames, LeaveTheIndexItsName) {
    EXPECT_THAT(pagesOf({{"Index", "", "u-1"}}), ElementsAre("Index-2.html"));
}

}  // namespace
