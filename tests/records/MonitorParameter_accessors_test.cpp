#include <tests/support/parameter_names.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorParameter.h>

#include <limits>
#include <string>
#include <vector>

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Doubles = std::vector<double>;
using Stored = std::vector<unsigned int>;

/// An accessor pair for one number.
struct NumberAccess {
    const char* name;
    double factor;
    property<unsigned int> MonitorParameter::*stored;
    double (MonitorParameter::*get)() const;
    void (MonitorParameter::*set)(double);
};

class NumberAccessTest : public ::testing::TestWithParam<NumberAccess> {
protected:
    [[nodiscard]] static unsigned int storedFrom(double value) {
        MonitorParameter record;
        (record.*GetParam().set)(value);
        EXPECT_TRUE((record.*GetParam().stored).hasValue);
        return (record.*GetParam().stored).value;
    }
};

INSTANTIATE_TEST_SUITE_P(MonitorParameter, NumberAccessTest,
                         ::testing::Values(NumberAccess{"hlgSystemGamma", 100.0, &MonitorParameter::hlgSystemGamma,
                                                        &MonitorParameter::hlgSystemGamma_x,
                                                        &MonitorParameter::hlgSystemGamma_x},
                                           NumberAccess{"redGain", 1000000.0, &MonitorParameter::redGain,
                                                        &MonitorParameter::redGain_x, &MonitorParameter::redGain_x},
                                           NumberAccess{"greenGain", 1000000.0, &MonitorParameter::greenGain,
                                                        &MonitorParameter::greenGain_x, &MonitorParameter::greenGain_x},
                                           NumberAccess{"blueGain", 1000000.0, &MonitorParameter::blueGain,
                                                        &MonitorParameter::blueGain_x, &MonitorParameter::blueGain_x}),
                         nameOfParameter);

TEST_P(NumberAccessTest, GetterDividesTheStoredValueWhetherOrNotItIsSet) {
    for (const bool flag : {false, true}) {
        MonitorParameter record = filled<MonitorParameter>();
        record.*GetParam().stored = {4294967295U, flag};
        EXPECT_EQ((record.*GetParam().get)(), 4294967295.0 / GetParam().factor);
        record.*GetParam().stored = {137, flag};
        EXPECT_EQ((record.*GetParam().get)(), 137.0 / GetParam().factor);
    }
    EXPECT_EQ((MonitorParameter().*GetParam().get)(), 0.0);
}

