#pragma once

#include <lvdata/analysis/pictures/svg/geometry.h>

#include <cstddef>
#include <vector>

namespace lv::analysis::svg {

/// How many points `thinned` leaves at most.
inline constexpr std::size_t mostPoints = 480;

/// A line without the points that are at most that far from a line between points that stay (Douglas and Peucker,
/// "Algorithms for the reduction of the number of points required to represent a digitized line", 1973). The first and
/// the last point stay.
[[nodiscard]] std::vector<Point> simplified(const std::vector<Point>& line, double distance);

/// A line in pixels, simplified without visible change. If too many points remain, narrow columns keep their first,
/// lowest, highest and last point. x must not decrease.
[[nodiscard]] std::vector<Point> thinned(const std::vector<Point>& line);

/// Indices from 0 to below `count`, `most` of them at most (at least 2), evenly spread, with the first and the last.
[[nodiscard]] std::vector<std::size_t> spreadIndices(std::size_t count, std::size_t most);

}  // namespace lv::analysis::svg
