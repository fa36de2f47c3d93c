#include <lvdata/analysis/pictures/svg/Panel.h>

#include <lvdata/analysis/pictures/svg/shapes.h>
#include <lvdata/analysis/pictures/svg/text.h>

namespace lv::analysis::svg {
namespace {

constexpr double tickGap = 8;   // from the frame to the label of a tick
constexpr double baseline = 4;  // from the middle of a line of text to where its letters stand
constexpr double lineHeight = 16;

/// All grid lines of one direction, which are one path.
void addGrid(SVGWriter& svg, const std::string& path) {
    if (!path.empty()) {
        svg.empty("path", {{"class", "lv-grid"}, {"d", path}});
    }
}

/// The numbers of an axis, whose anchor their group has.
void openNumbers(SVGWriter& svg, std::string_view anchor) {
    svg.open("g", {{"class", "lv-tick"}, {"text-anchor", anchor}});
}

void addHorizontalAxis(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    std::string lines;
    for (const Tick& tick : axis.ticks) {
        lines += startOfPath({panel.horizontal().at(tick.value), box.top}) + 'v' + coordinateText(box.height);
    }
    addGrid(svg, lines);
    addBox(svg, box, {"lv-frame", ""});
    const double numbers = box.bottom() + lineHeight;
    if (axis.hasNumbers) {
        openNumbers(svg, "middle");
        for (const Tick& tick : axis.ticks) {
            addText(svg, {panel.horizontal().at(tick.value), numbers}, "", Anchor::start, tick.label);
        }
        svg.close();
    }
    if (!axis.label.empty()) {
        const Point place{box.left + box.width / 2, numbers + lineHeight + 2};
        addText(svg, place, "lv-label", Anchor::middle, axis.label);
    }
}

void addVerticalAxis(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    std::string lines;
    for (const Tick& tick : axis.ticks) {
        lines += startOfPath({box.left, panel.vertical().at(tick.value)}) + 'h' + coordinateText(box.width);
    }
    addGrid(svg, lines);
    if (axis.hasNumbers) {
        openNumbers(svg, "end");
        for (const Tick& tick : axis.ticks) {
            addText(svg, {box.left - tickGap, panel.vertical().at(tick.value) + baseline}, "", Anchor::start,
                    tick.label);
        }
        svg.close();
    }
    if (!axis.label.empty()) {
        addText(svg, {box.left, box.top - tickGap}, "lv-label", Anchor::start, axis.label);
    }
}

}  // namespace

Panel::Panel(const Box& box, Range horizontal, Range vertical)
    : box_(box),
      horizontal_(horizontal, {box.left, box.right()}),
      vertical_(vertical, {box.bottom(), box.top}) {}

Point Panel::at(const Point& values) const {
    return {horizontal_.at(values.x), vertical_.at(values.y)};
}

bool Panel::holds(const Point& values) const {
    return horizontal_.holds(values.x) && vertical_.holds(values.y);
}

std::vector<Point> Panel::inside(const std::vector<Point>& values) const {
    std::vector<Point> points;
    for (const Point& pair : values) {
        if (holds(pair)) {
            points.push_back(at(pair));
        }
    }
    return points;
}

void addAxes(SVGWriter& svg, const Panel& panel, const Axis& horizontal, const Axis& vertical) {
    SVGWriter up = svg.newPart();
    addVerticalAxis(up, panel, vertical);
    svg.share(up);
    SVGWriter across = svg.newPart();
    addHorizontalAxis(across, panel, horizontal);  // with the frame, which covers the ends of all lines
    svg.share(across);
}

void addLevel(SVGWriter& svg, const Panel& panel, double value, std::string_view classes) {
    const double y = panel.vertical().at(value);
    addLine(svg, {panel.box().left, y}, {panel.box().right(), y}, {classes, ""});
}

}  // namespace lv::analysis::svg
