#include <lvdata/analysis/pictures/svg/thinning.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace lv::analysis::svg {
namespace {

constexpr double leastDistance = 0.3;  // of points that `thinned` keeps, in pixels
constexpr std::size_t pointsOfColumn = 4;
constexpr std::size_t mostForDistances = 8192;  // comparing distances can take quadratic time

/// The distance of a point from the line through two others, or from the first where both are the same.
double distanceFrom(const Point& point, const Point& first, const Point& last) {
    const double width = last.x - first.x;
    const double height = last.y - first.y;
    const double length = std::hypot(width, height);
    if (length == 0) {
        return std::hypot(point.x - first.x, point.y - first.y);
    }
    return std::abs(width * (point.y - first.y) - height * (point.x - first.x)) / length;
}

/// The index between the two whose point is farthest from the line through theirs.
std::size_t farthest(const std::vector<Point>& line, std::size_t first, std::size_t last) {
    std::size_t found = first + 1;
    double greatest = -1;
    for (std::size_t index = first + 1; index < last; ++index) {
        const double distance = distanceFrom(line[index], line[first], line[last]);
        if (distance > greatest) {
            greatest = distance;
            found = index;
        }
    }
    return found;
}

std::vector<Point> at(const std::vector<Point>& line, const std::set<std::size_t>& indices) {
    std::vector<Point> kept;
    for (const std::size_t index : indices) {
        kept.push_back(line[index]);
    }
    return kept;
}

/// The last index whose point is not to the right of `end`, from `first` on.
std::size_t lastUpTo(const std::vector<Point>& line, std::size_t first, double end) {
    std::size_t last = first;
    while (last + 1 < line.size() && line[last + 1].x <= end) {
        ++last;
    }
    return last;
}

/// First, lowest, highest and last of each of so many columns.
std::vector<Point> inColumns(const std::vector<Point>& line, std::size_t columns) {
    const double width = (line.back().x - line.front().x) / static_cast<double>(columns);
    std::set<std::size_t> kept;
    std::size_t first = 0;
    for (std::size_t column = 1; column <= columns && first < line.size(); ++column) {
        const double end = line.front().x + static_cast<double>(column) * width;
        const std::size_t last = column == columns ? line.size() - 1 : lastUpTo(line, first, end);
        const auto from = line.begin() + static_cast<std::ptrdiff_t>(first);
        const auto to = line.begin() + static_cast<std::ptrdiff_t>(last + 1);
        const auto [highest, lowest] =
            std::minmax_element(from, to, [](const Point& left, const Point& right) { return left.y < right.y; });
        kept.insert({first, static_cast<std::size_t>(highest - line.begin()),
                     static_cast<std::size_t>(lowest - line.begin()), last});
        first = last + 1;
    }
    return at(line, kept);
}

}  // namespace

std::vector<Point> simplified(const std::vector<Point>& line, double distance) {
    if (line.size() < 3) {
        return line;
    }
    std::set<std::size_t> kept{0, line.size() - 1};
    std::vector<std::pair<std::size_t, std::size_t>> open{{0, line.size() - 1}};
    while (!open.empty()) {
        const auto [first, last] = open.back();
        open.pop_back();
        if (last - first < 2) {
            continue;
        }
        const std::size_t middle = farthest(line, first, last);
        if (distanceFrom(line[middle], line[first], line[last]) > distance) {
            kept.insert(middle);
            open.emplace_back(first, middle);
            open.emplace_back(middle, last);
        }
    }
    return at(line, kept);
}

std::vector<Point> thinned(const std::vector<Point>& line) {
    if (line.size() < 3) {
        return line;
    }
    const std::vector<Point> start =
        line.size() <= mostForDistances ? line : inColumns(line, mostForDistances / pointsOfColumn);
    const std::vector<Point> seen = simplified(start, leastDistance);
    return seen.size() <= mostPoints ? seen : inColumns(seen, mostPoints / pointsOfColumn);
}

std::vector<std::size_t> spreadIndices(std::size_t count, std::size_t most) {
    const std::size_t taken = std::min(count, std::max<std::size_t>(most, 2));
    std::vector<std::size_t> indices;
    for (std::size_t index = 0; index < taken; ++index) {
        indices.push_back(taken == 1 ? 0 : index * (count - 1) / (taken - 1));
    }
    return indices;
}

}  // namespace lv::analysis::svg
