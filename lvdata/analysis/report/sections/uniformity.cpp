#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

View mapOf(const MapFigures& map, const std::string& id, const LimitSet& limits) {
    return View::Members{
        {"map_id", id},
        {"map_name", map.name},
        {"map_updated", textView(map.updatedAt)},
        {"picture_map", mapPicture(map, {id + "-map", false})},
        {"groups", figureGroupsView(judge(figureLines(map), limits))},
    };
}

}  // namespace

View uniformityView(const MonitorFigures& monitor, const LimitSet& limits) {
    View::Items maps;
    if (!monitor.uniformity.values.empty()) {
        maps.push_back(mapOf(monitor.uniformity, "map-1", limits));
    }
    if (!monitor.brightness.values.empty()) {
        maps.push_back(mapOf(monitor.brightness, "map-2", limits));
    }
    return View::Members{{"maps", std::move(maps)}};
}

}  // namespace lv::analysis
