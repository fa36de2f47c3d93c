#include <lvdata/analysis/colour/gamut.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace colour = lv::analysis::colour;

namespace {

const colour::Primaries& sRGB = colour::referenceSpaces()[0].primaries;
const colour::Primaries& adobeRGB = colour::referenceSpaces()[1].primaries;
const colour::Primaries& displayP3 = colour::referenceSpaces()[2].primaries;
const colour::Primaries& bt2020 = colour::referenceSpaces()[3].primaries;

using Triangle = std::array<colour::PlanePoint, 3>;

Triangle corners(const colour::Primaries& primaries, colour::Plane plane) {
    return colour::triangle(primaries, plane).value_or(Triangle());
}

/// Twice the area, above 0 where the corners go round to the left.
double turn(const colour::PlanePoint& first, const colour::PlanePoint& second, const colour::PlanePoint& third) {
    return (second.horizontal - first.horizontal) * (third.vertical - first.vertical) -
           (third.horizontal - first.horizontal) * (second.vertical - first.vertical);
}

bool contains(const Triangle& corners, const colour::PlanePoint& point) {
    const double sign = turn(corners[0], corners[1], corners[2]);
    return turn(corners[0], corners[1], point) * sign >= 0 && turn(corners[1], corners[2], point) * sign >= 0 &&
           turn(corners[2], corners[0], point) * sign >= 0;
}

/// The points of a fine grid that lie in both triangles, over those in the second.
double countedCoverage(const Triangle& gamut, const Triangle& reference) {
    int all = 0;
    int covered = 0;
    for (int column = 0; column < 400; ++column) {
        for (int row = 0; row < 450; ++row) {
            const colour::PlanePoint point = {0.001 + 0.002 * column, 0.001 + 0.002 * row};
            if (contains(reference, point)) {
                ++all;
                covered += contains(gamut, point) ? 1 : 0;
            }
        }
    }
    return static_cast<double>(covered) / all;
}

}  // namespace

TEST(ColourGamut, HasTheTriangleInBothDiagrams) {
    const Triangle inXy = corners(sRGB, colour::Plane::xy);
    EXPECT_EQ(inXy[0].horizontal, 0.64);
    EXPECT_EQ(inXy[1].vertical, 0.60);
    EXPECT_EQ(inXy[2].horizontal, 0.15);
    const Triangle inUv = corners(sRGB, colour::Plane::uv);
    EXPECT_NEAR(inUv[0].horizontal, 0.4507, 0.00005);
    EXPECT_NEAR(inUv[0].vertical, 0.5229, 0.00005);
    EXPECT_NEAR(inUv[1].horizontal, 0.1250, 0.00005);
    EXPECT_NEAR(inUv[1].vertical, 0.5625, 0.00005);
    EXPECT_NEAR(inUv[2].horizontal, 0.1754, 0.00005);
    EXPECT_NEAR(inUv[2].vertical, 0.1579, 0.00005);
}

// Areas by hand with the shoelace formula: sRGB 0.11205, Adobe RGB 0.15115, BT.2020 0.2118665.
TEST(ColourGamut, HasTheKnownAreaRatios) {
    const auto inBT2020 = colour::compareGamuts(sRGB, bt2020, colour::Plane::xy);
    ASSERT_TRUE(inBT2020);
    EXPECT_NEAR(inBT2020->areaRatio, 0.11205 / 0.2118665, 1e-9);
    EXPECT_NEAR(inBT2020->coverage, 0.11205 / 0.2118665, 1e-9);
    const auto inAdobeRGB = colour::compareGamuts(sRGB, adobeRGB, colour::Plane::xy);
    ASSERT_TRUE(inAdobeRGB);
    EXPECT_NEAR(inAdobeRGB->areaRatio, 0.11205 / 0.15115, 1e-9);
    EXPECT_NEAR(inAdobeRGB->coverage, 0.11205 / 0.15115, 1e-9);
}

TEST(ColourGamut, CoversSmallerGamutsWhole) {
    for (const colour::Plane plane : {colour::Plane::xy, colour::Plane::uv}) {
        for (const colour::Primaries* larger : {&sRGB, &adobeRGB, &displayP3, &bt2020}) {
            const auto comparison = colour::compareGamuts(*larger, sRGB, plane);
            ASSERT_TRUE(comparison);
            EXPECT_NEAR(comparison->coverage, 1, 1e-12);
            EXPECT_LE(comparison->coverage, 1);
        }
    }
    EXPECT_NEAR(colour::compareGamuts(displayP3, sRGB, colour::Plane::xy)->areaRatio, 0.152 / 0.11205, 1e-9);
}

TEST(ColourGamut, IsTheSameAsCountingPoints) {
    const std::vector<colour::Primaries> all = {
        sRGB, adobeRGB, displayP3, bt2020, {{0.5, 0.4}, {0.3, 0.3}, {0.1, 0.3}}};
    for (const colour::Plane plane : {colour::Plane::xy, colour::Plane::uv}) {
        for (const colour::Primaries& gamut : all) {
            for (const colour::Primaries& reference : all) {
                const auto comparison = colour::compareGamuts(gamut, reference, plane);
                ASSERT_TRUE(comparison);
                EXPECT_NEAR(comparison->coverage, countedCoverage(corners(gamut, plane), corners(reference, plane)),
                            0.01);
            }
        }
    }
}

