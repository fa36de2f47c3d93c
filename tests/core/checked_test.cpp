#include <lvdata/core/checked.h>
#include <lvdata/core/quantities.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfileData.h>
#include <lvdata/records/TargetSetting.h>
#include <lvdata/records/types.h>

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr Quantity plain = {"plain", 1, "", "a number that is stored as it is"};

/// What is stored, or the number that was there before when the value is refused.
template <class Number>
Number storedOr(Number before, double value, const Quantity& quantity) {
    property<Number> member{before, false};
    const bool isStored = trySet(member, value, quantity);
    EXPECT_EQ(member.hasValue, isStored) << value;
    return member.value;
}

constexpr unsigned int before = 77;
constexpr int signedBefore = -77;

TEST(TrySet, RoundsToTheNearestStep) {
    EXPECT_EQ(storedOr(before, 0.985, quantities::gain), 985000U);
    EXPECT_EQ(storedOr(before, 2.2, quantities::gamma), 220U);
    EXPECT_EQ(storedOr(before, 2.2049, quantities::gamma), 220U);
    EXPECT_EQ(storedOr(before, 2.2051, quantities::gamma), 221U);
    EXPECT_EQ(storedOr(before, 0.0, quantities::gain), 0U);
    EXPECT_EQ(storedOr(signedBefore, 0.7, quantities::matrixEntry), 700000);
    EXPECT_EQ(storedOr(signedBefore, -0.7, quantities::matrixEntry), -700000);
    EXPECT_EQ(storedOr(signedBefore, -0.0, quantities::matrixEntry), 0);
}

TEST(TrySet, HalfAStepGoesAwayFromZero) {
    EXPECT_EQ(storedOr(before, 0.5, plain), 1U);
    EXPECT_EQ(storedOr(before, 1.5, plain), 2U);
    EXPECT_EQ(storedOr(before, 2.5, plain), 3U);
    EXPECT_EQ(storedOr(signedBefore, -0.5, plain), -1);
    EXPECT_EQ(storedOr(signedBefore, -2.5, plain), -3);
    EXPECT_EQ(storedOr(before, std::nextafter(0.5, 0.0), plain), 0U) << "the sum with one half would be 1";
    EXPECT_EQ(storedOr(signedBefore, std::nextafter(-0.5, 0.0), plain), 0);
}

TEST(TrySet, TakesTheWholeRangeOfAnUnsignedNumber) {
    EXPECT_EQ(storedOr(before, 4294967295.0, plain), 4294967295U);
    EXPECT_EQ(storedOr(before, 4294967295.25, plain), 4294967295U);
    EXPECT_EQ(storedOr(before, 4294.967295, quantities::gain), 4294967295U);
    EXPECT_EQ(storedOr(before, -0.25, plain), 0U) << "the nearest step is 0";
    for (const double value : {4294967295.5, 4294967296.0, 8589934592.0, 1e10, 1e300, -0.5, -1.0, -1e300}) {
        EXPECT_EQ(storedOr(before, value, plain), before) << value;
    }
    EXPECT_EQ(storedOr(before, 4294.967296, quantities::gain), before);
}

TEST(TrySet, TakesTheWholeRangeOfASignedNumber) {
    EXPECT_EQ(storedOr(signedBefore, 2147483647.25, plain), 2147483647);
    EXPECT_EQ(storedOr(signedBefore, -2147483648.25, plain), std::numeric_limits<int>::min());
    EXPECT_EQ(storedOr(signedBefore, -2147.483648, quantities::tristimulus), std::numeric_limits<int>::min());
    for (const double value : {2147483647.5, 2147483648.0, 4294967296.0, 1e300, -2147483648.5, -2147483649.0, -1e300}) {
        EXPECT_EQ(storedOr(signedBefore, value, plain), signedBefore) << value;
    }
    EXPECT_EQ(storedOr(signedBefore, 2147.483648, quantities::tristimulus), signedBefore);
}

TEST(TrySet, RefusesWhatIsNotAFiniteNumber) {
    for (const double value : {notANumber, -notANumber, infinity, -infinity}) {
        EXPECT_EQ(storedOr(before, value, quantities::gain), before) << value;
        EXPECT_EQ(storedOr(signedBefore, value, quantities::matrixEntry), signedBefore) << value;
    }
}

