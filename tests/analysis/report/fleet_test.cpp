#include "HTMLPage.h"
#include "report_pages.h"

#include <lvdata/analysis/report/report.h>

#include <gmock/gmock.h>

namespace {

using lv::analysis::FleetEntry;
using lv::analysis::ReportedDocument;
using lv::test::HTMLPage;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

FleetEntry entryOf(const std::string& page, const lv::MonitorInfo& monitor, std::size_t documents,
                   const lv::analysis::ReportForm& form = lv::test::defaultForm()) {
    const std::vector<ReportedDocument> same(documents, lv::test::reportedDocument(monitor, "monitor.xml"));
    FleetEntry entry = fleetEntry(same, form);
    entry.page = page;
    return entry;
}

HTMLPage fleetOf(const std::vector<FleetEntry>& entries) {
    return HTMLPage(lv::analysis::fleetPage(entries, lv::test::defaultForm()));
}

/// The example with a mean that is worse than all others.
ReportedDocument worseDocument() {
    ReportedDocument document = lv::test::reportedDocument(lv::test::studioMonitor(), "worse.xml");
    document.snapshot.figures.modes.at(3).series.mean.value = 87.25;
    return document;
}

}  // namespace

TEST(Fleet, HasALineForEachMonitorInTheGivenOrder) {
    const HTMLPage page = fleetOf({entryOf("b.html", lv::test::studioMonitor(), 3), entryOf("a.html", {}, 1)});
    EXPECT_THAT(page.texts("//tbody/tr/th"), ElementsAre("Studio wall", "Monitor without a name"));
    EXPECT_THAT(page.texts("//tbody//a/@href"), ElementsAre("./b.html", "./a.html"));
    EXPECT_THAT(page.texts("//tbody/tr/td[last()]"), ElementsAre("3", "1"));
    EXPECT_THAT(page.texts("//tbody/tr[1]/td[position() < 4]"),
                ElementsAre("27W-000417", "LV-27W", "2024-05-02T10:07:00"));
}

TEST(Fleet, HasTheStyleOfSortableTablesButNotOfPictures) {
    const std::string style = fleetOf({entryOf("a.html", {}, 1)}).text("//style");
    EXPECT_THAT(style, HasSubstr("aria-sort"));
    EXPECT_THAT(style, Not(HasSubstr(".lv-line")));
}

TEST(Fleet, ShowsTheWorstMeanOfAllModes) {
    EXPECT_EQ(fleetOf({fleetEntry({worseDocument()}, lv::test::defaultForm())}).text("//tbody/tr/td[6]"), "87.25");
    EXPECT_EQ(fleetOf({entryOf("a.html", {}, 1)}).text("//tbody/tr/td[6]"), "n/a (nothing measured)");
}

TEST(Fleet, CountsFailedLimits) {
    lv::analysis::LimitSet limits;
    limits.limits = {{"patches_count", {}, 90, ""}};
    lv::analysis::ReportForm form;
    form.limits = &limits;
    const HTMLPage page(lv::analysis::fleetPage({entryOf("a.html", lv::test::studioMonitor(), 1, form)}, form));
    EXPECT_EQ(page.text("//tbody/tr/td[4]"), "✗ Fail");
    EXPECT_EQ(page.text("//tbody/tr/td[5]"), "2");
}

TEST(Fleet, StaysInItsFolder) {
    const HTMLPage page = fleetOf({entryOf("javascript:alert(1)", {}, 1), entryOf("//other host/ä\".html", {}, 1)});
    EXPECT_THAT(page.texts("//tbody//a/@href"),
                ElementsAre("./javascript%3Aalert%281%29", ".///other%20host/%C3%A4%22.html"));
}

TEST(Fleet, EscapesNames) {
    const HTMLPage page = fleetOf({entryOf("a.html", lv::test::monitorNamed("</td><script>alert(1)</script>"), 1)});
    EXPECT_EQ(page.count("//script"), 1U);
    EXPECT_EQ(page.text("//tbody/tr/th"), "</td><script>alert(1)</script>");
}

TEST(Fleet, CanBeEmpty) {
    EXPECT_THAT(fleetOf({}).texts("//tbody/tr"), IsEmpty());
}
