#include <lvdata/analysis/pictures/svg/thinning.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using lv::analysis::svg::mostPoints;
using lv::analysis::svg::Point;
using lv::analysis::svg::simplified;
using lv::analysis::svg::spreadIndices;
using lv::analysis::svg::thinned;

namespace {

/// Up and down at random, over 600 pixels.
std::vector<Point> noise(std::size_t count) {
    std::vector<Point> line;
    std::uint32_t state = 1;
    for (std::size_t index = 0; index < count; ++index) {
        state = state * 1664525U + 1013904223U;
        line.push_back({600.0 * static_cast<double>(index) / static_cast<double>(count - 1),
                        100 + 50.0 * static_cast<double>(state) / 4294967296.0});
    }
    return line;
}

bool has(const std::vector<Point>& line, const Point& point) {
    return std::any_of(line.begin(), line.end(),
                       [&](const Point& other) { return other.x == point.x && other.y == point.y; });
}

/// The height of a line at a place.
double heightAt(const std::vector<Point>& line, double x) {
    const auto after = std::find_if(line.begin(), line.end(), [&](const Point& point) { return point.x >= x; });
    if (after == line.begin() || after == line.end()) {
        return after == line.end() ? line.back().y : after->y;
    }
    const Point& before = *(after - 1);
    return before.y + (after->y - before.y) * (x - before.x) / (after->x - before.x);
}

}  // namespace

TEST(Thinned, KeepsTheEndsOfAStraightLine) {
    const auto line = thinned({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}});
    ASSERT_EQ(line.size(), 2U);
    EXPECT_EQ(line[0].x, 0);
    EXPECT_EQ(line[1].x, 4);
}

TEST(Thinned, KeepsACorner) {
    EXPECT_EQ(thinned({{0, 0}, {5, 0}, {10, 10}}).size(), 3U);
}

TEST(Thinned, LeavesShortLines) {
    EXPECT_TRUE(thinned({}).empty());
    EXPECT_EQ(thinned({{1, 1}}).size(), 1U);
    EXPECT_EQ(thinned({{1, 1}, {1, 1}}).size(), 2U);
}

TEST(Thinned, StaysWithinAFractionOfAPixelOfASmoothLine) {
    std::vector<Point> line;
    for (int index = 0; index <= 1023; ++index) {
        const double x = 600.0 * index / 1023;
        line.push_back({x, 300 * std::pow(x / 600, 2.2)});
    }
    const auto thin = thinned(line);
    EXPECT_LT(thin.size(), 40U);
    for (const Point& point : line) {
        EXPECT_NEAR(heightAt(thin, point.x), point.y, 0.5);
    }
}

TEST(Thinned, KeepsTheExtremesOfNoise) {
    for (const std::size_t count : {1024U, 10000U, 100000U}) {
        std::vector<Point> line = noise(count);
        const std::size_t top = count / 3 + 3;  // inside a column, not at its ends
        const std::size_t bottom = count / 2 + 3;
        line[top].y = 0;
        line[bottom].y = 400;
        const auto thin = thinned(line);
        EXPECT_LE(thin.size(), mostPoints);
        EXPECT_TRUE(has(thin, line.front()));
        EXPECT_TRUE(has(thin, line.back()));
        EXPECT_TRUE(has(thin, line[top])) << count;
        EXPECT_TRUE(has(thin, line[bottom])) << count;
        EXPECT_TRUE(std::is_sorted(thin.begin(), thin.end(), [](auto& left, auto& right) { return left.x < right.x; }));
    }
}

TEST(Thinned, AcceptsPointsInOnePlace) {
    EXPECT_LE(thinned(std::vector<Point>(100000, Point{3, 3})).size(), mostPoints);
}

TEST(Simplified, KeepsWhatIsFartherThanTheDistance) {
    const std::vector<Point> line{{0, 0}, {5, 0.2}, {10, 0}, {10, 10}, {0, 10}, {0, 5}};
    EXPECT_EQ(simplified(line, 0.1).size(), 6U);
    EXPECT_EQ(simplified(line, 0.3).size(), 5U);
}

TEST(SpreadIndices, HaveTheEnds) {
    EXPECT_EQ(spreadIndices(3, 10), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(spreadIndices(11, 3), (std::vector<std::size_t>{0, 5, 10}));
    EXPECT_EQ(spreadIndices(1, 3), (std::vector<std::size_t>{0}));
    EXPECT_TRUE(spreadIndices(0, 3).empty());
}
