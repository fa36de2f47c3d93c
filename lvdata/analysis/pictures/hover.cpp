#include <lvdata/analysis/pictures/hover.h>

#include <lvdata/analysis/pictures/svg/text.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lv::analysis {
namespace {

constexpr double leastWidth = 24;  // WCAG 2.2, 2.5.8: targets of a pointer

}  // namespace

std::size_t hoverColumns(const svg::Box& box) {
    return static_cast<std::size_t>(std::max(box.width / leastWidth, 1.0));
}

std::vector<std::string> nearestTexts(const svg::Box& box, const std::vector<HoverText>& texts) {
    const double count = static_cast<double>(hoverColumns(box));
    std::vector<std::string> nearest(hoverColumns(box));
    std::vector<double> distances(nearest.size(), std::numeric_limits<double>::infinity());
    for (const HoverText& each : texts) {
        if (!(each.place >= 0 && each.place <= 1)) {
            continue;
        }
        const auto column = static_cast<std::size_t>(std::min(std::floor(each.place * count), count - 1));
        const double distance = std::abs(each.place * count - (static_cast<double>(column) + 0.5));
        if (distance < distances[column]) {
            distances[column] = distance;
            nearest[column] = each.text;
        }
    }
    return nearest;
}

void addHoverColumns(svg::SVGWriter& svg, const svg::Box& box, const std::vector<std::string>& texts) {
    const double width = box.width / static_cast<double>(std::max<std::size_t>(texts.size(), 1));
    const std::string down = ' ' + svg::coordinateText(box.top) + 'v' + svg::coordinateText(box.height);
    svg.open("g", {{"class", "lv-hover"}, {"stroke-width", width}});
    for (std::size_t column = 0; column < texts.size(); ++column) {
        if (!texts[column].empty()) {
            const double middle = box.left + (static_cast<double>(column) + 0.5) * width;
            svg.titled("path", {{"d", 'M' + svg::coordinateText(middle) + down}}, texts[column]);
        }
    }
    svg.close();
}

}  // namespace lv::analysis
