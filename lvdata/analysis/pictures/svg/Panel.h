#pragma once

#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/Scale.h>
#include <lvdata/analysis/pictures/svg/ticks.h>

#include <string>
#include <vector>

namespace lv::analysis::svg {

/// A rectangle with a scale in each direction, in which values are drawn.
class Panel {
public:
    /// Values rise to the right and up.
    Panel(const Box& box, Range horizontal, Range vertical);

    /// The pixel of a pair of values, always inside the rectangle.
    [[nodiscard]] Point at(const Point& values) const;

    /// Whether a pair of values lies inside.
    [[nodiscard]] bool holds(const Point& values) const;

    /// The pixels of all pairs of values that lie inside.
    [[nodiscard]] std::vector<Point> inside(const std::vector<Point>& values) const;

    [[nodiscard]] const Box& box() const { return box_; }                  ///< The rectangle.
    [[nodiscard]] const Scale& horizontal() const { return horizontal_; }  ///< The scale to the right.
    [[nodiscard]] const Scale& vertical() const { return vertical_; }      ///< The scale up.

private:
    Box box_;
    Scale horizontal_;
    Scale vertical_;
};

/// The axis along one side of a panel.
struct Axis {
    std::vector<Tick> ticks{};  ///< Where grid lines are.
    std::string label{};        ///< What is shown, with its unit; may be empty.
    bool hasNumbers = true;     ///< Whether the ticks are labelled.
};

/// Grid lines, the labels of both axes and the frame.
void addAxes(SVGWriter& svg, const Panel& panel, const Axis& horizontal, const Axis& vertical);

/// A line through the whole panel at a value of the vertical scale.
void addLevel(SVGWriter& svg, const Panel& panel, double value, std::string_view classes);

}  // namespace lv::analysis::svg
