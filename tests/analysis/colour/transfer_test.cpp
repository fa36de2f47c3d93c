#include <lvdata/analysis/colour/transfer.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace colour = lv::analysis::colour;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Known {
    double argument;
    double value;
};

using Function = double (*)(double);

void expectLimits(Function function, double lower, double upper) {
    for (const double below : {lower - 0.01, -1e308, -infinity, notANumber}) {
        EXPECT_EQ(function(below), function(lower)) << below;
    }
    for (const double above : {upper + 0.01, 1e308, infinity}) {
        EXPECT_EQ(function(above), function(upper)) << above;
    }
}

void expectRising(Function function, double lower, double upper) {
    const double step = (upper - lower) / 1000;
    for (int index = 0; index < 1000; ++index) {
        EXPECT_LT(function(lower + index * step), function(lower + (index + 1) * step)) << index;
    }
}

}  // namespace

// IEC 61966-2-1: 8-bit signals and their light.
TEST(ColourTransfer, HasTheKnownValuesOfSRGB) {
    for (const auto& [signal, light] : std::vector<Known>{
             {0, 0}, {10, 0.0030353}, {11, 0.0033465}, {64, 0.0512695}, {128, 0.2158605}, {188, 0.5028865}, {255, 1}}) {
        EXPECT_NEAR(colour::sRGBLight(signal / 255), light, 1e-7) << signal;
    }
    EXPECT_NEAR(colour::sRGBLight(0.04045), colour::sRGBLight(0.040451), 1e-6);
    expectLimits(colour::sRGBLight, 0, 1);
    expectRising(colour::sRGBLight, 0, 1);
}

TEST(ColourTransfer, HasTheKnownLightOfLightness) {
    for (const auto& [lightness, light] : std::vector<Known>{
             {0, 0}, {4, 0.0044282}, {8, 0.0088565}, {9, 0.0100103}, {50, 0.1841865}, {75, 0.4827810}, {100, 1}}) {
        EXPECT_NEAR(colour::lightnessLight(lightness / 100), light, 1e-7) << lightness;
    }
    expectLimits(colour::lightnessLight, 0, 1);
    expectRising(colour::lightnessLight, 0, 1);
}

TEST(ColourTransfer, IsAPowerOfTwoPointFourWithoutBlack) {
    EXPECT_DOUBLE_EQ(colour::bt1886Luminance(0, 100, 0), 0);
    EXPECT_NEAR(colour::bt1886Luminance(0.5, 100, 0), 18.946457, 1e-6);
    EXPECT_NEAR(colour::bt1886Luminance(1, 100, 0), 100, 1e-12);
}

// a (V + b)^2.4 as annex 1 writes it, with its a and b.
TEST(ColourTransfer, HasTheFormulaOfBT1886) {
    const double whiteRoot = std::pow(100, 1 / 2.4);
    const double blackRoot = std::pow(0.1, 1 / 2.4);
    const double a = std::pow(whiteRoot - blackRoot, 2.4);
    const double b = blackRoot / (whiteRoot - blackRoot);
    for (const double signal : {0.0, 0.1, 0.25, 0.5, 0.75, 1.0}) {
        EXPECT_NEAR(colour::bt1886Luminance(signal, 100, 0.1), a * std::pow(signal + b, 2.4), 1e-10) << signal;
    }
    EXPECT_NEAR(colour::bt1886Luminance(0, 100, 0.1), 0.1, 1e-12);
}

TEST(ColourTransfer, HasALuminanceOfBT1886ForEveryNumber) {
    EXPECT_EQ(colour::bt1886Luminance(notANumber, 100, 0), 0);
    EXPECT_NEAR(colour::bt1886Luminance(infinity, 100, 0), 100, 1e-12);
    EXPECT_NEAR(colour::bt1886Luminance(1, 100, -5), 100, 1e-12);
    EXPECT_EQ(colour::bt1886Luminance(0, 100, -5), 0);
    EXPECT_EQ(colour::bt1886Luminance(1, -100, notANumber), 0);
    EXPECT_NEAR(colour::bt1886Luminance(0.5, 7, 7), 7, 1e-12);
}

// ITU-R BT.2390, 5.2, and ITU-R BT.2408, table 1: signals of PQ in percent.
TEST(ColourTransfer, HasThePublishedSignalsOfPQ) {
    const std::vector<Known> published = {{0, 0},    {0.1, 6},  {1, 15},    {10, 30},   {26, 38},    {100, 51},
                                          {162, 56}, {203, 58}, {1000, 75}, {4000, 90}, {10000, 100}};
    for (const auto& [luminance, signal] : published) {
        EXPECT_NEAR(100 * colour::pqSignal(luminance), signal, 0.5) << luminance;
    }
}

TEST(ColourTransfer, HasTheKnownSignalsOfPQ) {
    for (const auto& [luminance, signal] :
         std::vector<Known>{{0.1, 0.0623}, {1, 0.1499}, {100, 0.5081}, {203, 0.5807}, {1000, 0.7518}, {4000, 0.9026}}) {
        EXPECT_NEAR(colour::pqSignal(luminance), signal, 0.00006) << luminance;
    }
    EXPECT_EQ(colour::pqSignal(10000), 1);
    EXPECT_NEAR(colour::pqSignal(0), 0, 1e-6);
    expectLimits(colour::pqSignal, 0, 10000);
    expectRising(colour::pqSignal, 0, 10000);
}

