#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

View mapOf(const MapFigures& map, const std::string& id, const ReportContents& contents) {
    return View::Members{
        {"map_id", id},
        {"map_name", map.name},
        {"map_updated", textView(map.updatedAt)},
        {"picture_map", mapPicture(map, {id + "-map", false, &contents.parts})},
        {"groups", figureGroupsView(judge(figureLines(map), contents.limits()))},
    };
}

}  // namespace

View uniformityView(const ReportContents& contents) {
    const MonitorFigures& monitor = contents.latest().snapshot.figures;
    View::Items maps;
    if (!monitor.uniformity.values.empty()) {
        maps.push_back(mapOf(monitor.uniformity, "map-1", contents));
    }
    if (!monitor.brightness.values.empty()) {
        maps.push_back(mapOf(monitor.brightness, "map-2", contents));
    }
    return View::Members{{"maps", std::move(maps)}};
}

}  // namespace lv::analysis
