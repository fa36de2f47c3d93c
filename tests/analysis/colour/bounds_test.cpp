#include <lvdata/analysis/colour/gamut.h>

#include <gtest/gtest.h>

#include <cmath>

namespace colour = lv::analysis::colour;

namespace {

bool hasTriangle(const colour::Chromaticity& red) {
    return colour::triangle({red, {0.3, 0.6}, {0.15, 0.06}}, colour::Plane::xy).has_value();
}

}  // namespace

TEST(ColourBounds, PrimaryHasCoordinatesFromMinusTenToTen) {
    const double beyond = std::nextafter(10.0, 11.0);
    EXPECT_TRUE(hasTriangle({10, -10}));
    EXPECT_TRUE(hasTriangle({-10, 10}));
    EXPECT_FALSE(hasTriangle({beyond, 0}));
    EXPECT_FALSE(hasTriangle({-beyond, 0}));
    EXPECT_FALSE(hasTriangle({0, beyond}));
    EXPECT_FALSE(hasTriangle({0, -beyond}));
}

TEST(ColourBounds, UniformChromaticityNeedsADenominatorAboveZero) {
    const auto point = colour::uniform({1.25, 0});  // -2.5 + 3
    ASSERT_TRUE(point);
    EXPECT_EQ(point->u, 10);
    EXPECT_EQ(point->v, 0);
    EXPECT_FALSE(colour::uniform({1.5, 0}));
}
