#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MeasurementData.h>

#include <limits>
#include <vector>

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Codes = std::vector<unsigned int>;

Codes storedRGB(double red, double green, double blue) {
    colour source;
    source.red = red;
    source.green = green;
    source.blue = blue;
    MeasurementDataObject row;
    row.RGB_x(source);
    return row.RGB;
}

Codes storedCMYK(double cyan, double magenta, double yellow, double black) {
    colour source;
    source.cyan = cyan;
    source.magenta = magenta;
    source.yellow = yellow;
    source.black = black;
    MeasurementDataObject row;
    row.CMYK_x(source);
    return row.CMYK;
}

TEST(MeasurementDataObject, NewRowIsEmptyAndEveryNotationReadsAsAnAllZeroColour) {
    const MeasurementDataObject row;
    EXPECT_EQ(describe(row), "RGB = 0 entries:\nCMYK = 0 entries:\nXYZ = 0 entries:\nCIELAB = 0 entries:\n"
                             "PQR = 0 entries:\n");
    for (const colour& read : {row.RGB_x(), row.CMYK_x(), row.XYZ_x(), row.CIELAB_x(), row.PQR_x()}) {
        EXPECT_EQ(describe(read), describe(colour()));
    }
}

TEST(MeasurementDataObject, RGBGetterDividesBy255AndFillsNothingElse) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.RGB = {51, 255, 306};
    colour expected;
    expected.red = 51 / 255.0;
    expected.green = 1.0;
    expected.blue = 306 / 255.0;
    EXPECT_EQ(describe(row.RGB_x()), describe(expected));
}

TEST(MeasurementDataObject, RGBOfTwoEntriesReadsAsAnAllZeroColour) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.RGB = {255, 255};
    EXPECT_EQ(describe(row.RGB_x()), describe(colour()));
}

TEST(MeasurementDataObject, RGBGetterIgnoresEntriesAfterTheThird) {
    MeasurementDataObject row;
    row.RGB = {255, 0, 51, 99, 98};
    EXPECT_EQ(row.RGB_x().red, 1.0);
    EXPECT_EQ(row.RGB_x().green, 0.0);
    EXPECT_EQ(row.RGB_x().blue, 51 / 255.0);
}

TEST(MeasurementDataObject, RGBSetterTimes255AddsOneHalfAndTruncates) {
    EXPECT_EQ(storedRGB(0.0, 0.5, 1.0), (Codes{0, 128, 255}));
    EXPECT_EQ(storedRGB(0.49 / 255, 0.51 / 255, 1.49 / 255), (Codes{0, 1, 1}));
}

TEST(MeasurementDataObject, Red05ComesBackAs128Of255) {
    colour source;
    source.red = 0.5;
    MeasurementDataObject row;
    row.RGB_x(source);
    EXPECT_EQ(row.RGB_x().red, 128 / 255.0);
    EXPECT_NE(row.RGB_x().red, 0.5);
}

TEST(MeasurementDataObject, RGBSetterHasNoUpperLimit) {
    EXPECT_EQ(storedRGB(1.2, 1.5, 1000.0), (Codes{306, 383, 255000}));
}

TEST(MeasurementDataObject, RGBSetterStoresNegativeValuesAsZero) {
    EXPECT_EQ(storedRGB(-0.001, -1.0, -0.0), (Codes{0, 0, 0}));
    EXPECT_EQ(storedRGB(-1e300, -infinity, -20000000.0), (Codes{0, 0, 0}));
}

TEST(MeasurementDataObject, RGBSetterKeepsTheLow32Bits) {
    EXPECT_EQ(storedRGB(4294967295.0 / 255, 4294967296.0 / 255, 4294967301.0 / 255), (Codes{4294967295U, 0, 5}));
}

TEST(MeasurementDataObject, RGBSetterStoresZeroForValuesBeyond64Bits) {
    EXPECT_EQ(storedRGB(notANumber, infinity, 1e300), (Codes{0, 0, 0}));
}

TEST(MeasurementDataObject, CMYKGetterDividesBy100AndFillsNothingElse) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.CMYK = {25, 100, 120, 7};
    colour expected;
    expected.cyan = 0.25;
    expected.magenta = 1.0;
    expected.yellow = 1.2;
    expected.black = 0.07;
    EXPECT_EQ(describe(row.CMYK_x()), describe(expected));
}

TEST(MeasurementDataObject, CMYKOfThreeEntriesReadsAsAnAllZeroColour) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.CMYK = {100, 100, 100};
    EXPECT_EQ(describe(row.CMYK_x()), describe(colour()));
}

TEST(MeasurementDataObject, CMYKGetterIgnoresEntriesAfterTheFourth) {
    MeasurementDataObject row;
    row.CMYK = {10, 20, 30, 40, 50};
    EXPECT_EQ(row.CMYK_x().cyan, 0.1);
    EXPECT_EQ(row.CMYK_x().black, 0.4);
}

TEST(MeasurementDataObject, CMYKSetterTimes100AddsOneHalfAndTruncates) {
    EXPECT_EQ(storedCMYK(0.0, 0.125, 0.994, 1.0), (Codes{0, 13, 99, 100}));
    EXPECT_EQ(storedCMYK(0.0049, 0.0051, 0.0149, 0.0151), (Codes{0, 1, 1, 2}));
}

TEST(MeasurementDataObject, CMYKSetterClampsBelowAndNotAbove) {
    EXPECT_EQ(storedCMYK(-0.5, 1.5, -0.001, 20.0), (Codes{0, 150, 0, 2000}));
    EXPECT_EQ(storedCMYK(notANumber, infinity, -infinity, 42949672.96), (Codes{0, 0, 0, 0}));
}

TEST(MeasurementDataObject, RGBSetterReplacesItsVectorAndTouchesNoOtherMember) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.RGB = {9, 9, 9, 9, 9};
    row.RGB_x(filled<colour>());
    MeasurementDataObject expected = filled<MeasurementData>().objects.front();
    expected.RGB = {38, 41, 43};  // 0.15, 0.16 and 0.17 of 255
    EXPECT_EQ(describe(row), describe(expected));
}

TEST(MeasurementDataObject, CMYKSetterReplacesItsVectorAndTouchesNoOtherMember) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.CMYK = {9};
    row.CMYK_x(filled<colour>());
    MeasurementDataObject expected = filled<MeasurementData>().objects.front();
    expected.CMYK = {11, 12, 13, 14};
    EXPECT_EQ(describe(row), describe(expected));
}

}  // namespace
}  // namespace lv::test
