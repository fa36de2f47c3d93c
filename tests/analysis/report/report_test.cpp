#include "HTMLPage.h"
#include "report_pages.h"

#include <tests/analysis/studio_text.h>
#include <tests/support/lines.h>

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/report.h>

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include <algorithm>

namespace {

using lv::MonitorInfo;
using lv::analysis::FigureLine;
using lv::analysis::ModeFigures;
using lv::analysis::ReportedDocument;
using lv::test::contains;
using lv::test::HTMLPage;
using lv::test::pageOf;
using lv::test::reportedDocument;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const ReportedDocument& studio() {
    static const ReportedDocument document = reportedDocument(lv::test::studioText(), "studio.xml");
    return document;
}

const HTMLPage& studioPage() {
    static const HTMLPage page(pageOf(studio()));
    return page;
}

const ModeFigures& photo() {
    return studio().snapshot.figures.modes.at(2);
}

HTMLPage pageWith(const ReportedDocument& document, const lv::analysis::ReportForm& form) {
    return HTMLPage(lv::analysis::reportPage({document}, form));
}

/// The page of the example, judged by one limit of the figure.
HTMLPage judgedPage(const std::string& key, double maximum) {
    lv::analysis::LimitSet limits;
    limits.title = "Limits of a test";
    limits.notice = "Not a test against a standard.";
    limits.limits = {{key, {}, maximum, ""}};
    lv::analysis::ReportForm form;
    form.limits = &limits;
    return pageWith(studio(), form);
}

/// The row of a figure in the section of that id; its heading may have a unit after the label.
std::string rowOf(const std::string& section, const std::string& label) {
    return "//section[@id='" + section + "']//table[@class='figures']//tr[normalize-space(th/text()[1])=\"" + label +
           "\"]";
}

/// What the page has of the measured gamut of the first mode, in the order of its two tables.
std::vector<std::string> gamutCells() {
    const std::string table = "//section[@id='mode-1']//table";
    auto cells = studioPage().texts(table + "[caption='Primaries']//td[position()>2]");
    const auto spaces = studioPage().texts(table + "[starts-with(caption, 'Measured gamut')]//td");
    cells.insert(cells.end(), spaces.begin(), spaces.end());
    return cells;
}

}  // namespace

TEST(Report, NamesTheMonitor) {
    EXPECT_EQ(studioPage().text("//head/title"), "Studio wall");
    EXPECT_EQ(studioPage().text("//h1"), "Studio wall");
    EXPECT_THAT(studioPage().texts("//header//dd"),
                ElementsAre("Studio wall", "LV-27W", "27W-000417", "6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417", "INV-2041",
                            "Grading suite 2", "Wall, left of the mixing desk", "Service & support: extension 88",
                            "2024-05-02T10:07:00", "studio.xml"));
}

TEST(Report, SaysWhoMeasured) {
    const auto facts = studioPage().texts("//section[@id='mode-1']//dl[@class='facts']//dd");
    EXPECT_THAT(facts, Contains("2024-05-02T09:31:00"));
    EXPECT_THAT(facts, Contains(photo().measuredBy.sensorName + ", serial number " + photo().measuredBy.sensorSerial));
    EXPECT_THAT(facts, Contains(photo().measuredBy.software));
}

TEST(Report, TakesTitleAndDateFromItsForm) {
    lv::analysis::ReportForm form = lv::test::defaultForm();
    form.title = "Yearly check";
    form.date = "2025-01-31";
    const HTMLPage page = pageWith(studio(), form);
    EXPECT_EQ(page.text("//h1"), "Yearly check");
    EXPECT_THAT(page.texts("//header//dd"), Contains("2025-01-31"));
}

TEST(Report, HasASectionForEachModeWithAResult) {
    EXPECT_THAT(studioPage().texts("//section[@class='mode']/h2"), ElementsAre("Photo", "Proof", "Broadcast"));
    EXPECT_THAT(studioPage().texts("//section[@id='summary']//table[@class='texts']/tbody//th"),
                ElementsAre("Desktop", "Follow signal"));
}

TEST(Report, CanShowOneModeAlone) {
    lv::analysis::ReportForm form = lv::test::defaultForm();
    form.mode = "3";
    const HTMLPage page = pageWith(studio(), form);
    EXPECT_THAT(page.texts("//section[@class='mode']/h2"), ElementsAre("Proof"));
    EXPECT_EQ(page.count("//section[@id='summary']//table[@class='texts']"), 0U);
}

TEST(Report, SaysThatNothingIsCalibrated) {
    const HTMLPage page(pageOf(MonitorInfo()));
    EXPECT_EQ(page.text("//h1"), "Monitor without a name");
    EXPECT_EQ(page.count("//section[@class='mode']"), 0U);
    EXPECT_THAT(page.texts("//section[@id='summary']/p"), Contains("No colour mode has a calibration result."));
    EXPECT_THAT(page.texts("//section[@id='uniformity']/p"), SizeIs(1));
}

