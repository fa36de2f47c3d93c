#pragma once

#include <lvdata/analysis/pictures/svg/Panel.h>

#include <vector>

namespace lv::analysis::svg {

/// The part of a polygon that lies inside the panel, in values (I. E. Sutherland, G. W. Hodgman, "Reentrant polygon
/// clipping", 1974). Empty where nothing does, or where a point is not a number.
[[nodiscard]] std::vector<Point> clipped(std::vector<Point> polygon, const Panel& panel);

}  // namespace lv::analysis::svg
