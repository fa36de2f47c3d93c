#include <lvdata/analysis/colour/temperature.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace colour = lv::analysis::colour;

namespace {

/// A point of the CIE 1960 UCS diagram.
struct Point {
    double u;
    double v;
};

Point pointOf(const colour::Chromaticity& chromaticity) {
    const auto uniform = colour::uniform(chromaticity);
    return uniform ? Point{uniform->u, uniform->v * 2 / 3} : Point{};
}

colour::Chromaticity chromaticityOf(const Point& point) {
    const double denominator = 2 * point.u - 8 * point.v + 4;
    return {3 * point.u / denominator, 2 * point.v / denominator};
}

/// The point at a distance from the locus, on the perpendicular at a temperature.
colour::Chromaticity beside(double kelvin, double duv) {
    const Point point = pointOf(colour::planckian(kelvin));
    const Point hotter = pointOf(colour::planckian(kelvin * 1.000001));
    const Point cooler = pointOf(colour::planckian(kelvin / 1.000001));
    const double du = cooler.u - hotter.u;
    const double dv = cooler.v - hotter.v;
    const double length = std::hypot(du, dv);
    return chromaticityOf({point.u - duv * dv / length, point.v + duv * du / length});
}

struct Isotherm {
    double reciprocal;  ///< 1,000,000 / T.
    Point point;        ///< Of the locus.
    double slope;       ///< Of the perpendicular.
};

/// A. R. Robertson: Computation of correlated color temperature and distribution temperature. Journal of the Optical
/// Society of America 58 (1968), 1528-1535; as printed in Wyszecki and Stiles, Color Science, 2nd edition, page 228.
const std::vector<Isotherm> isotherms = {
    {10, {0.18066, 0.26589}, -0.25479},  {20, {0.18133, 0.26846}, -0.26876},  {30, {0.18208, 0.27119}, -0.28539},
    {40, {0.18293, 0.27407}, -0.30470},  {50, {0.18388, 0.27709}, -0.32675},  {60, {0.18494, 0.28021}, -0.35156},
    {70, {0.18611, 0.28342}, -0.37915},  {80, {0.18740, 0.28668}, -0.40955},  {90, {0.18880, 0.28997}, -0.44278},
    {100, {0.19032, 0.29326}, -0.47888}, {125, {0.19462, 0.30141}, -0.58204}, {150, {0.19962, 0.30921}, -0.70471},
    {175, {0.20525, 0.31647}, -0.84901}, {200, {0.21142, 0.32312}, -1.0182},  {225, {0.21807, 0.32909}, -1.2168},
    {250, {0.22511, 0.33439}, -1.4512},  {275, {0.23247, 0.33904}, -1.7298},  {300, {0.24010, 0.34308}, -2.0637},
    {325, {0.24792, 0.34655}, -2.4681},  {350, {0.25591, 0.34951}, -2.9641},  {375, {0.26400, 0.35200}, -3.5814},
    {400, {0.27218, 0.35407}, -4.3633},  {425, {0.28039, 0.35577}, -5.3762},  {450, {0.28863, 0.35714}, -6.7262},
    {475, {0.29685, 0.35823}, -8.5955},  {500, {0.30505, 0.35907}, -11.324},
};

void expectTemperature(const colour::Chromaticity& chromaticity, double kelvin, double duv, double relativeError,
                       double duvError) {
    const auto found = colour::correlatedTemperature(chromaticity);
    ASSERT_TRUE(found) << kelvin << " K, " << duv;
    EXPECT_NEAR(found->kelvin, kelvin, kelvin * relativeError) << kelvin << " K, " << duv;
    EXPECT_NEAR(found->duv, duv, duvError) << kelvin << " K, " << duv;
}

}  // namespace

TEST(ColourTemperature, HasThePublishedPlanckianLocus) {
    for (const Isotherm& isotherm : isotherms) {
        const Point point = pointOf(colour::planckian(1e6 / isotherm.reciprocal));
        EXPECT_NEAR(point.u, isotherm.point.u, 0.00002) << isotherm.reciprocal;
        EXPECT_NEAR(point.v, isotherm.point.v, 0.00002) << isotherm.reciprocal;
    }
}

// What Colour (https://www.colour-science.org) computes by the same method in steps of 1 nm.
TEST(ColourTemperature, HasTheValueOfAnotherProgram) {
    expectTemperature(chromaticityOf({0.1978, 0.3122}), 6507.4738, 0.00322335, 0.00005, 0.000002);
}

// CIE 15: illuminant A is a Planckian radiator of 2848 K by c2 = 0.01435 m K, which is 2855.5 K by today's c2.
TEST(ColourTemperature, HasThePublishedChromaticityOfIlluminantA) {
    const colour::Chromaticity illuminantA = colour::planckian(2848 * 1.4388 / 1.4350);
    EXPECT_NEAR(illuminantA.x, 0.44758, 0.00002);
    EXPECT_NEAR(illuminantA.y, 0.40745, 0.00002);
}

