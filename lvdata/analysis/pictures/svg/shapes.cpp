#include <lvdata/analysis/pictures/svg/shapes.h>

#include <lvdata/analysis/pictures/svg/text.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <cmath>
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

double rounded(double coordinate) {
    return std::round(coordinate * 10) / 10;
}

/// The numbers of a step, with a comma before those that would run into what stands before.
void appendStep(std::string& path, const std::vector<double>& numbers, bool isSeparate) {
    for (const double number : numbers) {
        const std::string text = coordinateText(number);
        path += isSeparate || text.front() == '-' ? text : ',' + text;
        isSeparate = false;
    }
}

/// The path of a symbol. That of a circle is a point, which a round cap of the class "lv-dots" makes one.
std::string pathOf(const Point& at, Symbol symbol) {
    switch (symbol) {
    case Symbol::cross:
        return startOfPath({at.x - radius, at.y - radius}) + "l8,8m0-8l-8,8";
    case Symbol::square:
        return startOfPath({at.x - radius, at.y - radius}) + "h8v8h-8z";
    case Symbol::diamond:
        return startOfPath({at.x, at.y - radius - 1}) + "l5,5l-5,5l-5-5z";
    case Symbol::circle:
        break;
    }
    return startOfPath(at) + "h0";
}

}  // namespace

std::string startOfPath(const Point& at) {
    return 'M' + coordinateText(at.x) + ',' + coordinateText(at.y);
}

std::string pathThrough(const std::vector<Point>& points) {
    Point last{rounded(points.front().x), rounded(points.front().y)};
    std::string path = startOfPath(last) + (points.size() == 1 ? "h0" : "");
    char lastCommand = 'M';
    for (std::size_t index = 1; index < points.size(); ++index) {
        const Point next{rounded(points[index].x), rounded(points[index].y)};
        const char command = next.y == last.y ? 'h' : next.x == last.x ? 'v' : 'l';
        if (command != lastCommand) {
            path += command;
        }
        std::vector<double> numbers;
        if (command != 'v') {
            numbers.push_back(next.x - last.x);
        }
        if (command != 'h') {
            numbers.push_back(next.y - last.y);
        }
        appendStep(path, numbers, command != lastCommand);
        last = next;
        lastCommand = command;
    }
    return path;
}

void addLine(SVGWriter& svg, const Point& from, const Point& to, const Look& look) {
    addShape(svg, "path", {{"d", pathThrough({from, to})}}, look);
}

void addPolyline(SVGWriter& svg, const std::vector<Point>& points, const Look& look) {
    if (points.size() > 1) {
        addShape(svg, "path", {{"d", pathThrough(thinned(points))}}, look);
    }
}

void addPolygon(SVGWriter& svg, const std::vector<Point>& points, const Look& look) {
    if (points.size() > 2) {
        addShape(svg, "path", {{"d", pathThrough(points) + 'z'}}, look);
    }
}

void addBox(SVGWriter& svg, const Box& box, const Look& look) {
    addShape(svg, "rect", {{"x", box.left}, {"y", box.top}, {"width", box.width}, {"height", box.height}}, look);
}

void addBoxes(SVGWriter& svg, const std::vector<Box>& boxes, std::string_view classes) {
    std::string path;
    for (const Box& box : boxes) {
        const std::string width = coordinateText(box.width);
        path += startOfPath({box.left, box.top}) + 'h' + width + 'v' + coordinateText(box.height) + "h-" + width + 'z';
    }
    if (!path.empty()) {
        svg.empty("path", {{"class", classes}, {"d", path}});
    }
}

void addBars(SVGWriter& svg, const std::vector<Point>& heads, double foot, double width, std::string_view classes) {
    if (heads.empty()) {
        return;
    }
    const double bottom = rounded(foot);
    Point last{rounded(heads.front().x), bottom};
    std::string path = startOfPath(last);
    for (const Point& point : heads) {
        const Point head{rounded(point.x), rounded(point.y)};
        if (&point != &heads.front()) {
            path += 'm';
            appendStep(path, {head.x - last.x, bottom - last.y}, true);
        }
        path += 'v' + coordinateText(head.y - bottom);
        last = head;
    }
    svg.empty("path", {{"class", classes}, {"stroke-width", width}, {"d", path}});
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

void addMarker(SVGWriter& svg, const std::string& id, Symbol symbol, std::string_view classes) {
    const Point middle{radius + 1, radius + 1};
    SVGWriter part = svg.newPart();
    part.open("marker", {{"id", id},
                         {"markerUnits", "userSpaceOnUse"},
                         {"refX", middle.x},
                         {"refY", middle.y},
                         {"overflow", "visible"}});
    addSymbols(part, {middle}, symbol, classes);
    part.close();
    svg.define(part);
}

void addMarkedLine(SVGWriter& svg, const std::vector<Point>& points, const std::string& marker,
                   std::string_view classes) {
    if (!points.empty()) {
        svg.empty("path", {{"class", classes}, {"style", "marker:url(#" + marker + ')'}, {"d", pathThrough(points)}});
    }
}

void addText(SVGWriter& svg, const Point& at, std::string_view classes, Anchor anchor, std::string_view text) {
    Attributes attributes;
    if (at.x != 0) {
        attributes.emplace_back("x", at.x);
    }
    if (at.y != 0) {
        attributes.emplace_back("y", at.y);
    }
    if (!classes.empty()) {
        attributes.insert(attributes.begin(), {"class", classes});
    }
    if (anchor != Anchor::start) {
        attributes.emplace_back("text-anchor", anchor == Anchor::middle ? "middle" : "end");
    }
    svg.text("text", attributes, text);
}

}  // namespace lv::analysis::svg
