#include <lvdata/analysis/pictures/svg/shapes.h>

#include <lvdata/analysis/pictures/svg/text.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <utility>

namespace lv::analysis::svg {
namespace {

constexpr double radius = 4;

void addShape(SVGWriter& svg, std::string_view name, Attributes attributes, const Look& look) {
    if (!look.classes.empty()) {
        attributes.insert(attributes.begin(), {"class", look.classes});
    }
    svg.titled(name, attributes, look.title);
}

std::string joined(const std::vector<Point>& points) {
    std::string text;
    for (const Point& point : points) {
        text += text.empty() ? "" : " ";
        text += coordinateText(point.x) + ',' + coordinateText(point.y);
    }
    return text;
}

/// A path that begins at a point and goes on relative to it.
void addPath(SVGWriter& svg, const Point& start, std::string_view steps, const Look& look) {
    const std::string path = 'M' + coordinateText(start.x) + ' ' + coordinateText(start.y) + std::string(steps);
    addShape(svg, "path", {{"d", path}}, look);
}

}  // namespace

void addLine(SVGWriter& svg, const Point& from, const Point& to, const Look& look) {
    addShape(svg, "line", {{"x1", from.x}, {"y1", from.y}, {"x2", to.x}, {"y2", to.y}}, look);
}

void addPolyline(SVGWriter& svg, const std::vector<Point>& points, const Look& look) {
    if (points.size() > 1) {
        addShape(svg, "polyline", {{"points", joined(thinned(points))}}, look);
    }
}

void addPolygon(SVGWriter& svg, const std::vector<Point>& points, const Look& look) {
    if (points.size() > 2) {
        addShape(svg, "polygon", {{"points", joined(points)}}, look);
    }
}

void addBox(SVGWriter& svg, const Box& box, const Look& look) {
    addShape(svg, "rect", {{"x", box.left}, {"y", box.top}, {"width", box.width}, {"height", box.height}}, look);
}

void addSymbol(SVGWriter& svg, const Point& at, Symbol symbol, const Look& look) {
    switch (symbol) {
    case Symbol::circle:
        addShape(svg, "circle", {{"cx", at.x}, {"cy", at.y}, {"r", radius}}, look);
        break;
    case Symbol::cross:
        addPath(svg, {at.x - radius, at.y - radius}, "l8 8m0-8l-8 8", look);
        break;
    case Symbol::square:
        addPath(svg, {at.x - radius, at.y - radius}, "h8v8h-8z", look);
        break;
    case Symbol::diamond:
        addPath(svg, {at.x, at.y - radius - 1}, "l5 5l-5 5l-5-5z", look);
        break;
    }
}

void addText(SVGWriter& svg, const Point& at, std::string_view classes, Anchor anchor, std::string_view text) {
    Attributes attributes{{"x", at.x}, {"y", at.y}};
    if (!classes.empty()) {
        attributes.insert(attributes.begin(), {"class", classes});
    }
    if (anchor != Anchor::start) {
        attributes.emplace_back("text-anchor", anchor == Anchor::middle ? "middle" : "end");
    }
    svg.text("text", attributes, text);
}

}  // namespace lv::analysis::svg
