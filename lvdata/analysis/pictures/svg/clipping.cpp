#include <lvdata/analysis/pictures/svg/clipping.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis::svg {
namespace {

constexpr double greatest = 1e6;  // in widths of a panel more than can be seen

/// A half of the plane: where `x * point.x + y * point.y <= limit`.
struct Half {
    double x;
    double y;
    double limit;

    [[nodiscard]] double beyond(const Point& point) const { return x * point.x + y * point.y - limit; }
};

Point crossing(const Point& from, const Point& to, const Half& half) {
    const double before = half.beyond(from);
    const double part = before / (before - half.beyond(to));
    return {from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
}

std::vector<Point> cut(const std::vector<Point>& polygon, const Half& half) {
    std::vector<Point> kept;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        const Point& from = polygon[index];
        const Point& to = polygon[(index + 1) % polygon.size()];
        const bool fromInside = half.beyond(from) <= 0;
        if (fromInside) {
            kept.push_back(from);
        }
        if (fromInside != (half.beyond(to) <= 0)) {
            kept.push_back(crossing(from, to, half));
        }
    }
    return kept;
}

}  // namespace

std::vector<Point> clipped(std::vector<Point> polygon, const Panel& panel) {
    for (Point& point : polygon) {
        if (std::isnan(point.x) || std::isnan(point.y)) {
            return {};
        }
        point = {std::clamp(point.x, -greatest, greatest), std::clamp(point.y, -greatest, greatest)};
    }
    const Range& x = panel.horizontal().values();
    const Range& y = panel.vertical().values();
    for (const Half& half : {Half{-1, 0, -x.first}, Half{1, 0, x.last}, Half{0, -1, -y.first}, Half{0, 1, y.last}}) {
        polygon = cut(polygon, half);
    }
    return polygon;
}

}  // namespace lv::analysis::svg
