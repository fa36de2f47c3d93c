#include <lvdata/analysis/monitors/MonitorDocument.h>

#include <lvdata/analysis/figures/lines.h>

#include <tests/analysis/catalogue.h>
#include <tests/analysis/figures/studio.h>

#include <gmock/gmock.h>

namespace {

using lv::analysis::Document;
using lv::analysis::figuresJSON;
using lv::analysis::monitorDocument;
using lv::test::catalogue;
using testing::HasSubstr;

Document studio() {
    return {lv::test::studioText(), catalogue()};
}

}  // namespace

TEST(MonitorDocument, HasItsMonitorAndItsTime) {
    const auto read = monitorDocument(studio(), "studio.xml");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->identity, "6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417");
    EXPECT_EQ(read->snapshot.document, "studio.xml");
    EXPECT_EQ(read->snapshot.when, "2024-05-02T10:07:00");
    EXPECT_EQ(read->snapshot.figures.name, "Studio wall");
}

TEST(MonitorDocument, IsRefusedForOtherClasses) {
    const Document document("<AssetInfo/>", catalogue());
    EXPECT_FALSE(monitorDocument(document, ""));
    EXPECT_EQ(whyNoMonitor(document), "a document of AssetInfo does not describe a monitor");
}

TEST(MonitorDocument, KeepsItsLinesWithoutItsData) {
    auto figures = lv::test::studioFigures();
    const auto before = figureLines(figures.modes[2]);
    dropData(figures);
    EXPECT_TRUE(figures.modes[2].series.patches.empty());
    EXPECT_TRUE(figures.uniformity.values.empty());
    const auto after = figureLines(figures.modes[2]);
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t index = 0; index < before.size(); ++index) {
        EXPECT_EQ(before[index].measured.value, after[index].measured.value) << before[index].key;
    }
}

TEST(MonitorDocument, HasFiguresFindingsAndJSONWhenWhole) {
    const Document document = studio();
    const auto whole = wholeDocument({"a.xml", "", {}}, document, catalogue());
    EXPECT_EQ(whole.snapshot.document, "a.xml");
    EXPECT_EQ(whole.findings.count(), 1U);
    EXPECT_THAT(whole.json, HasSubstr(R"("name":"Studio wall")"));
}

TEST(MonitorDocument, IsTheSameOfOneMonitorAtOneTime) {
    const auto read = monitorDocument(studio(), "");
    auto later = *read;
    later.snapshot.when = "2025-01-01";
    auto other = *read;
    other.identity = "other";
    EXPECT_TRUE(isSameDocument(*read, *read));
    EXPECT_FALSE(isSameDocument(*read, later));
    EXPECT_FALSE(isSameDocument(*read, other));
}
