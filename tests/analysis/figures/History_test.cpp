#include <lvdata/analysis/figures/History.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::MonitorInfo;
using lv::analysis::daysOf;
using lv::analysis::historyOf;
using lv::analysis::HistorySeries;
using lv::analysis::identityOf;
using lv::analysis::latestTimeOf;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using lv::analysis::Snapshot;
using lv::analysis::sortByTime;
using testing::ElementsAre;

ModeFigures modeOf(const std::string& index, const std::string& when, double contrast) {
    ModeFigures mode;
    mode.index = index;
    mode.calibratedTime = when;
    mode.contrast = {contrast, ""};
    return mode;
}

Snapshot snapshotOf(const std::string& document, const std::string& when, const std::vector<ModeFigures>& modes = {}) {
    Snapshot snapshot{document, when, {}};
    snapshot.figures.modes = modes;
    return snapshot;
}

std::vector<std::string> sorted(std::vector<Snapshot> snapshots) {
    sortByTime(snapshots);
    std::vector<std::string> documents;
    for (const Snapshot& snapshot : snapshots) {
        documents.push_back(snapshot.document);
    }
    return documents;
}

std::string latestOf(const std::vector<std::string>& times) {
    MonitorFigures figures;
    for (const std::string& time : times) {
        figures.modes.push_back(modeOf("1", time, 1));
    }
    return latestTimeOf(figures);
}

}  // namespace

TEST(History, DistinguishesMonitors) {
    MonitorInfo monitor;
    EXPECT_EQ(identityOf(monitor), "");
    monitor.monitorConfiguration.value.model.set("M");
    EXPECT_EQ(identityOf(monitor), "");
    monitor.monitorConfiguration.value.serial.set("7");
    EXPECT_EQ(identityOf(monitor), "M 7");
    monitor.uuid.set("");
    EXPECT_EQ(identityOf(monitor), "M 7");
    monitor.uuid.set("u");
    EXPECT_EQ(identityOf(monitor), "u");
    monitor.uuid.hasValue = false;
    EXPECT_EQ(identityOf(monitor), "M 7");
}

TEST(History, IsInTheOrderOfTime) {
    EXPECT_THAT(sorted({snapshotOf("c", "2024-05-02T09:31"), snapshotOf("b", "2024/5/2"), snapshotOf("a", "20231231")}),
                ElementsAre("a", "b", "c"));
    EXPECT_THAT(sorted({snapshotOf("b", "2024-01-01"), snapshotOf("a", "2024-01-01")}), ElementsAre("b", "a"));
}

TEST(History, KeepsTheOrderWithoutDates) {
    EXPECT_THAT(sorted({snapshotOf("c", "2024-05-02"), snapshotOf("b", "yesterday"), snapshotOf("a", "2023-12-31")}),
                ElementsAre("c", "b", "a"));
    EXPECT_THAT(sorted({snapshotOf("c", "2024-05-02"), snapshotOf("a", "")}), ElementsAre("c", "a"));
}

TEST(History, HasAPointForEachDocumentWithTheMode) {
    const std::vector<Snapshot> snapshots = {
        snapshotOf("a", "", {modeOf("1", "t1", 1), modeOf("2", "t2", 1000)}),
        snapshotOf("b", "", {modeOf("1", "t3", 3)}),
        snapshotOf("c", "", {modeOf("2", "t4", 900), modeOf("2", "ignored", 5)}),
    };
    const auto history = historyOf(snapshots, "2");
    ASSERT_NE(seriesOf(history, "contrast"), nullptr);
    const HistorySeries& series = *seriesOf(history, "contrast");
    EXPECT_EQ(series.key, "contrast");
    EXPECT_EQ(series.label, "Contrast");
    EXPECT_EQ(series.decimals, 0);
    ASSERT_EQ(series.points.size(), 2U);
    EXPECT_EQ(series.points[0].when, "t2");
    EXPECT_EQ(series.points[0].figure.text(0), "1000");
    EXPECT_EQ(series.points[1].when, "t4");
    EXPECT_EQ(series.points[1].figure.text(0), "900");
}

TEST(History, IsEmptyForAnUnknownFigureOrMode) {
    const std::vector<Snapshot> snapshots = {snapshotOf("a", "", {modeOf("1", "", 1)})};
    EXPECT_EQ(seriesOf(historyOf(snapshots, "1"), "nothing"), nullptr);
    EXPECT_TRUE(historyOf(snapshots, "9").empty());
    EXPECT_TRUE(historyOf({}, "1").empty());
}

TEST(History, HasTheLatestTime) {
    EXPECT_EQ(latestOf({}), "");
    EXPECT_EQ(latestOf({"2024-05-02", "2024-06-01", "2023-01-01"}), "2024-06-01");
    EXPECT_EQ(latestOf({"", "yesterday", "today"}), "yesterday");
    EXPECT_EQ(latestOf({"yesterday", "2024-05-02", "", "later"}), "2024-05-02");
}

TEST(History, CountsDays) {
    EXPECT_EQ(daysOf("1970-01-02T12:00"), 1.5);
    EXPECT_EQ(daysOf("soon"), std::nullopt);
}
