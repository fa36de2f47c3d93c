#include <lvdata/analysis/pictures/level_lines.h>

#include <algorithm>

namespace lv::analysis {
namespace {

constexpr double rowHeight = 14;
constexpr double fontSize = 11;
constexpr double gap = 8;

/// Places in the order of the lines, from above, at least a row apart and not below the bottom.
std::vector<double> placesOf(const svg::Panel& panel, const std::vector<LevelLine>& lines) {
    std::vector<double> places;
    for (const LevelLine& line : lines) {
        const double wanted = panel.vertical().at(line.value);
        places.push_back(places.empty() ? wanted : std::max(wanted, places.back() + rowHeight));
    }
    double lowest = panel.box().bottom();
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        *place = std::min(*place, lowest);
        lowest = *place - rowHeight;
    }
    return places;
}

}  // namespace

void addLevelLines(svg::SVGWriter& svg, const svg::Panel& panel, std::vector<LevelLine> lines) {
    const auto isOutside = [&](const LevelLine& line) {
        return !panel.vertical().holds(line.value);
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isOutside), lines.end());
    std::stable_sort(lines.begin(), lines.end(),
                     [](const LevelLine& left, const LevelLine& right) { return left.value > right.value; });
    const std::vector<double> places = placesOf(panel, lines);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        svg::addLevel(svg, panel, lines[index].value, "lv-under");
        svg::addLevel(svg, panel, lines[index].value, lines[index].classes);
        const std::string label = svg::shortened(lines[index].label, levelLabelWidth - gap, fontSize);
        svg::addText(svg, {panel.box().right() + gap, places[index] + 4}, "lv-value", svg::Anchor::start, label);
    }
}

}  // namespace lv::analysis