TEST(TrySet, TheSmallestNumbersAreStoredAsZero) {
    for (const double value : {std::numeric_limits<double>::denorm_min(), 1e-300, 1e-20, 1e-10}) {
        EXPECT_EQ(storedOr(before, value, quantities::gain), 0U) << value;
        EXPECT_EQ(storedOr(before, -value, quantities::gain), 0U) << value;
        EXPECT_EQ(storedOr(signedBefore, -value, quantities::matrixEntry), 0) << value;
    }
}

TEST(TrySet, RefusesAQuantityWithoutAFactor) {
    EXPECT_EQ(storedOr(before, 1.0, {"nothing", 0, "", ""}), before);
}

TEST(TrySet, KeepsAFlagThatWasSet) {
    MonitorParameter parameter;
    parameter.redGain.set(before);
    EXPECT_FALSE(trySet(parameter.redGain, notANumber, quantities::gain));
    EXPECT_EQ(parameter.redGain, (property<unsigned int>{before, true}));
}

TEST(TrySet, AValueThatWasReadIsStoredUnchanged) {
    for (const int number : {std::numeric_limits<int>::min(), -700000, -1, 0, 1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(storedOr(signedBefore, number / 1e6, quantities::matrixEntry), number);
    }
}

TEST(TrySet, SetsPlainMembers) {
    ParameterSetting setting;
    EXPECT_TRUE(trySet(setting.gamma.value.value, 2.4, quantities::gamma));
    EXPECT_EQ(setting.gamma.value.value, 240U);
    EXPECT_FALSE(setting.gamma.hasValue);
    EXPECT_EQ(setting.gamma.value.type, "");
    EXPECT_FALSE(trySet(setting.gamma.value.value, -2.4, quantities::gamma));
    EXPECT_EQ(setting.gamma.value.value, 240U);
}

TEST(TrySet, SetsArrays) {
    MonitorParameter parameter;
    EXPECT_TRUE(trySet(parameter.emulationMatrix, {1, 0, -0.7, 0, 1, 0, 0, 0, 1}, quantities::matrixEntry));
    EXPECT_TRUE(parameter.emulationMatrix.hasValue);
    EXPECT_EQ(parameter.emulationMatrix.value, (std::vector{1000000, 0, -700000, 0, 1000000, 0, 0, 0, 1000000}));
}

TEST(TrySet, SetsCurvesOfAnyLength) {
    TargetSetting::gamma_t::gamma_color curve;
    EXPECT_TRUE(trySet(curve.lut, {0.0, 0.5, 1.0}, quantities::curveEntry16));
    EXPECT_EQ(curve.lut, (std::vector{0U, 32768U, 65535U}));
    EXPECT_TRUE(trySet(curve.lut, std::vector<double>(), quantities::curveEntry16));
    EXPECT_TRUE(curve.lut.empty());
}

TEST(TrySet, ChangesNothingOfAnArrayWithOneEntryThatDoesNotFit) {
    for (const double value : {notANumber, infinity, -0.1, 4294.967296}) {
        MonitorParameter parameter;
        parameter.redLUT.value = {1, 2};
        std::vector<double> entries(256, 0.5);
        entries.back() = value;
        EXPECT_FALSE(trySet(parameter.redLUT, entries, quantities::tableEntry)) << value;
        EXPECT_EQ(parameter.redLUT, (property<std::vector<unsigned int>>{{1, 2}, false}));
    }
}

TEST(TrySet, ChangesNothingOfAnArrayOfAnotherLength) {
    MonitorParameter parameter;
    parameter.redLUT.value = {1, 2};
    EXPECT_FALSE(trySet(parameter.redLUT, std::vector<double>(255, 0.5), quantities::tableEntry));
    EXPECT_EQ(parameter.redLUT, (property<std::vector<unsigned int>>{{1, 2}, false}));
}

TEST(TrySet, SetsTablesAtTheScaleOfTheMonitor) {
    MonitorParameter parameter;
    const std::vector<double> table(1024, 0.5);
    EXPECT_EQ(parameter.tableQuantity(), quantities::tableEntry);
    EXPECT_TRUE(trySet(parameter.redLUT, table, parameter.tableQuantity()));
    parameter.isHDRLUT.set(types::tableScale::hdr);
    EXPECT_EQ(parameter.tableQuantity(), quantities::hdrTableEntry);
    EXPECT_TRUE(trySet(parameter.greenLUT, table, parameter.tableQuantity()));
    EXPECT_EQ(parameter.redLUT.value, std::vector<unsigned int>(1024, 500000));
    EXPECT_EQ(parameter.greenLUT.value, std::vector<unsigned int>(1024, 500000000));
    EXPECT_FALSE(trySet(parameter.blueLUT, std::vector<double>(1024, 4.3), parameter.tableQuantity()));
}

/// A colour with another number in each member.
colour someColour() {
    colour value;
    value.cyan = 0.1;
    value.magenta = 0.2;
    value.yellow = 0.3;
    value.black = 0.4;
    value.red = 0.2;
    value.green = 0.4;
    value.blue = 0.6;
    value.X = 1.5;
    value.Y = 2.5;
    value.Z = 3.5;
    value.L = 50.25;
    value.a = -0.7;
    value.b = 0.7;
    return value;
}

TEST(TrySetColour, StoresTheNotationOfTheQuantity) {
    MeasurementDataObject row;
    EXPECT_TRUE(trySetColour(row.RGB, someColour(), quantities::codeValue));
    EXPECT_TRUE(trySetColour(row.CMYK, someColour(), quantities::inkAmount));
    EXPECT_TRUE(trySetColour(row.XYZ, someColour(), quantities::tristimulus));
    EXPECT_TRUE(trySetColour(row.CIELAB, someColour(), quantities::cielab));
    EXPECT_TRUE(trySetColour(row.PQR, someColour(), quantities::pqr));
    EXPECT_EQ(row.RGB, (std::vector{51U, 102U, 153U}));
    EXPECT_EQ(row.CMYK, (std::vector{10U, 20U, 30U, 40U}));
    EXPECT_EQ(row.XYZ, (std::vector{1500000, 2500000, 3500000}));
    EXPECT_EQ(row.CIELAB, (std::vector{50250000, -700000, 700000}));
    EXPECT_EQ(row.PQR, row.XYZ);
}

TEST(TrySetColour, SetsTheFlagOfAProperty) {
    BasicData data;
    EXPECT_TRUE(trySetColour(data.justCalibratedWhite, someColour(), quantities::tristimulus));
    EXPECT_TRUE(data.justCalibratedWhite.hasValue);
    EXPECT_EQ(data.justCalibratedWhite.value, (std::vector{1500000U, 2500000U, 3500000U}));
}

TEST(TrySetColour, ChangesNothingWhenOneMemberDoesNotFit) {
    ProfileData::xyz_set_t set;
    set.red = {1, 2, 3};
    colour measured = someColour();
    for (const double value : {notANumber, -infinity, -1.0, 4294.967296}) {
        measured.Z = value;
        EXPECT_FALSE(trySetColour(set.red, measured, quantities::tristimulus)) << value;
        EXPECT_EQ(set.red, (std::vector{1U, 2U, 3U}));
    }
}

TEST(TrySetColour, RefusesQuantitiesThatAreNotThoseOfAColour) {
    BasicData data;
    EXPECT_FALSE(trySetColour(data.justCalibratedWhite, someColour(), quantities::gain));
    EXPECT_EQ(data, BasicData());
}

TEST(TrySetChromaticity, StoresBothCoordinatesOrNeither) {
    TargetSetting::white_point_t white;
    colour measured;
    measured.x = 0.3127;
    measured.y = 0.32904;
    EXPECT_TRUE(trySetChromaticity(white.x, white.y, measured));
    EXPECT_EQ(white.x, 3127U);
    EXPECT_EQ(white.y, 3290U);
    for (const auto& [x, y] : {std::pair(notANumber, 0.5), {0.5, notANumber}, {-0.1, 0.5}, {0.5, -0.1}}) {
        measured.x = x;
        measured.y = y;
        EXPECT_FALSE(trySetChromaticity(white.x, white.y, measured)) << x << ' ' << y;
        EXPECT_EQ(white.x, 3127U);
        EXPECT_EQ(white.y, 3290U);
    }
}

}  // namespace
}  // namespace lv