TEST_P(NumberAccessTest, SetterSetsValueAndFlagAndTouchesNothingElse) {
    for (MonitorParameter record : {MonitorParameter(), filled<MonitorParameter>()}) {
        MonitorParameter expected = record;
        expected.*GetParam().stored = {3U * static_cast<unsigned int>(GetParam().factor), true};
        (record.*GetParam().set)(3.0);
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST_P(NumberAccessTest, SetterAddsOneHalfAndTruncates) {
    const double step = 1.0 / GetParam().factor;
    EXPECT_EQ(storedFrom(0.0), 0U);
    EXPECT_EQ(storedFrom(0.49 * step), 0U);
    EXPECT_EQ(storedFrom(0.51 * step), 1U);
    EXPECT_EQ(storedFrom(1.49 * step), 1U);
    EXPECT_EQ(storedFrom(1.51 * step), 2U);
}

TEST_P(NumberAccessTest, SetterStoresNegativeValuesAsZero) {
    for (const double value : {-0.0, -0.2, -1.0, -5000.0, -1e300, -infinity}) {
        EXPECT_EQ(storedFrom(value), 0U) << value;
    }
}

TEST_P(NumberAccessTest, SetterKeepsTheLow32Bits) {
    EXPECT_EQ(storedFrom(4294967295.0 / GetParam().factor), 4294967295U);
    EXPECT_EQ(storedFrom(4294967296.0 / GetParam().factor), 0U);
    EXPECT_EQ(storedFrom(4294967301.0 / GetParam().factor), 5U);
}

TEST_P(NumberAccessTest, SetterStoresZeroForValuesBeyond64Bits) {
    for (const double value : {notANumber, infinity, 1e300, 9223372036854775808.0 / GetParam().factor}) {
        EXPECT_EQ(storedFrom(value), 0U) << value;
    }
}

TEST(MonitorParameter, RedGainStoresTheRoundedMillionths) {
    MonitorParameter record;
    record.redGain_x(-0.2);
    EXPECT_EQ(record.redGain, (property<unsigned int>{0, true}));
    record.redGain_x(1.0000004);
    EXPECT_EQ(record.redGain, (property<unsigned int>{1000000, true}));
    record.redGain_x(1.0000005);
    EXPECT_EQ(record.redGain, (property<unsigned int>{1000001, true}));
}

TEST(MonitorParameter, GainBeyond4294967295MillionthsWraps) {
    MonitorParameter record;
    record.blueGain_x(4294.967295);
    EXPECT_EQ(record.blueGain.value, 4294967295U);
    record.blueGain_x(4294.967298);
    EXPECT_EQ(record.blueGain.value, 2U);
}

TEST(MonitorParameter, HLGSystemGammaOf12StoresAs120AndReadsAs12) {
    MonitorParameter record;
    record.hlgSystemGamma_x(1.2);
    EXPECT_EQ(record.hlgSystemGamma, (property<unsigned int>{120, true}));
    EXPECT_EQ(record.hlgSystemGamma_x(), 1.2);
}

/// An accessor pair for a look-up table.
struct TableAccess {
    const char* name;
    property<Stored> MonitorParameter::*stored;
    Doubles (MonitorParameter::*get)() const;
    void (MonitorParameter::*set)(const Doubles&);
};

class TableAccessTest : public ::testing::TestWithParam<TableAccess> {
protected:
    [[nodiscard]] static Stored storedFrom(const Doubles& values, unsigned int isHDRLUT) {
        MonitorParameter record;
        record.isHDRLUT.value = isHDRLUT;
        (record.*GetParam().set)(values);
        EXPECT_TRUE((record.*GetParam().stored).hasValue);
        return (record.*GetParam().stored).value;
    }

    [[nodiscard]] static Doubles read(const MonitorParameter& record) { return (record.*GetParam().get)(); }
};

INSTANTIATE_TEST_SUITE_P(MonitorParameter, TableAccessTest,
                         ::testing::Values(TableAccess{"redLUT", &MonitorParameter::redLUT, &MonitorParameter::redLUT_x,
                                                       &MonitorParameter::redLUT_x},
                                           TableAccess{"greenLUT", &MonitorParameter::greenLUT,
                                                       &MonitorParameter::greenLUT_x, &MonitorParameter::greenLUT_x},
                                           TableAccess{"blueLUT", &MonitorParameter::blueLUT,
                                                       &MonitorParameter::blueLUT_x, &MonitorParameter::blueLUT_x}),
                         nameOfParameter);

TEST_P(TableAccessTest, GetterDividesByTheScaleThatTheValueOfIsHDRLUTChooses) {
    MonitorParameter record;
    (record.*GetParam().stored).value = {0, 500000, 1000000, 500000000, 4294967295U};
    const Doubles normal = {0.0, 0.5, 1.0, 500.0, 4294.967295};
    const Doubles hdr = {0.0, 0.0005, 0.001, 0.5, 4.294967295};
    for (const bool flag : {false, true}) {
        (record.*GetParam().stored).hasValue = flag;
        for (const unsigned int isHDRLUT : {0U, 1U, 2U, 4294967295U}) {
            record.isHDRLUT = {isHDRLUT, flag};
            EXPECT_EQ(read(record), isHDRLUT == 1 ? hdr : normal) << isHDRLUT;
        }
    }
}

TEST_P(TableAccessTest, StoredEntry500000000ReadsAs05WithIsHDRLUT1And500000DoesWithout) {
    MonitorParameter record;
    record.isHDRLUT.set(1);
    record.*GetParam().stored = {{500000000}, true};
    EXPECT_EQ(read(record), (Doubles{0.5}));
    record.isHDRLUT.set(0);
    record.*GetParam().stored = {{500000}, true};
    EXPECT_EQ(read(record), (Doubles{0.5}));
}

TEST_P(TableAccessTest, EmptyTableReadsAsAnEmptyVector) {
    EXPECT_TRUE(read(MonitorParameter()).empty());
}

TEST_P(TableAccessTest, SetterUsesTheScaleThatTheValueOfIsHDRLUTChooses) {
    for (const unsigned int isHDRLUT : {0U, 2U, 4294967295U}) {
        EXPECT_EQ(storedFrom({0.0, 0.5, 1.0}, isHDRLUT), (Stored{0, 500000, 1000000})) << isHDRLUT;
    }
    EXPECT_EQ(storedFrom({0.0, 0.5, 1.0}, 1), (Stored{0, 500000000, 1000000000}));
}

TEST_P(TableAccessTest, ChangingIsHDRLUTLeavesTheStoredEntries) {
    MonitorParameter record;
    (record.*GetParam().set)({0.5});
    record.isHDRLUT.set(1);
    EXPECT_EQ((record.*GetParam().stored).value, (Stored{500000}));
    EXPECT_EQ(read(record), (Doubles{0.0005}));
}

TEST_P(TableAccessTest, SetterReplacesTheTableSetsItsFlagAndTouchesNothingElse) {
    for (MonitorParameter record : {MonitorParameter(), filled<MonitorParameter>()}) {
        record.isHDRLUT.value = 0;
        MonitorParameter expected = record;
        expected.*GetParam().stored = {{250000, 750000}, true};
        (record.*GetParam().set)({0.25, 0.75});
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST_P(TableAccessTest, SetterTakesAnyLength) {
    for (const std::size_t length : {0U, 1U, 255U, 256U, 257U, 1023U, 1024U, 1025U}) {
        EXPECT_EQ(storedFrom(Doubles(length, 0.5), 0), Stored(length, 500000));
    }
}

TEST_P(TableAccessTest, SetterAddsOneHalfAndTruncatesAndStoresNegativeValuesAsZero) {
    EXPECT_EQ(storedFrom({0.00000049, 0.00000051, 0.00000149, -0.0, -0.1, -1e300, -infinity}, 0),
              (Stored{0, 1, 1, 0, 0, 0, 0}));
    EXPECT_EQ(storedFrom({0.00000000049, 0.00000000051, 0.00000000149, -0.0, -0.1, -1e300, -infinity}, 1),
              (Stored{0, 1, 1, 0, 0, 0, 0}));
}

TEST_P(TableAccessTest, SetterKeepsTheLow32Bits) {
    EXPECT_EQ(storedFrom({4294.967295, 4294.967296, 4294.967301}, 0), (Stored{4294967295U, 0, 5}));
    EXPECT_EQ(storedFrom({4.294967295, 4.294967296, 4.294967301}, 1), (Stored{4294967295U, 0, 5}));
}

TEST_P(TableAccessTest, SetterStoresZeroForValuesBeyond64Bits) {
    for (const unsigned int isHDRLUT : {0U, 1U}) {
        EXPECT_EQ(storedFrom({notANumber, infinity, 1e300, 1e13}, isHDRLUT), (Stored{0, 0, 0, 0}));
    }
}

TEST(MonitorParameter, EmulationMatrixGetterDividesByAMillionWhetherOrNotItIsSet) {
    MonitorParameter record;
    EXPECT_TRUE(record.emulationMatrix_x().empty());
    for (const bool flag : {false, true}) {
        record.emulationMatrix = {{1000000, -500000, -1, 2147483647}, flag};
        EXPECT_EQ(record.emulationMatrix_x(), (Doubles{1.0, -0.5, -0.000001, 2147.483647}));
    }
}

TEST(MonitorParameter, EmulationMatrixOf9ValuesComesBackThroughTheDocument) {
    const Doubles entries = {1.25, 0.1, 0.0, 0.5, 2.0, 0.25, 0.001, 0.000001, 0.75};
    MonitorParameter record;
    record.emulationMatrix_x(entries);
    EXPECT_EQ(parsed<MonitorParameter>(compact(record)).emulationMatrix_x(), entries);
}

TEST(MonitorParameter, EmulationMatrixOf8ValuesIsSetButNotWritten) {
    MonitorParameter record;
    record.emulationMatrix_x(Doubles(8, 0.5));
    EXPECT_EQ(record.emulationMatrix, (property<std::vector<int>>{std::vector<int>(8, 500000), true}));
    EXPECT_EQ(compact(record), compact(MonitorParameter()));
}

TEST(MonitorParameter, EmulationMatrixSetterTouchesNothingElse) {
    for (MonitorParameter record : {MonitorParameter(), filled<MonitorParameter>()}) {
        MonitorParameter expected = record;
        expected.emulationMatrix = {{1500000}, true};
        record.emulationMatrix_x({1.5});
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(MonitorParameter, EmulationMatrixTruncatesTowardZeroOnBothSidesAndKeepsNegativeValues) {
    MonitorParameter record;
    record.emulationMatrix_x({-0.3, -1.0, 0.3, 1.0, -0.0000004, -0.0000012, -0.000002, 0.0000004, 0.0000005});
    EXPECT_EQ(record.emulationMatrix.value, (std::vector<int>{-299999, -999999, 300000, 1000000, 0, 0, -1, 0, 1}));
}

TEST(MonitorParameter, EmulationMatrixKeepsTheLow32Bits) {
    constexpr int least = std::numeric_limits<int>::min();
    MonitorParameter record;
    record.emulationMatrix_x({2147.483647, 2147.483648, -2147.483649, -2147.48365, 4294.967301});
    EXPECT_EQ(record.emulationMatrix.value, (std::vector<int>{2147483647, least, least, 2147483647, 5}));
}

TEST(MonitorParameter, EmulationMatrixStoresZeroForValuesBeyond64Bits) {
    MonitorParameter record;
    record.emulationMatrix_x({notANumber, infinity, -infinity, 1e300, -1e300, 1e13});
    EXPECT_EQ(record.emulationMatrix.value, std::vector<int>(6, 0));
}

TEST(MonitorParameter, EmulationMatrixDoesNotFollowIsHDRLUT) {
    MonitorParameter record;
    record.isHDRLUT.set(1);
    record.emulationMatrix_x({0.5});
    record.redGain_x(0.5);
    EXPECT_EQ(record.emulationMatrix.value, (std::vector<int>{500000}));
    EXPECT_EQ(record.redGain.value, 500000U);
}

}  // namespace
}  // namespace lv::test
