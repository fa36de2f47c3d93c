#pragma once

/// Drawing as SVG: shapes, scales, axes. Independent of the content of the pictures.
namespace lv::analysis::svg {

/// A point, in pixels of the picture or in the values of a panel.
struct Point {
    double x = 0;  ///< To the right.
    double y = 0;  ///< In pixels down, in values up.
};

/// From one number to another; the first can be the greater one.
struct Range {
    double first = 0;  ///< Where it begins.
    double last = 1;   ///< Where it ends.
};

/// An upright rectangle in pixels.
struct Box {
    double left = 0;    ///< The left edge.
    double top = 0;     ///< The upper edge.
    double width = 0;   ///< Not below 0.
    double height = 0;  ///< Not below 0.

    [[nodiscard]] double right() const { return left + width; }   ///< The right edge.
    [[nodiscard]] double bottom() const { return top + height; }  ///< The lower edge.
};

}  // namespace lv::analysis::svg
