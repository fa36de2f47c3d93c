#include <lvdata/analysis/pictures/svg/Scale.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using lv::analysis::svg::Extent;
using lv::analysis::svg::Range;
using lv::analysis::svg::Scale;
using lv::analysis::svg::widened;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double huge = std::numeric_limits<double>::max();

}  // namespace

TEST(Scale, IsLinear) {
    const Scale scale({2, 4}, {100, 300});
    EXPECT_DOUBLE_EQ(scale.at(2), 100);
    EXPECT_DOUBLE_EQ(scale.at(3.5), 250);
    EXPECT_DOUBLE_EQ(scale.at(4), 300);
}

TEST(Scale, CanBeReversed) {
    EXPECT_DOUBLE_EQ(Scale({0, 1}, {300, 100}).at(0.25), 250);
    EXPECT_DOUBLE_EQ(Scale({1, 0}, {100, 300}).at(0.25), 250);
    EXPECT_TRUE(Scale({1, 0}, {100, 300}).holds(0.25));
}

TEST(Scale, EndsAtItsPixels) {
    const Scale scale({0, 1}, {100, 300});
    for (const double value : {-1.0, -huge, -infinity}) {
        EXPECT_DOUBLE_EQ(scale.at(value), 100);
        EXPECT_FALSE(scale.holds(value));
    }
    for (const double value : {2.0, huge, infinity}) {
        EXPECT_DOUBLE_EQ(scale.at(value), 300);
        EXPECT_FALSE(scale.holds(value));
    }
}

TEST(Scale, GivesItsMiddleForValuesWithoutAPlace) {
    EXPECT_DOUBLE_EQ(Scale({0, 1}, {100, 300}).at(notANumber), 200);
    EXPECT_DOUBLE_EQ(Scale({5, 5}, {100, 300}).at(5), 200);
    EXPECT_DOUBLE_EQ(Scale({notANumber, 1}, {100, 300}).at(1), 200);
    EXPECT_FALSE(Scale({0, 1}, {100, 300}).holds(notANumber));
}

TEST(Scale, HoldsItsEndsAsTheyAreRounded) {
    const Scale scale({0, 1}, {100, 300});
    EXPECT_TRUE(scale.holds(1 + 1e-12));
    EXPECT_FALSE(scale.holds(1.001));
}

TEST(Scale, CanBeOfHugeNumbers) {
    const Scale scale({-huge, huge}, {100, 300});
    EXPECT_DOUBLE_EQ(scale.at(0), 200);
    EXPECT_DOUBLE_EQ(scale.at(huge), 300);
}

TEST(Extent, IsThatOfFiniteValues) {
    Extent extent;
    EXPECT_TRUE(extent.isEmpty());
    for (const double value : {notANumber, 3.0, infinity, -2.0, -infinity, 1.0}) {
        extent.add(value);
    }
    EXPECT_FALSE(extent.isEmpty());
    EXPECT_EQ(extent.range().first, -2);
    EXPECT_EQ(extent.range().last, 3);
}

TEST(Extent, HasAWidthThatIsFinite) {
    Extent extent;
    extent.add(huge);
    extent.add(-huge);
    EXPECT_TRUE(std::isfinite(extent.range().last - extent.range().first));
}

TEST(Widened, IsWiderOnBothSides) {
    const Range range = widened({2, 4}, 0.5, 0);
    EXPECT_DOUBLE_EQ(range.first, 1);
    EXPECT_DOUBLE_EQ(range.last, 5);
}

TEST(Widened, HasTheLeastWidthAroundItsMiddle) {
    const Range range = widened({3, 3}, 0.5, 4);
    EXPECT_DOUBLE_EQ(range.first, 1);
    EXPECT_DOUBLE_EQ(range.last, 5);
}
