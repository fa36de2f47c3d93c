#include <lvdata/analysis/pictures/steps.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <cmath>

namespace lv::analysis {

svg::TickedRange rangeOfTypical(const std::vector<svg::Point>& values, svg::Range typicalSteps, double leastWidth) {
    svg::Extent typical;
    svg::Extent all;
    for (const svg::Point& value : values) {
        all.add(value.y);
        if (value.x >= typicalSteps.first && value.x <= typicalSteps.last) {
            typical.add(value.y);
        }
    }
    const svg::Range range = typical.isEmpty() ? all.range() : typical.range();
    return svg::toTicks(svg::widened(range, 0.3, leastWidth), 4);
}

std::size_t countOutside(const svg::Panel& panel, const std::vector<svg::Point>& values) {
    return values.size() - panel.inside(values).size();
}

void addSteps(svg::SVGWriter& svg, const svg::Panel& panel, const std::vector<svg::Point>& values,
              std::string_view lineClasses, const std::string& marker) {
    constexpr std::size_t mostSymbols = 64;
    if (values.size() <= mostSymbols) {
        svg::addMarkedLine(svg, panel.inside(values), marker, lineClasses);
        return;
    }
    svg::addPolyline(svg, panel.inside(values), {lineClasses, ""});
    std::vector<svg::Point> marked;
    for (const std::size_t index : svg::spreadIndices(values.size(), mostSymbols)) {
        marked.push_back(values[index]);
    }
    svg::addMarkedLine(svg, panel.inside(marked), marker, "lv-marks");
}

HoverText stepText(double signal, const std::string& text) {
    return {signal, percent(signal, 1) + ": " + text};
}

void addOutsideNote(svg::SVGWriter& svg, const svg::Panel& panel, std::size_t count) {
    if (count > 0) {
        const svg::Point place{panel.box().right() - 8, panel.box().top - 8};
        svg::addText(svg, place, "lv-note", svg::Anchor::end, counted(count, "value", "values") + " outside the scale");
    }
}

svg::Axis signalAxis(bool hasTexts) {
    std::vector<svg::Tick> ticks = svg::ticksOf({0, 1}, 10);
    for (svg::Tick& tick : ticks) {
        tick.label = svg::valueText(tick.value * 100, 0);
    }
    return {ticks, hasTexts ? "Signal in %" : "", hasTexts};
}

std::string percent(double fraction, int decimals) {
    return svg::valueText(fraction * 100, decimals) + " %";
}

}  // namespace lv::analysis
