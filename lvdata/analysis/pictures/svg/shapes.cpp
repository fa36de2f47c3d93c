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

std::string startingAt(const Point& start, std::string_view steps) {
    return 'M' + coordinateText(start.x) + ' ' + coordinateText(start.y) + std::string(steps);
}

/// The path of a symbol. That of a circle is a point, which a round cap of the class "lv-dots" makes one.
std::string pathOf(const Point& at, Symbol symbol) {
    switch (symbol) {
    case Symbol::cross:
        return startingAt({at.x - radius, at.y - radius}, "l8 8m0-8l-8 8");
    case Symbol::square:
        return startingAt({at.x - radius, at.y - radius}, "h8v8h-8z");
    case Symbol::diamond:
        return startingAt({at.x, at.y - radius - 1}, "l5 5l-5 5l-5-5z");
    case Symbol::circle:
        break;
    }
    return startingAt(at, "h0");
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
    if (symbol == Symbol::circle) {
        addShape(svg, "circle", {{"cx", at.x}, {"cy", at.y}, {"r", radius}}, look);
    } else {
        addShape(svg, "path", {{"d", pathOf(at, symbol)}}, look);
    }
}

void addSymbols(SVGWriter& svg, const std::vector<Point>& points, Symbol symbol, std::string_view classes) {
    std::string path;
    for (const Point& point : points) {
        path += pathOf(point, symbol);
    }
    if (!path.empty()) {
        const std::string_view more = symbol == Symbol::circle ? "lv-dots " : "";
        svg.empty("path", {{"class", std::string(more) + std::string(classes)}, {"d", path}});
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