/// The verdict of the maps does not need a mode.
TEST(Report, HasAVerdictOfMapsAlone) {
    lv::MonitorInfo monitor = lv::test::studioMonitor();
    monitor.calibrationModeResult = {};
    const ReportedDocument document = reportedDocument(monitor, "maps.xml");
    lv::analysis::LimitSet limits;
    limits.limits = {{"brightness_mean", {}, 0, ""}};
    lv::analysis::ReportForm form;
    form.limits = &limits;
    const HTMLPage page = pageWith(document, form);
    EXPECT_THAT(page.texts("//section[@id='summary']//*[contains(@class, 'overall')]/span[1]"), ElementsAre("✗ Fail"));
    EXPECT_THAT(page.text("//section[@id='summary']"), HasSubstr("No colour mode has a calibration result."));
}

TEST(Report, LinksToEverySection) {
    const auto targets = studioPage().texts("//nav//a/@href");
    EXPECT_THAT(targets, SizeIs(testing::Ge(19)));
    for (const std::string& target : targets) {
        EXPECT_EQ(studioPage().count("//*[@id='" + target.substr(1) + "']"), 1U) << target;
    }
}

TEST(Report, HasUniqueIds) {
    std::vector<std::string> ids = studioPage().texts("//@id");
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

TEST(Report, ShowsEachFigureAsItsLineDoes) {
    std::vector<std::string> gamut;
    for (const FigureLine& line : lv::analysis::figureLines(photo())) {
        if (line.group == "Gamut") {
            gamut.push_back(line.text(line.measured));
        } else {
            EXPECT_EQ(studioPage().text(rowOf("mode-1", line.label) + "/td[2]"), line.text(line.measured));
        }
    }
    EXPECT_EQ(gamutCells(), gamut);
}

TEST(Report, ShowsTargetAndDifference) {
    const auto cells = studioPage().texts(rowOf("mode-1", "White x") + "/td");
    EXPECT_THAT(cells, ElementsAre("0.3127", "0.3129", "0.0002", "", "No limit"));
}

TEST(Report, MarksFiguresWithSymbolAndWord) {
    const HTMLPage passing = judgedPage("white_delta_uv", 0.005);
    EXPECT_EQ(passing.text(rowOf("mode-1", "White Δu'v'") + "/td[4]"), "≤ 0.005");
    EXPECT_EQ(passing.text(rowOf("mode-1", "White Δu'v'") + "/td[5]"), "✓ Pass");
    EXPECT_EQ(passing.texts("//li[@class='card']/p[@class='verdict']").front(), "✓ Pass");
    const HTMLPage failing = judgedPage("patches_count", 1);
    EXPECT_EQ(failing.text(rowOf("mode-1", "Measurements") + "/td[5]"), "✗ Fail");
    EXPECT_EQ(failing.texts("//li[@class='card']/p[@class='verdict']").front(), "✗ Fail");
    EXPECT_THAT(failing.texts("//li[@class='card']/p"), Contains("0 of 1 figure within the limits, 1 outside"));
}

TEST(Report, NamesTheLimitsWithTheirNotice) {
    EXPECT_THAT(judgedPage("white_delta_uv", 1).texts("//p[@class='notice']"),
                Each("Limits: Limits of a test. Not a test against a standard."));
}

TEST(Report, ShowsBothDiagramsAndASwitch) {
    EXPECT_EQ(studioPage().count("//section[@id='mode-1']//figure[@data-plane='xy']/svg"), 1U);
    EXPECT_EQ(studioPage().count("//section[@id='mode-1']//figure[@data-plane='uv']/svg"), 1U);
    EXPECT_THAT(studioPage().texts("//section[@id='mode-1']//button/@aria-pressed"), ElementsAre("false", "true"));
}

TEST(Report, FoldsTheTableOfAllPatches) {
    const std::string rows = "//section[@id='mode-1']//details//table[@class='patches']/tbody/tr";
    EXPECT_EQ(studioPage().count(rows), photo().series.patches.size());
    EXPECT_EQ(studioPage().count("//details[@open]"), 0U);
    EXPECT_THAT(studioPage().texts(rows + "[1]/*"), Contains("0 0 0"));
    EXPECT_THAT(studioPage().texts("(//section[@id='mode-1']//details//table[@class='patches'])[1]/thead//th"),
                ElementsAre("Patch", "Shown RGB", "Measured X", "Y", "Z", "ΔE00"));
    EXPECT_THAT(
        studioPage().texts("//section[@id='mode-1']//dl[@class='numbers']//dd"),
        ElementsAre(photo().series.mean.text(2), photo().series.percentile95.text(2), photo().series.maximum.text(2)));
}

TEST(Report, ListsTheWorstPatchesFirst) {
    const auto numbers = studioPage().texts(
        "//section[@id='mode-1']//div[@class='scroll']/table[@class='patches'][not(ancestor::details)]/tbody/tr/th");
    ASSERT_THAT(numbers, SizeIs(5));
    EXPECT_EQ(numbers.front(), std::to_string(photo().series.patches.at(photo().series.worst.front()).number));
}

TEST(Report, HasARowForEachOfAThousandPatches) {
    const HTMLPage page(pageOf(lv::test::monitorWithPatches(1024)));
    EXPECT_EQ(page.count("//section[@id='mode-1']//details//table[@class='patches']/tbody/tr"), 1024U);
}

TEST(Report, HasTheMapsWithTheirFigures) {
    const lv::analysis::MapFigures& map = studio().snapshot.figures.uniformity;
    EXPECT_EQ(studioPage().count("//section[@id='uniformity']//svg"), 2U);
    for (const FigureLine& line : lv::analysis::figureLines(map)) {
        EXPECT_EQ(studioPage().text(rowOf("uniformity", line.label) + "/td[1]"), line.text(line.measured));
    }
}

TEST(Report, HasNoHistoryOfOneDocument) {
    EXPECT_EQ(studioPage().count("//section[@id='history']"), 0U);
}

TEST(Report, HasTheHistoryOfSeveralDocuments) {
    const HTMLPage page(lv::analysis::reportPage(lv::test::threeYears(), lv::test::defaultForm()));
    EXPECT_THAT(page.texts("//section[@id='history']/h3"), ElementsAre("Photo", "Proof", "Broadcast"));
    EXPECT_THAT(page.texts("//section[@id='history']//table").size(), 3U);
    EXPECT_THAT(page.texts("(//section[@id='history']//tbody)[1]/tr/th"),
                ElementsAre("2022-05-02T09:31:00", "2023-05-02T09:31:00", "2024-05-02T09:31:00"));
    EXPECT_GE(page.count("//section[@id='history']//svg"), 3U);
    EXPECT_THAT(page.texts("//section[@id='record']//tbody//th"),
                ElementsAre("studio-2022.xml", "studio-2023.xml", "studio-2024.xml"));
}

TEST(Report, HasTheFiguresThatDoNotPassInTheSummary) {
    const std::string table = "//section[@id='summary']//table[@class='figures']";
    EXPECT_THAT(studioPage().texts(table + "//tr[@class='group']"), ElementsAre("Broadcast", "Uniformity"));
    EXPECT_EQ(studioPage().count(table + "//tr[td]"), 3U);
    EXPECT_THAT(studioPage().texts(table + "/tbody[1]/tr[th='Greatest ΔE00']/td"),
                ElementsAre("", "5.37", "", "≤ 5", "✗ Fail"));
}

/// Findings of documents before the latest are not looked for, so nothing is said of them.
TEST(Report, ShowsTheFindingsOfTheLatestDocumentAlone) {
    const HTMLPage page(lv::analysis::reportPage(lv::test::threeYears(), lv::test::defaultForm()));
    EXPECT_THAT(page.texts("//section[@id='record']//thead//th"), ElementsAre("Document", "Last calibration"));
    EXPECT_THAT(page.texts("//section[@id='record']//tbody/tr[1]/td"), ElementsAre("2022-05-02T10:07:00"));
}

TEST(Report, DoesNotCallADocumentLosslessWhenFindingsAreNotListed) {
    ReportedDocument document = studio();
    const lv::analysis::Rule* const kept = lv::analysis::findRule(*lv::analysis::lossOptions().ignored.begin());
    document.findings = {{{kept, lv::analysis::Severity::info, 1, "/", "kept"}}, 0, 0, 1};
    EXPECT_TRUE(contains(pageOf(document), "would lose nothing"));
    document.findings.infos = 2;
    EXPECT_FALSE(contains(pageOf(document), "would lose nothing"));
}

TEST(Report, HoldsTheRecordAsJSON) {
    const auto data = nlohmann::json::parse(studioPage().text("//script[@id='data']"));
    EXPECT_EQ(data, nlohmann::json::parse(studio().json));
}

/// Mailed and archived by the thousand: two fifths of it are the record itself.
TEST(Report, StaysSmall) {
    EXPECT_LT(pageOf(studio()).size(), 250'000U);
}

TEST(Report, BringsTheStyleOfPicturesOnce) {
    const std::string page = pageOf(studio());
    const std::string style = lv::analysis::pictureStyleForPage();
    ASSERT_NE(style, "");
    EXPECT_EQ(page.find(style), page.rfind(style));
    EXPECT_EQ(studioPage().count("//style"), 1U);
}

TEST(Report, LetsNothingLeaveThePage) {
    const std::string policy = studioPage().text("//meta[@http-equiv='Content-Security-Policy']/@content");
    EXPECT_THAT(policy, HasSubstr("default-src 'none'"));
    EXPECT_THAT(policy, HasSubstr("script-src 'sha256-"));
    EXPECT_THAT(studioPage().texts("//@src"), IsEmpty());
    EXPECT_THAT(studioPage().texts("//a/@href"), Each(testing::StartsWith("#")));
}

TEST(Report, IsTheSameEachTime) {
    EXPECT_EQ(pageOf(studio()), pageOf(studio()));
}