// CIE 15:2004, tables T.1 and T.3. The temperatures are those of their definitions.
TEST(ColourTemperature, HasThePublishedValuesOfTheIlluminants) {
    expectTemperature({0.44758, 0.40745}, 2856, 0.0000, 0.0005, 0.00005);
    expectTemperature({0.34567, 0.35850}, 5003, 0.0032, 0.0005, 0.00005);
    expectTemperature({0.33242, 0.34743}, 5503, 0.0032, 0.0005, 0.0001);
    expectTemperature({0.31272, 0.32903}, 6504, 0.0032, 0.0005, 0.00005);
    expectTemperature({0.29902, 0.31485}, 7504, 0.0032, 0.0005, 0.0001);
}

TEST(ColourTemperature, HasThePublishedIsotherms) {
    for (const Isotherm& isotherm : isotherms) {
        if (isotherm.reciprocal == 10) {
            continue;  // 100,000 K, the end of the range
        }
        for (const double duv : {-0.02, -0.01, -0.003, 0.003, 0.01, 0.02}) {
            // The line falls from upper left to lower right: up and left is the green side.
            const double along = -duv / std::hypot(1.0, isotherm.slope);
            const colour::Chromaticity onLine =
                chromaticityOf({isotherm.point.u + along, isotherm.point.v + along * isotherm.slope});
            expectTemperature(onLine, 1e6 / isotherm.reciprocal, duv, 0.003, 0.0001);
        }
    }
}

TEST(ColourTemperature, FindsEachTemperatureAgain) {
    for (int index = 0; index < 1450; ++index) {
        const double kelvin = 1000.1 * std::pow(1.00317, index);
        expectTemperature(colour::planckian(kelvin), kelvin, 0, 0.00001, 0.000001);
    }
}

TEST(ColourTemperature, FindsEachTemperatureAgainBesideTheLocus) {
    for (int index = 0; index < 125; ++index) {
        const double kelvin = 1010 * std::pow(1.0371, index);
        for (const double duv : {-0.03, -0.01, -0.0021, -0.0019, -0.0005, 0.0005, 0.0019, 0.0021, 0.01, 0.03}) {
            expectTemperature(beside(kelvin, duv), kelvin, duv, 0.0001, 0.00001);
        }
    }
}

TEST(ColourTemperature, HasNoValueFarFromTheLocus) {
    EXPECT_TRUE(colour::correlatedTemperature(beside(5000, 0.0499)));
    EXPECT_FALSE(colour::correlatedTemperature(beside(5000, 0.0501)));
    EXPECT_TRUE(colour::correlatedTemperature(beside(5000, -0.0499)));
    EXPECT_FALSE(colour::correlatedTemperature(beside(5000, -0.0501)));
    EXPECT_FALSE(colour::correlatedTemperature({0.64, 0.33}));
    EXPECT_FALSE(colour::correlatedTemperature({0.15, 0.06}));
    EXPECT_FALSE(colour::correlatedTemperature({0, 0}));
}

// A little farther along the locus than its ends.
TEST(ColourTemperature, HasNoValueJustOutsideTheRange) {
    const Point coldest = pointOf(colour::planckian(1000));
    const Point cold = pointOf(colour::planckian(1001));
    EXPECT_FALSE(colour::correlatedTemperature(chromaticityOf({2 * coldest.u - cold.u, 2 * coldest.v - cold.v})));
    const Point hottest = pointOf(colour::planckian(100000));
    const Point hot = pointOf(colour::planckian(99900));
    EXPECT_FALSE(colour::correlatedTemperature(chromaticityOf({2 * hottest.u - hot.u, 2 * hottest.v - hot.v})));
}

TEST(ColourTemperature, HasNoValueOutsideTheRange) {
    const Point coldest = pointOf(colour::planckian(1000));
    EXPECT_FALSE(colour::correlatedTemperature(chromaticityOf({coldest.u + 0.001, coldest.v})));
    EXPECT_FALSE(colour::correlatedTemperature(chromaticityOf({0.18006, 0.26352})));  // of an infinite temperature
}

TEST(ColourTemperature, IsDefinedForEveryNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const std::vector<double> odd = {notANumber, infinity, -infinity, 1e308, -1e308, 429496.7295, -1, 0};
    for (const double first : odd) {
        for (const double second : odd) {
            EXPECT_FALSE(colour::correlatedTemperature({first, second})) << first << " " << second;
        }
        EXPECT_FALSE(colour::correlatedTemperature({0.3127, first})) << first;
        EXPECT_FALSE(colour::correlatedTemperature({first, 0.3290})) << first;
    }
}

TEST(ColourTemperature, LimitsTheTemperatureOfAPlanckianRadiator) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(colour::planckian(999).x, colour::planckian(1000).x);
    EXPECT_EQ(colour::planckian(-infinity).x, colour::planckian(1000).x);
    EXPECT_EQ(colour::planckian(std::numeric_limits<double>::quiet_NaN()).x, colour::planckian(1000).x);
    EXPECT_EQ(colour::planckian(infinity).y, colour::planckian(100000).y);
    EXPECT_NE(colour::planckian(1001).x, colour::planckian(1000).x);
    EXPECT_NE(colour::planckian(99999).y, colour::planckian(100000).y);
}
