#include <lvdata/analysis/pictures/svg/clipping.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using lv::analysis::svg::clipped;
using lv::analysis::svg::Panel;
using lv::analysis::svg::Point;

namespace {

const Panel unit({0, 0, 100, 100}, {0, 1}, {0, 1});

double areaOf(const std::vector<Point>& polygon) {
    double area = 0;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        const Point& from = polygon[index];
        const Point& to = polygon[(index + 1) % polygon.size()];
        area += from.x * to.y - to.x * from.y;
    }
    return std::abs(area) / 2;
}

}  // namespace

TEST(Clipped, LeavesWhatIsInside) {
    EXPECT_EQ(clipped({{0.1, 0.1}, {0.9, 0.1}, {0.5, 0.9}}, unit).size(), 3U);
}

TEST(Clipped, KeepsThePartThatIsInside) {
    EXPECT_NEAR(areaOf(clipped({{-1, -1}, {3, -1}, {3, 0.5}, {-1, 0.5}}, unit)), 0.5, 1e-12);
    EXPECT_NEAR(areaOf(clipped({{0.5, 0.5}, {1.5, 0.5}, {0.5, 1.5}}, unit)), 0.25, 1e-12);
    EXPECT_NEAR(areaOf(clipped({{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}, unit)), 1, 1e-12);
}

TEST(Clipped, IsEmptyOutside) {
    EXPECT_TRUE(clipped({{2, 2}, {3, 2}, {2, 3}}, unit).empty());
}

TEST(Clipped, IsInsideForAnyNumbers) {
    const double huge = std::numeric_limits<double>::max();
    for (const Point& point : clipped({{-huge, 0.5}, {huge, -huge}, {0.5, huge}}, unit)) {
        EXPECT_TRUE(unit.holds(point)) << point.x << ' ' << point.y;
    }
    EXPECT_TRUE(clipped({{std::nan(""), 0}, {1, 0}, {0, 1}}, unit).empty());
}
