#include <lvdata/analysis/colour/rgb.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace colour = lv::analysis::colour;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr colour::Matrix identity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

void expectNear(const colour::Matrix& actual, const colour::Matrix& expected, double error) {
    for (std::size_t row = 0; row < expected.size(); ++row) {
        for (std::size_t column = 0; column < expected.size(); ++column) {
            EXPECT_NEAR(actual.at(row).at(column), expected.at(row).at(column), error)
                << "row " << row << ", column " << column;
        }
    }
}

void expectNear(const colour::Tristimulus& actual, const colour::Tristimulus& expected, double error) {
    for (std::size_t index = 0; index < expected.size(); ++index) {
        EXPECT_NEAR(actual.at(index), expected.at(index), error) << "at " << index;
    }
}

void expectMatrixOfSpace(std::size_t index, const colour::Matrix& expected, double error) {
    const colour::RGBSpace& space = colour::referenceSpaces().at(index);
    const auto actual = colour::rgbToXYZ(space.primaries, space.white);
    ASSERT_TRUE(actual) << space.name;
    SCOPED_TRACE(space.name);
    expectNear(*actual, expected, error);
}

colour::Matrix product(const colour::Matrix& left, const colour::Matrix& right) {
    colour::Matrix result = {};
    for (std::size_t column = 0; column < 3; ++column) {
        const auto ofColumn = colour::product(left, {right[0][column], right[1][column], right[2][column]});
        for (std::size_t row = 0; row < 3; ++row) {
            result[row][column] = ofColumn[row];
        }
    }
    return result;
}

}  // namespace

TEST(ColourRGB, HasThePublishedMatrices) {
    // IEC 61966-2-1, equation (7).
    expectMatrixOfSpace(0, {{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}}, 0.00006);
    // Adobe RGB (1998) Color Image Encoding, 4.3.5.3.
    expectMatrixOfSpace(1, {{{0.57667, 0.18556, 0.18823}, {0.29734, 0.62736, 0.07529}, {0.02703, 0.07069, 0.99134}}},
                        0.00001);
    // SMPTE EG 432-1, annex, for white D65.
    expectMatrixOfSpace(
        2, {{{0.4865709, 0.2656677, 0.1982173}, {0.2289746, 0.6917385, 0.0792869}, {0, 0.0451134, 1.0439444}}},
        0.0000001);
    // ITU-R BT.2087, table 1.
    expectMatrixOfSpace(3, {{{0.6370, 0.1446, 0.1689}, {0.2627, 0.6780, 0.0593}, {0.0000, 0.0281, 1.0610}}}, 0.00006);
}

TEST(ColourRGB, MakesTheWhiteOfEqualLights) {
    for (const colour::RGBSpace& space : colour::referenceSpaces()) {
        const auto matrix = colour::rgbToXYZ(space.primaries, {0.3457, 0.3585});
        ASSERT_TRUE(matrix);
        expectNear(colour::product(*matrix, {1, 1, 1}), {0.3457 / 0.3585, 1, (1 - 0.3457 - 0.3585) / 0.3585}, 1e-12);
    }
}

TEST(ColourRGB, HasNoMatrixOfPrimariesOnALine) {
    const colour::Chromaticity white = {0.3127, 0.3290};
    EXPECT_FALSE(colour::rgbToXYZ({{0.1, 0.1}, {0.3, 0.3}, {0.7, 0.7}}, white));
    EXPECT_FALSE(colour::rgbToXYZ({{0.3, 0.3}, {0.3, 0.3}, {0.15, 0.06}}, white));
    EXPECT_FALSE(colour::rgbToXYZ({}, white));
}

TEST(ColourRGB, HasNoMatrixWithoutLuminance) {
    const auto& [red, green, blue] = colour::referenceSpaces()[0].primaries;
    const colour::Chromaticity white = {0.3127, 0.3290};
    EXPECT_TRUE(colour::rgbToXYZ({red, green, blue}, white));
    for (const double odd : {0.0, notANumber, infinity, -infinity}) {
        EXPECT_FALSE(colour::rgbToXYZ({{0.64, odd}, green, blue}, white)) << odd;
        EXPECT_FALSE(colour::rgbToXYZ({red, {0.30, odd}, blue}, white)) << odd;
        EXPECT_FALSE(colour::rgbToXYZ({red, green, {0.15, odd}}, white)) << odd;
        EXPECT_FALSE(colour::rgbToXYZ({red, green, blue}, {0.3127, odd})) << odd;
    }
    EXPECT_FALSE(colour::rgbToXYZ({red, green, blue}, {notANumber, 0.3290}));
}