TEST(ColourTransfer, HasLuminancesOfPQThatGiveTheSignal) {
    for (int index = 0; index <= 1000; ++index) {
        const double signal = index / 1000.0;
        EXPECT_NEAR(colour::pqSignal(colour::pqLuminance(signal)), signal, 1e-6) << signal;
    }
    EXPECT_NEAR(colour::pqLuminance(0.508078), 100, 0.001);
    EXPECT_EQ(colour::pqLuminance(0), 0);
    EXPECT_NEAR(colour::pqLuminance(1), 10000, 1e-8);
    expectLimits(colour::pqLuminance, 0, 1);
    expectRising(colour::pqLuminance, 0, 1);
}

TEST(ColourTransfer, HasTheKnownSceneLightOfHLG) {
    EXPECT_EQ(colour::hlgSceneLight(0), 0);
    EXPECT_NEAR(colour::hlgSceneLight(0.25), 1.0 / 48, 1e-12);
    EXPECT_NEAR(colour::hlgSceneLight(0.5), 1.0 / 12, 1e-12);
    EXPECT_NEAR(colour::hlgSceneLight(0.5000001), 1.0 / 12, 1e-6);
    EXPECT_NEAR(colour::hlgSceneLight(0.75), 0.26496, 0.00001);
    EXPECT_NEAR(colour::hlgSceneLight(1), 1, 1e-6);
    expectLimits(colour::hlgSceneLight, 0, 1);
    expectRising(colour::hlgSceneLight, 0, 1);
}

// ITU-R BT.2408, table 1: on a display of 1000 cd/m², 75 % is 203 cd/m² and 38 % is 26 cd/m².
TEST(ColourTransfer, HasThePublishedLuminancesOfHLG) {
    const std::array<double, 3> luminances = {0.2627, 0.6780, 0.0593};
    for (const auto& [signal, luminance] : std::vector<Known>{{0, 0}, {0.38, 26}, {0.75, 203}, {1, 1000}}) {
        const double scene = colour::hlgSceneLight(signal);
        const auto light = colour::hlgDisplayLight({scene, scene, scene}, 1.2, luminances);
        EXPECT_NEAR(1000 * light[0], luminance, 0.5) << signal;
        EXPECT_EQ(light[0], light[2]) << signal;
    }
}

TEST(ColourTransfer, KeepsTheRatioOfLightsInHLG) {
    const auto light = colour::hlgDisplayLight({0.5, 0.25, 0}, 1.5, {0.25, 0.5, 0.25});
    EXPECT_NEAR(light[0], 0.25, 1e-12);  // the sum is 0.25, its root 0.5
    EXPECT_NEAR(light[1], 0.125, 1e-12);
    EXPECT_EQ(light[2], 0);
}

TEST(ColourTransfer, HasNoLightOfHLGWhereTheSceneHasNone) {
    const std::array<double, 3> dark = {};
    EXPECT_EQ(colour::hlgDisplayLight({0, 0, 0}, 0.8, {0.2627, 0.6780, 0.0593}), dark);
    EXPECT_EQ(colour::hlgDisplayLight({-1, 0, 0}, 1.2, {0.2627, 0.6780, 0.0593}), dark);
    EXPECT_EQ(colour::hlgDisplayLight({notANumber, 0, 0}, 1.2, {0.2627, 0.6780, 0.0593}), dark);
}

// ITU-R BT.2390, 6.2: both models.
TEST(ColourTransfer, HasTheSystemGammaOfHLG) {
    EXPECT_NEAR(colour::hlgSystemGamma(1000), 1.2, 1e-12);
    EXPECT_NEAR(colour::hlgSystemGamma(400), 1.03, 0.005);
    EXPECT_NEAR(colour::hlgSystemGamma(600), 1.11, 0.005);
    EXPECT_NEAR(colour::hlgSystemGamma(2000), 1.33, 0.005);
    EXPECT_NEAR(colour::hlgSystemGamma(250), 1.2 / 1.111 / 1.111, 1e-12);
    EXPECT_NEAR(colour::hlgSystemGamma(4000), 1.2 * 1.111 * 1.111, 1e-12);
    expectLimits(colour::hlgSystemGamma, 1, 10000);
}

// DICOM PS3.14, table B-1.
TEST(ColourTransfer, HasThePublishedLuminancesOfTheGSDF) {
    for (const auto& [index, luminance] : std::vector<Known>{
             {1, 0.0500}, {2, 0.0547}, {3, 0.0594}, {4, 0.0643}, {5, 0.0696}, {6, 0.0750}, {7, 0.0807}, {8, 0.0866}}) {
        EXPECT_NEAR(colour::gsdfLuminance(index), luminance, 0.00006) << index;
    }
    EXPECT_NEAR(colour::gsdfLuminance(512), 130.0653, 0.0001);
    EXPECT_NEAR(colour::gsdfLuminance(1023), 3993.4, 0.1);  // the coefficients have eight digits
    expectLimits(colour::gsdfLuminance, 1, 1023);
    expectRising(colour::gsdfLuminance, 1, 1023);
}

TEST(ColourTransfer, HasTheIndexOfALuminanceByTheGSDF) {
    for (int index = 1; index <= 1023; ++index) {
        EXPECT_NEAR(colour::gsdfIndex(colour::gsdfLuminance(index)), index, 0.1) << index;
    }
    EXPECT_NEAR(colour::gsdfIndex(130.0652840), 511.9965, 0.0001);
    expectLimits(colour::gsdfIndex, 0.05, 4000);
    expectRising(colour::gsdfIndex, 0.05, 4000);
}
