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

/// The vertical lines and the frame, as if the panel began at the top of the picture.
void addVerticalLines(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    std::string lines;
    for (const Tick& tick : axis.ticks) {
        lines += startOfPath({panel.horizontal().at(tick.value), 0}) + 'v' + coordinateText(box.height);
    }
    addGrid(svg, lines);
    addBox(svg, {box.left, 0, box.width, box.height}, {"lv-frame", ""});
}

/// The numbers below a panel, at the top of the picture.
void addNumbersBelow(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    svg.open("g", {{"class", "lv-tick"}, {"text-anchor", "middle"}});
    for (const Tick& tick : axis.ticks) {
        addText(svg, {panel.horizontal().at(tick.value), 0}, "", Anchor::start, tick.label);
    }
    svg.close();
}

/// The horizontal lines with their numbers, as if the panel began at the top of the picture.
void addHorizontalLines(SVGWriter& svg, const Panel& panel, const Axis& axis) {
    const Box& box = panel.box();
    std::string lines;
    for (const Tick& tick : axis.ticks) {
        lines += startOfPath({box.left, panel.vertical().at(tick.value) - box.top}) + 'h' + coordinateText(box.width);
    }
    addGrid(svg, lines);
    const std::string toTheLeft = "translate(" + coordinateText(box.left - tickGap) + ')';
    svg.open("g", {{"class", "lv-tick"}, {"text-anchor", "end"}, {"transform", toTheLeft}});
    for (const Tick& tick : axis.ticks) {
        const double y = panel.vertical().at(tick.value) - box.top + baseline;
        addText(svg, {0, y}, "", Anchor::start, tick.label);
    }
    svg.close();
}

/// The label of an axis, as a separate part.
void addLabel(SVGWriter& svg, const Point& at, Anchor anchor, const std::string& label) {
    if (!label.empty()) {
        SVGWriter part = svg.newPart();
        addText(part, {at.x, 0}, "lv-label", anchor, label);
        svg.share(part, at.y);
    }
}

/// Draws a part of an axis as a separate part.
void addPart(SVGWriter& svg, const Panel& panel, const Axis& axis, double top,
             void (*draw)(SVGWriter&, const Panel&, const Axis&)) {
    SVGWriter part = svg.newPart();
    draw(part, panel, axis);
    svg.share(part, top);
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
    addPart(svg, panel, vertical, panel.box().top, addHorizontalLines);
    addPart(svg, panel, horizontal, panel.box().top, addVerticalLines);
    if (horizontal.hasNumbers) {
        addPart(svg, panel, horizontal, panel.box().bottom() + lineHeight, addNumbersBelow);
    }
    const Box& box = panel.box();
    addLabel(svg, {box.left + box.width / 2, box.bottom() + 2 * lineHeight + 2}, Anchor::middle, horizontal.label);
    addLabel(svg, {box.left, box.top - tickGap}, Anchor::start, vertical.label);
}

void addLevel(SVGWriter& svg, const Panel& panel, double value, std::string_view classes) {
    const double y = panel.vertical().at(value);
    addLine(svg, {panel.box().left, y}, {panel.box().right(), y}, {classes, ""});
}

}  // namespace lv::analysis::svg
