#include <lvdata/analysis/figures/MonitorFigures.h>

#include <tests/analysis/figures/studio.h>

#include <lvdata/records/AssetInfo.h>

#include <numeric>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::CandelaMapEntry;
using lv::analysis::KnownUnits;
using lv::analysis::MapFigures;
using lv::analysis::mapFigures;
using lv::analysis::MonitorFigures;
using lv::analysis::monitorFigures;
using lv::analysis::monitorOf;
using testing::DoubleEq;
using testing::ElementsAre;

MapFigures mapOf(const std::vector<unsigned int>& values, std::size_t gridWidth = 0) {
    CandelaMapEntry entry;
    entry.values = values;
    entry.updatedAt = "today";
    entry.valid = true;
    KnownUnits known;
    known.gridWidth = gridWidth;
    known.mapUnit = "cd/m²";
    return mapFigures("Uniformity", entry, known);
}

}  // namespace

TEST(MapFigures, AreThoseOfAllEntries) {
    const MapFigures map = mapOf({90, 100, 80, 70});
    EXPECT_EQ(map.name, "Uniformity");
    EXPECT_EQ(map.updatedAt, "today");
    EXPECT_EQ(map.unit, "cd/m²");
    EXPECT_THAT(map.values, ElementsAre(90, 100, 80, 70));
    EXPECT_EQ(map.minimum.text(1), "70.0");
    EXPECT_EQ(map.maximum.text(1), "100.0");
    EXPECT_EQ(map.mean.text(1), "85.0");
    EXPECT_EQ(map.centre.text(0), "n/a (the shape of the map is not known)");
    EXPECT_TRUE(map.againstCentre.empty());
}

TEST(MapFigures, HaveACentreOfAnOddGrid) {
    const MapFigures map = mapOf({90, 95, 90, 80, 100, 85, 90, 95, 110}, 3);
    EXPECT_EQ(map.gridWidth, 3U);
    EXPECT_EQ(map.centre.text(0), "100");
    EXPECT_EQ(map.greatestDeviation.text(4), "0.2000");
    EXPECT_THAT(map.againstCentre.at(3), DoubleEq(-0.2));
    EXPECT_NEAR(map.againstCentre.at(8), 0.1, 1e-12);
    EXPECT_EQ(mapOf({7}, 1).centre.text(0), "7");
    EXPECT_EQ(mapOf({1, 2, 3}, 3).centre.text(0), "2");
}

TEST(MapFigures, HaveNoCentreOtherwise) {
    const std::string even = "n/a (a map of an even number of rows or columns has no centre)";
    EXPECT_EQ(mapOf({1, 2, 3, 4}, 2).centre.text(0), even);
    EXPECT_EQ(mapOf({1, 2, 3, 4}, 4).greatestDeviation.text(0), even);
    EXPECT_EQ(mapOf({1, 2, 3, 4, 5, 6}, 3).centre.text(0), even);
    EXPECT_EQ(mapOf({1, 2, 3, 4}, 3).centre.text(0), "n/a (4 entries do not fill rows of 3)");
    EXPECT_EQ(mapOf({7}, 2).greatestDeviation.text(0), "n/a (1 entry does not fill rows of 2)");
    EXPECT_EQ(mapOf({1, 2, 3, 4}, 3).gridWidth, 0U);
    EXPECT_EQ(mapOf({1, 0, 3}, 3).greatestDeviation.text(0), "n/a (the centre is 0)");
    EXPECT_EQ(mapOf({1, 0, 3}, 3).centre.text(0), "0");
}

TEST(MapFigures, SayThatThereIsNoMap) {
    EXPECT_EQ(mapFigures("Brightness", {}, {}).minimum.text(0), "n/a (no map)");
    CandelaMapEntry entry;
    entry.values = {1};
    EXPECT_EQ(mapFigures("Brightness", entry, {}).greatestDeviation.text(0), "n/a (no map)");
    EXPECT_TRUE(mapFigures("Brightness", entry, {}).values.empty());
    EXPECT_EQ(mapOf({}).mean.text(0), "n/a (the map has no entries)");
}

TEST(MonitorFigures, HaveTheTextsOfTheMonitor) {
    const MonitorFigures figures = lv::test::studioFigures();
    EXPECT_EQ(figures.uuid, "6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417");
    EXPECT_EQ(figures.name, "Studio wall");
    EXPECT_EQ(figures.model, "LV-27W");
    EXPECT_EQ(figures.serial, "27W-000417");
    EXPECT_EQ(figures.modes.size(), 5U);
    EXPECT_EQ(figures.uniformity.values.size(), 25U);
    EXPECT_EQ(figures.brightness.name, "Brightness");
    EXPECT_EQ(figures.known.gridWidth, 5U);
}

TEST(MonitorFigures, HaveAssetsThatAreSetAndNotEmpty) {
    lv::MonitorInfo monitor;
    monitor.assetInfo.value.asset2.set("second");
    monitor.assetInfo.value.asset3.set("");
    monitor.assetInfo.value.asset4.value = "not set";
    monitor.assetInfo.value.asset8.set("last");
    EXPECT_THAT(monitorFigures(monitor).assets, ElementsAre("second", "last"));
}

TEST(MonitorFigures, AreEmptyWithoutRecords) {
    const MonitorFigures figures = monitorFigures({});
    EXPECT_EQ(figures.uuid + figures.name + figures.model + figures.serial, "");
    EXPECT_TRUE(figures.modes.empty());
    EXPECT_EQ(figures.uniformity.minimum.text(0), "n/a (no map)");
    lv::MonitorInfo monitor;
    monitor.candelaMap.value.uniformity.values = {1};
    monitor.candelaMap.value.uniformity.valid = true;  // but the map itself is not set
    EXPECT_EQ(monitorFigures(monitor).uniformity.minimum.text(0), "n/a (no map)");
}

TEST(MonitorOf, MakesAMonitorOfAPartialRecord) {
    const lv::MonitorInfo studio = lv::test::studioMonitor();
    const lv::MonitorConfiguration& configuration = studio.monitorConfiguration.value;
    EXPECT_TRUE(*monitorOf(studio) == studio);
    EXPECT_TRUE(monitorOf(configuration)->monitorConfiguration.value == configuration);
    const lv::ColorModeSettings& settings = configuration.colorModeSettings.value;
    EXPECT_TRUE(monitorOf(settings)->monitorConfiguration.value.colorModeSettings.value == settings);
    const lv::CalibrationModeResult& results = studio.calibrationModeResult.value;
    EXPECT_TRUE(monitorOf(results)->calibrationModeResult.value == results);
    EXPECT_TRUE(monitorOf(studio.candelaMap.value)->candelaMap.hasValue);
    EXPECT_FALSE(monitorOf(lv::AssetInfo()));
}
