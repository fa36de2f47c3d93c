#pragma once

#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/geometry.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis::svg {

/// How a shape looks and what it says.
struct Look {
    std::string_view classes{};  ///< Classes of the style sheet; empty: those of the group around it.
    std::string title{};         ///< What is shown on hover; may be empty.
};

/// The symbol of a point.
enum class Symbol { circle, cross, square, diamond };

/// The alignment of a text at its point.
enum class Anchor { start, middle, end };

/// How a path begins at a point: "M60,374.5". Commas, not blanks, stand between the numbers of paths, so that pages
/// need no quotes around them.
[[nodiscard]] std::string startOfPath(const Point& at);

/// The path through all points (at least one), in steps from one to the next. Each point is rounded first, so that
/// errors do not add up.
[[nodiscard]] std::string pathThrough(const std::vector<Point>& points);

/// A straight line.
void addLine(SVGWriter& svg, const Point& from, const Point& to, const Look& look);

/// A line through all points, thinned. Nothing when there are less than two.
void addPolyline(SVGWriter& svg, const std::vector<Point>& points, const Look& look);

/// A closed line through all points. Nothing when there are less than three.
void addPolygon(SVGWriter& svg, const std::vector<Point>& points, const Look& look);

/// A rectangle.
void addBox(SVGWriter& svg, const Box& box, const Look& look);

/// Several rectangles, as one path.
void addBoxes(SVGWriter& svg, const std::vector<Box>& boxes, std::string_view classes);

/// Bars of that width from a height up to each point, as one path. Nothing without points.
void addBars(SVGWriter& svg, const std::vector<Point>& heads, double foot, double width, std::string_view classes);

/// A symbol around a point.
void addSymbol(SVGWriter& svg, const Point& at, Symbol symbol, const Look& look);

/// The same symbol around each of several points, as one path.
void addSymbols(SVGWriter& svg, const std::vector<Point>& points, Symbol symbol, std::string_view classes);

/// Defines a symbol for `addMarkedLine`, by an id that nothing else in the document has.
void addMarker(SVGWriter& svg, const std::string& id, Symbol symbol, std::string_view classes);

/// A line through all points, not thinned, with the symbol of that id at each.
void addMarkedLine(SVGWriter& svg, const std::vector<Point>& points, const std::string& marker,
                   std::string_view classes);

/// A text. It is not shortened: see `shortened`.
void addText(SVGWriter& svg, const Point& at, std::string_view classes, Anchor anchor, std::string_view text);

}  // namespace lv::analysis::svg