TEST(ColourGamut, TakesCornersInAnyOrder) {
    const auto expected = colour::compareGamuts(displayP3, adobeRGB, colour::Plane::xy);
    ASSERT_TRUE(expected);
    std::vector<colour::Chromaticity> corners = {displayP3.red, displayP3.green, displayP3.blue};
    for (const auto& [first, second, third] :
         {std::array{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}) {
        const colour::Primaries turned = {corners.at(static_cast<std::size_t>(first)),
                                          corners.at(static_cast<std::size_t>(second)),
                                          corners.at(static_cast<std::size_t>(third))};
        const auto ofGamut = colour::compareGamuts(turned, adobeRGB, colour::Plane::xy);
        const auto ofReference = colour::compareGamuts(adobeRGB, turned, colour::Plane::xy);
        ASSERT_TRUE(ofGamut && ofReference);
        EXPECT_NEAR(ofGamut->coverage, expected->coverage, 1e-12);
        EXPECT_NEAR(ofReference->coverage, expected->coverage / expected->areaRatio, 1e-12);
        EXPECT_NEAR(ofReference->areaRatio, 1 / expected->areaRatio, 1e-12);
    }
}

TEST(ColourGamut, CoversNothingOfADistantGamut) {
    const auto comparison = colour::compareGamuts({{0.7, 0.1}, {0.75, 0.1}, {0.7, 0.2}}, sRGB, colour::Plane::xy);
    ASSERT_TRUE(comparison);
    EXPECT_EQ(comparison->coverage, 0);
    EXPECT_GT(comparison->areaRatio, 0);
}

TEST(ColourGamut, HasNoValueWithoutAnArea) {
    const colour::Primaries onePoint = {{0.3, 0.3}, {0.3, 0.3}, {0.3, 0.3}};
    const colour::Primaries onLine = {{0.1, 0.1}, {0.3, 0.3}, {0.7, 0.7}};
    for (const colour::Plane plane : {colour::Plane::xy, colour::Plane::uv}) {
        for (const colour::Primaries& flat : {onePoint, onLine, colour::Primaries()}) {
            EXPECT_FALSE(colour::compareGamuts(flat, sRGB, plane));
            EXPECT_FALSE(colour::compareGamuts(sRGB, flat, plane));
        }
    }
}

TEST(ColourGamut, HasNoValueWhereAPrimaryHasNoPlace) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double odd : {notANumber, infinity, -infinity, 1e308, -1e308, 1e7}) {
        for (const colour::Plane plane : {colour::Plane::xy, colour::Plane::uv}) {
            EXPECT_FALSE(colour::triangle({sRGB.red, {odd, 0.3}, sRGB.blue}, plane)) << odd;
            EXPECT_FALSE(colour::compareGamuts({{odd, 0.3}, sRGB.green, sRGB.blue}, sRGB, plane)) << odd;
            EXPECT_FALSE(colour::compareGamuts(sRGB, {{odd, 0.3}, sRGB.green, sRGB.blue}, plane)) << odd;
        }
        EXPECT_FALSE(colour::triangle({sRGB.red, sRGB.green, {0.3, odd}}, colour::Plane::xy)) << odd;
    }
    EXPECT_FALSE(colour::triangle({{-1e7, 0.3}, sRGB.green, sRGB.blue}, colour::Plane::xy));
    EXPECT_FALSE(colour::triangle({{1.5, 0}, sRGB.green, sRGB.blue}, colour::Plane::uv));
    EXPECT_TRUE(colour::triangle({{1.5, 0}, sRGB.green, sRGB.blue}, colour::Plane::xy));
}

// Any corners of a coarse grid: shared corners, shared edges, corners on edges.
TEST(ColourGamut, StaysInRangeForTrianglesThatTouch) {
    std::vector<colour::Chromaticity> grid;
    for (int index = 0; index < 9; ++index) {
        grid.push_back({0.1 + 0.1 * (index % 3), 0.1 + 0.1 * (index / 3)});
    }
    const colour::Primaries reference = {{0.1, 0.1}, {0.3, 0.1}, {0.1, 0.3}};
    for (const colour::Chromaticity& first : grid) {
        for (const colour::Chromaticity& second : grid) {
            for (const colour::Chromaticity& third : grid) {
                const auto comparison = colour::compareGamuts({first, second, third}, reference, colour::Plane::xy);
                if (comparison) {
                    EXPECT_GE(comparison->coverage, 0);
                    EXPECT_LE(comparison->coverage, std::min(1.0, comparison->areaRatio) + 1e-12);
                }
            }
        }
    }
}

// Two corners of the second triangle lie beside edges of the first, less than a rounding error away.
TEST(ColourGamut, HasNoWrongValueWhereCornersNearlyTouchEdges) {
    const colour::Primaries gamut = {{0.86594102630999292, 0.73615504116540897},
                                     {0.87056381098269575, 0.7943354442566799},
                                     {0.91761330491237569, 0.12165819481128873}};
    const colour::Primaries reference = {{0.15854999750515969, 0.3541942282639321},
                                         {0.89177716561118436, 0.42890661798834884},
                                         {0.088685681388616613, 0.3564956344159228}};
    const auto comparison = colour::compareGamuts(gamut, reference, colour::Plane::uv);
    EXPECT_LT(comparison ? comparison->coverage : 0, 1e-9);
}

TEST(ColourGamut, CoversATriangleThatTouchesAnEdge) {
    const colour::Primaries gamut = {{0.875, 0.875}, {0.125, 0.125}, {0.625, 0}};
    const colour::Primaries reference = {{0.375, 0.375}, {0.75, 0.4375}, {0.625, 0.625}};
    const auto comparison = colour::compareGamuts(gamut, reference, colour::Plane::uv);
    ASSERT_TRUE(comparison);
    EXPECT_NEAR(comparison->coverage, 1, 1e-9);
}
