#include <lvdata/analysis/figures/MonitorFigures.h>

#include <lvdata/analysis/figures/stored_values.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace lv::analysis {
namespace {

std::vector<std::string> assetsOf(const AssetInfo& info) {
    std::vector<std::string> assets;
    for (const auto* const asset : {&info.asset1, &info.asset2, &info.asset3, &info.asset4, &info.asset5, &info.asset6,
                                    &info.asset7, &info.asset8}) {
        if (asset->hasValue && !asset->value.empty()) {
            assets.push_back(asset->value);
        }
    }
    return assets;
}

void missAll(MapFigures& figures, const std::string& reason) {
    figures.minimum = figures.maximum = figures.mean = figures.centre = figures.greatestDeviation = missing(reason);
}

/// Why the map has no entry in the middle; empty when it has one.
std::string complaintOnCentre(const MapFigures& figures, std::size_t knownWidth) {
    const std::size_t count = figures.values.size();
    if (figures.gridWidth == 0) {
        const std::string entries = std::to_string(count) + (count == 1 ? " entry does" : " entries do");
        return knownWidth == 0 ? "the shape of the map is not known"
                               : entries + " not fill rows of " + std::to_string(knownWidth);
    }
    const std::size_t rows = count / figures.gridWidth;
    return figures.gridWidth % 2 == 0 || rows % 2 == 0 ? "a map of an even number of rows or columns has no centre"
                                                       : "";
}

void takeDeviations(MapFigures& figures, double centre) {
    if (!(centre > 0)) {
        figures.greatestDeviation = missing("the centre is 0");
        return;
    }
    double greatest = 0;
    for (const double value : figures.values) {
        figures.againstCentre.push_back(value / centre - 1);
        greatest = std::max(greatest, std::abs(figures.againstCentre.back()));
    }
    figures.greatestDeviation = computed(greatest);
}

void takeCentre(MapFigures& figures, std::size_t knownWidth) {
    const std::string complaint = complaintOnCentre(figures, knownWidth);
    if (!complaint.empty()) {
        figures.centre = figures.greatestDeviation = missing(complaint);
        return;
    }
    const double centre = figures.values[figures.values.size() / 2];  // odd times odd
    figures.centre = computed(centre);
    takeDeviations(figures, centre);
}

void takeValues(MapFigures& figures, std::size_t knownWidth) {
    const auto [least, greatest] = std::minmax_element(figures.values.begin(), figures.values.end());
    const double sum = std::accumulate(figures.values.begin(), figures.values.end(), 0.0);
    figures.minimum = computed(*least);
    figures.maximum = computed(*greatest);
    figures.mean = computed(sum / static_cast<double>(figures.values.size()));
    takeCentre(figures, knownWidth);
}

}  // namespace

MapFigures mapFigures(std::string_view name, const CandelaMapEntry& map, const KnownUnits& known) {
    MapFigures figures;
    figures.name = name;
    figures.unit = known.mapUnit;
    if (!map.valid || map.values.empty()) {
        missAll(figures, map.valid ? "the map has no entries" : "no map");
        return figures;
    }
    figures.updatedAt = map.updatedAt;
    figures.values.assign(map.values.begin(), map.values.end());
    const bool isWhole = known.gridWidth > 0 && figures.values.size() % known.gridWidth == 0;
    figures.gridWidth = isWhole ? known.gridWidth : 0;
    takeValues(figures, known.gridWidth);
    return figures;
}

MonitorFigures monitorFigures(const MonitorInfo& monitor, const KnownUnits& known) {
    const MonitorConfiguration& configuration = monitor.monitorConfiguration.value;
    const CandelaMap maps = monitor.candelaMap.hasValue ? monitor.candelaMap.value : CandelaMap();
    MonitorFigures figures;
    figures.uuid = textOf(monitor.uuid);
    figures.name = textOf(configuration.name);
    figures.model = textOf(configuration.model);
    figures.serial = textOf(configuration.serial);
    figures.assets = assetsOf(monitor.assetInfo.value);
    figures.modes = modeFigures(configuration.colorModeSettings.value, monitor.calibrationModeResult.value, known);
    figures.uniformity = mapFigures("Uniformity", maps.uniformity, known);
    figures.brightness = mapFigures("Brightness", maps.brightness, known);
    figures.known = known;
    return figures;
}

std::optional<MonitorInfo> monitorOf(const DataObject& record) {
    MonitorInfo monitor;
    if (const auto* const whole = dynamic_cast<const MonitorInfo*>(&record)) {
        monitor = *whole;
    } else if (const auto* const configuration = dynamic_cast<const MonitorConfiguration*>(&record)) {
        monitor.monitorConfiguration.set(*configuration);
    } else if (const auto* const settings = dynamic_cast<const ColorModeSettings*>(&record)) {
        monitor.monitorConfiguration.value.colorModeSettings.set(*settings);
    } else if (const auto* const results = dynamic_cast<const CalibrationModeResult*>(&record)) {
        monitor.calibrationModeResult.set(*results);
    } else if (const auto* const maps = dynamic_cast<const CandelaMap*>(&record)) {
        monitor.candelaMap.set(*maps);
    } else {
        return std::nullopt;
    }
    return monitor;
}

}  // namespace lv::analysis
