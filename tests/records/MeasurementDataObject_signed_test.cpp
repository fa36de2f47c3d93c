#include <tests/support/parameter_names.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MeasurementData.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Numbers = std::vector<int>;

/// A notation of the row with signed numbers: three of them, times 1000000.
struct SignedNotation {
    const char* name;
    Numbers MeasurementDataObject::*stored;
    colour (MeasurementDataObject::*get)() const;
    void (MeasurementDataObject::*set)(const colour&);
    std::array<double colour::*, 3> members;
};

class SignedNotationTest : public ::testing::TestWithParam<SignedNotation> {
protected:
    /// The number that this value of its first member is stored as.
    [[nodiscard]] static int storedFrom(double value) {
        colour source;
        source.*GetParam().members[0] = value;
        MeasurementDataObject row;
        (row.*GetParam().set)(source);
        return (row.*GetParam().stored).at(0);
    }
};

INSTANTIATE_TEST_SUITE_P(MeasurementDataObject, SignedNotationTest,
                         ::testing::Values(SignedNotation{"XYZ",
                                                          &MeasurementDataObject::XYZ,
                                                          &MeasurementDataObject::XYZ_x,
                                                          &MeasurementDataObject::XYZ_x,
                                                          {&colour::X, &colour::Y, &colour::Z}},
                                           SignedNotation{"CIELAB",
                                                          &MeasurementDataObject::CIELAB,
                                                          &MeasurementDataObject::CIELAB_x,
                                                          &MeasurementDataObject::CIELAB_x,
                                                          {&colour::L, &colour::a, &colour::b}},
                                           SignedNotation{"PQR",
                                                          &MeasurementDataObject::PQR,
                                                          &MeasurementDataObject::PQR_x,
                                                          &MeasurementDataObject::PQR_x,
                                                          {&colour::X, &colour::Y, &colour::Z}}),
                         nameOfParameter);

TEST(MeasurementDataObject, YOf04MillionthsStoresZeroAndOf05MillionthsStoresOne) {
    colour source;
    source.Y = 0.0000004;
    MeasurementDataObject row;
    row.XYZ_x(source);
    EXPECT_EQ(row.XYZ, (Numbers{0, 0, 0}));
    source.Y = 0.0000005;
    row.XYZ_x(source);
    EXPECT_EQ(row.XYZ, (Numbers{0, 1, 0}));
}

TEST(MeasurementDataObject, XOfMinus07StoresMinus699999) {
    colour source;
    source.X = -0.7;
    MeasurementDataObject row;
    row.XYZ_x(source);
    EXPECT_EQ(row.XYZ, (Numbers{-699999, 0, 0}));
}

TEST(MeasurementDataObject, PQRIsConvertedThroughTheMembersXYZ) {
    colour source;
    source.X = 1.5;
    source.Y = 2.5;
    source.Z = -3.5;
    MeasurementDataObject row;
    row.PQR_x(source);
    EXPECT_EQ(row.PQR, (Numbers{1500000, 2500000, -3499999}));
    EXPECT_TRUE(row.XYZ.empty());
}

TEST_P(SignedNotationTest, GetterDividesByAMillionAndFillsNothingElse) {
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.*GetParam().stored = {95047000, -1500000, 1};
    colour expected;
    expected.*GetParam().members[0] = 95.047;
    expected.*GetParam().members[1] = -1.5;
    expected.*GetParam().members[2] = 0.000001;
    EXPECT_EQ(describe((row.*GetParam().get)()), describe(expected));
}

TEST_P(SignedNotationTest, FewerThanThreeEntriesReadAsAnAllZeroColour) {
    for (const Numbers& few : {Numbers{}, Numbers{5000000}, Numbers{5000000, 6000000}}) {
        MeasurementDataObject row = filled<MeasurementData>().objects.front();
        row.*GetParam().stored = few;
        EXPECT_EQ(describe((row.*GetParam().get)()), describe(colour()));
    }
}

TEST_P(SignedNotationTest, GetterIgnoresEntriesAfterTheThird) {
    MeasurementDataObject row;
    row.*GetParam().stored = {1000000, 2000000, 3000000, 4000000};
    const colour read = (row.*GetParam().get)();
    EXPECT_EQ(read.*GetParam().members[0], 1.0);
    EXPECT_EQ(read.*GetParam().members[2], 3.0);
}

TEST_P(SignedNotationTest, SetterReplacesItsVectorAndTouchesNoOtherMember) {
    const colour source = filled<colour>();
    MeasurementDataObject row = filled<MeasurementData>().objects.front();
    row.*GetParam().stored = {9, 9, 9, 9, 9};
    (row.*GetParam().set)(source);
    MeasurementDataObject expected = filled<MeasurementData>().objects.front();
    for (std::size_t index = 0; index < 3; ++index) {
        const double value = source.*GetParam().members[index];
        (expected.*GetParam().stored)[index] = static_cast<int>(std::lround(value * 1e6));
    }
    EXPECT_EQ(describe(row), describe(expected));
}

TEST_P(SignedNotationTest, SetterAddsOneHalfAndTruncatesTowardZeroOnBothSides) {
    EXPECT_EQ(storedFrom(0.0), 0);
    EXPECT_EQ(storedFrom(0.0000004), 0);
    EXPECT_EQ(storedFrom(0.0000005), 1);
    EXPECT_EQ(storedFrom(-0.0000004), 0);
    EXPECT_EQ(storedFrom(-0.0000012), 0);
    EXPECT_EQ(storedFrom(-0.000002), -1);
    EXPECT_EQ(storedFrom(-0.7), -699999);
    EXPECT_EQ(storedFrom(-1.0), -999999);
    EXPECT_EQ(storedFrom(1.0), 1000000);
}

TEST_P(SignedNotationTest, SetterKeepsTheLow32Bits) {
    EXPECT_EQ(storedFrom(2147.483647), 2147483647);
    EXPECT_EQ(storedFrom(2147.483648), std::numeric_limits<int>::min());
    EXPECT_EQ(storedFrom(-2147.483649), std::numeric_limits<int>::min());
    EXPECT_EQ(storedFrom(-2147.48365), 2147483647);
    EXPECT_EQ(storedFrom(4294.967301), 5);
}

TEST_P(SignedNotationTest, SetterStoresZeroForValuesBeyond64Bits) {
    for (const double value : {notANumber, infinity, -infinity, 1e300, -1e300, 1e13}) {
        EXPECT_EQ(storedFrom(value), 0) << value;
    }
}

}  // namespace
}  // namespace lv::test
