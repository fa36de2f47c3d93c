#include <lvdata/analysis/pictures/svg/Panel.h>

#include <lvdata/analysis/pictures/svg/shapes.h>
#include <lvdata/analysis/pictures/svg/text.h>

namespace lv::analysis::svg {
namespace {

constexpr double tickGap = 8;   // from the frame to the label of a tick
constexpr double baseline = 4;  // from the middle of a line of text to where its letters stand
constexpr double lineHeight = 16;

/// Grid lines are one path for each direction.
void addGrid(SVGWriter& svg, const Panel& panel, const Axis& horizontal, const Axis& vertical) {
    const Box& box = panel.box();
    std::string path;
    for (const Tick& tick : horizontal.ticks) {
        path += 'M' + coordinateText(panel.horizontal().at(tick.value)) + ' ' + coordinateText(box.top) + 'v' +
                coordinateText(box.height);
    }
    for (const Tick& tick : vertical.ticks) {
        path += 'M' + coordinateText(box.left) + ' ' + coordinateText(panel.vertical().at(tick.value)) + 'h' +
                coordinateText(box.width);
    }
    if (!path.empty()) {
        svg.empty("path", {{"class", "lv-grid"}, {"d", path}});
    }
}

void addHorizontalTexts(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    const double numbers = box.bottom() + lineHeight;
    for (const Tick& tick : axis.ticks) {
        if (axis.hasNumbers) {
            addText(svg, {panel.horizontal().at(tick.value), numbers}, "", Anchor::middle, tick.label);
        }
    }
    if (!axis.label.empty()) {
        const Point place{box.left + box.width / 2, numbers + lineHeight + 2};
        addText(svg, place, "lv-label", Anchor::middle, axis.label);
    }
}

void addVerticalTexts(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    for (const Tick& tick : axis.ticks) {
        if (axis.hasNumbers) {
            addText(svg, {box.left - tickGap, panel.vertical().at(tick.value) + baseline}, "", Anchor::end, tick.label);
        }
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
    SVGWriter part;
    addGrid(part, panel, horizontal, vertical);
    addBox(part, panel.box(), {"lv-frame", ""});
    part.open("g", {{"class", "lv-tick"}});
    addHorizontalTexts(part, panel, horizontal);
    addVerticalTexts(part, panel, vertical);
    part.close();
    svg.share(part);
}

void addLevel(SVGWriter& svg, const Panel& panel, double value, std::string_view classes) {
    const double y = panel.vertical().at(value);
    addLine(svg, {panel.box().left, y}, {panel.box().right(), y}, {classes, ""});
}

}  // namespace lv::analysis::svg