TEST(ColourRGB, IsMadeOfColumns) {
    EXPECT_EQ(colour::fromColumns({1, 2, 3}, {4, 5, 6}, {7, 8, 9}),
              (colour::Matrix{{{1, 4, 7}, {2, 5, 8}, {3, 6, 9}}}));
}

TEST(ColourRGB, MultipliesAColumn) {
    const colour::Matrix matrix = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 10}}};
    EXPECT_EQ(colour::product(matrix, {1, 10, 100}), (colour::Tristimulus{321, 654, 1087}));
}

TEST(ColourRGB, HasTheInverse) {
    const colour::Matrix matrix = {{{1, 2, 3}, {0, 1, 4}, {5, 6, 0}}};
    const auto found = colour::inverse(matrix);
    ASSERT_TRUE(found);
    expectNear(*found, {{{-24, 18, 5}, {20, -15, -4}, {-5, 4, 1}}}, 1e-10);
    expectNear(product(*found, matrix), identity, 1e-10);
}

TEST(ColourRGB, HasTheInverseAtAnyScale) {
    for (const double scale : {1e-60, 1e-6, 1e6, 1e60}) {
        const colour::Matrix matrix = {{{scale, 0, 0}, {0, 2 * scale, 0}, {0, 0, 4 * scale}}};
        const auto found = colour::inverse(matrix);
        ASSERT_TRUE(found) << scale;
        EXPECT_NEAR((*found)[1][1] * scale, 0.5, 1e-12) << scale;
    }
}

TEST(ColourRGB, HasNoInverseOfASingularMatrix) {
    EXPECT_FALSE(colour::inverse({{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}}));
    EXPECT_FALSE(colour::inverse({{{0.1, 0.2, 0.3}, {0.4, 0.5, 0.6}, {0.7, 0.8, 0.9}}}));
    EXPECT_FALSE(colour::inverse({}));
    for (const double odd : {notANumber, infinity, -infinity, 1e308}) {
        EXPECT_FALSE(colour::inverse({{{odd, 0, 0}, {0, odd, 0}, {0, 0, odd}}})) << odd;
        EXPECT_FALSE(colour::inverse({{{1, 0, 0}, {0, 1, odd}, {0, 0, odd}}})) << odd;
    }
}

// The linear Bradford matrix from D65 to D50, as in ISO 15076-1, annex E, of whites with four decimals.
TEST(ColourRGB, AdaptsToAnotherWhite) {
    const colour::Tristimulus d65 = {0.9505, 1, 1.0891};
    const colour::Tristimulus d50 = {0.9642, 1, 0.8249};
    expectNear(colour::adapted(d65, d65, d50), d50, 1e-12);
    expectNear(colour::adapted({1, 0, 0}, d65, d50), {1.0479, 0.0296, -0.0092}, 0.0002);
    expectNear(colour::adapted({0, 1, 0}, d65, d50), {0.0229, 0.9904, 0.0151}, 0.0002);
    expectNear(colour::adapted({0, 0, 1}, d65, d50), {-0.0502, -0.0171, 0.7517}, 0.0002);
    expectNear(colour::adapted({0.2, 0.3, 0.4}, d65, d65), {0.2, 0.3, 0.4}, 1e-12);
}

TEST(ColourRGB, AdaptsWithinTheUnitOfTheWhites) {
    const colour::Tristimulus from = {95.05, 100, 108.91};
    const colour::Tristimulus to = {192.84, 200, 164.98};
    expectNear(colour::adapted(from, from, to), to, 1e-9);
}

TEST(ColourRGB, LeavesTheColourWhereAWhiteHasNoTransform) {
    const colour::Tristimulus colour = {0.2, 0.3, 0.4};
    EXPECT_EQ(colour::adapted(colour, {0, 0, 0}, {0.9642, 1, 0.8249}), colour);
}
