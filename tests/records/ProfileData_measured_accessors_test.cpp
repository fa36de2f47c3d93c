#include <tests/support/parameter_names.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfileData.h>

#include <array>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Stored = std::vector<unsigned int>;
using Set = ProfileData::xyz_set_t;

struct Colour {
    Stored Set::*stored;
    colour PrimaryColours::*member;
};

constexpr std::array primaries = {Colour{&Set::red, &PrimaryColours::red}, Colour{&Set::green, &PrimaryColours::green},
                                  Colour{&Set::blue, &PrimaryColours::blue},
                                  Colour{&Set::white, &PrimaryColours::white}};

struct Access {
    const char* name;
    property<Set> ProfileData::*set;
    PrimaryColours (ProfileData::*get)() const;
    void (ProfileData::*put)(const PrimaryColours&);
};

class MeasuredAccessTest : public ::testing::TestWithParam<Access> {
protected:
    [[nodiscard]] static PrimaryColours read(const ProfileData& record) { return (record.*GetParam().get)(); }

    /// What these components of each colour are stored as in turn.
    [[nodiscard]] static Stored storedFrom(Stored Set::*stored, colour PrimaryColours::*member, double X, double Y,
                                           double Z) {
        PrimaryColours measured;
        (measured.*member).X = X;
        (measured.*member).Y = Y;
        (measured.*member).Z = Z;
        ProfileData record;
        (record.*GetParam().put)(measured);
        EXPECT_TRUE((record.*GetParam().set).hasValue);
        return (record.*GetParam().set).value.*stored;
    }

    static void expectStored(double X, double Y, double Z, const Stored& expected) {
        for (const auto& [stored, member] : primaries) {
            EXPECT_EQ(storedFrom(stored, member, X, Y, Z), expected);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(ProfileData, MeasuredAccessTest,
                         ::testing::Values(Access{"measuredXYZ", &ProfileData::measuredXYZ, &ProfileData::measuredXYZ_x,
                                                  &ProfileData::measuredXYZ_x},
                                           Access{"measuredXYZLimited109", &ProfileData::measuredXYZLimited109,
                                                  &ProfileData::measuredXYZLimited109_x,
                                                  &ProfileData::measuredXYZLimited109_x}),
                         nameOfParameter);

TEST_P(MeasuredAccessTest, FreshRecordReadsAsFiveZeroColours) {
    EXPECT_EQ(describe(read(ProfileData())), describe(PrimaryColours()));
}

TEST_P(MeasuredAccessTest, GetterDividesByAMillionAndFillsNothingElseRegardlessOfTheFlag) {
    for (const auto& [stored, member] : primaries) {
        for (const bool flag : {false, true}) {
            ProfileData record;
            (record.*GetParam().set).value.*stored = {95047000, 4294967295U, 1};
            (record.*GetParam().set).hasValue = flag;
            PrimaryColours expected;
            (expected.*member).X = 95.047;
            (expected.*member).Y = 4294.967295;
            (expected.*member).Z = 0.000001;
            EXPECT_EQ(describe(read(record)), describe(expected));
        }
    }
}

TEST_P(MeasuredAccessTest, FewerThanThreeEntriesReadAsZeroAndTheOtherColoursAreConverted) {
    for (const auto& [stored, member] : primaries) {
        for (const Stored& few : {Stored{}, Stored{7}, Stored{7, 8}}) {
            ProfileData record = filled<ProfileData>();
            PrimaryColours expected = read(record);
            (record.*GetParam().set).value.*stored = few;
            expected.*member = colour();
            EXPECT_EQ(describe(read(record)), describe(expected));
        }
    }
}

TEST_P(MeasuredAccessTest, GetterIgnoresEntriesAfterTheThird) {
    for (const auto& [stored, member] : primaries) {
        ProfileData record;
        (record.*GetParam().set).value.*stored = {1000000, 2000000, 3000000, 4000000};
        EXPECT_EQ((read(record).*member).X, 1.0);
        EXPECT_EQ((read(record).*member).Z, 3.0);
    }
}

TEST_P(MeasuredAccessTest, SetterTimesAMillionAddsOneHalfAndTruncates) {
    expectStored(95.047, 100.0, 108.883, {95047000, 100000000, 108883000});
    expectStored(0.49e-6, 0.51e-6, 1.49e-6, {0, 1, 1});
    expectStored(0.0000005, 1.0000004, 1.0000005, {1, 1000000, 1000001});
}

TEST_P(MeasuredAccessTest, SetterStoresNegativeValuesAsZero) {
    expectStored(-0.7, -1e300, -0.0, {0, 0, 0});
    expectStored(0.5, -1.0, 0.25, {500000, 0, 250000});
}

TEST_P(MeasuredAccessTest, SetterKeepsTheLow32Bits) {
    expectStored(4295.0, 4294.967295, 4294.967296, {32704, 4294967295U, 0});
}

TEST_P(MeasuredAccessTest, SetterStoresZeroForValuesBeyond64Bits) {
    expectStored(notANumber, infinity, -infinity, {0, 0, 0});
    expectStored(1e300, 1e13, 1.0, {0, 0, 1000000});
}

TEST_P(MeasuredAccessTest, SetterMakesTheSetCompleteForPrinting) {
    ProfileData record;
    (record.*GetParam().put)(filled<PrimaryColours>());
    EXPECT_TRUE((parsed<ProfileData>(compact(record)).*GetParam().set).hasValue);
}

TEST_P(MeasuredAccessTest, ValueComesBackToWithinHalfAMillionth) {
    PrimaryColours measured;
    measured.green.X = 22.3312345678;
    measured.white.Z = 108.8830004;
    ProfileData record;
    (record.*GetParam().put)(measured);
    EXPECT_NEAR(read(record).green.X, measured.green.X, 0.5e-6);
    EXPECT_NEAR(read(record).white.Z, measured.white.Z, 0.5e-6);
}

TEST(ProfileDataMeasuredAccessors, StoredWhiteReadsAsItsXYZAndEverythingElseIsZero) {
    ProfileData record;
    record.measuredXYZ.value.white = {95047000, 100000000, 108883000};
    PrimaryColours expected;
    expected.white.X = 95.047;
    expected.white.Y = 100.0;
    expected.white.Z = 108.883;
    EXPECT_EQ(describe(record.measuredXYZ_x()), describe(expected));
}

TEST(ProfileDataMeasuredAccessors, NegativeYInGreenStoresZeroAndMarksTheSetValid) {
    PrimaryColours measured;
    measured.green.X = 1.0;
    measured.green.Y = -1.0;
    ProfileData record;
    record.measuredXYZ_x(measured);
    EXPECT_EQ(record.measuredXYZ.value.green, (Stored{1000000, 0, 0}));
    EXPECT_TRUE(record.measuredXYZ.hasValue);
}

TEST(ProfileDataMeasuredAccessors, BlackOfThePanelIsConvertedBothWays) {
    PrimaryColours measured;
    measured.black.X = 0.08;
    measured.black.Y = -0.5;
    measured.black.Z = 4295.0;
    ProfileData record;
    record.measuredXYZ_x(measured);
    EXPECT_EQ(record.measuredXYZ.value.black, (Stored{80000, 0, 32704}));
    PrimaryColours expected;
    expected.black.X = 0.08;
    expected.black.Z = 0.032704;
    EXPECT_EQ(describe(record.measuredXYZ_x()), describe(expected));
    record.measuredXYZ.value.black = {80000, 1};
    EXPECT_EQ(describe(record.measuredXYZ_x()), describe(PrimaryColours()));
}

TEST(ProfileDataMeasuredAccessors, PanelSetterReplacesAllFiveVectorsAndTouchesNothingElse) {
    for (const bool flag : {false, true}) {
        ProfileData record = filled<ProfileData>();
        record.measuredXYZ = {{{}, {9}, {9, 9}, {9, 9, 9, 9}, {9, 9, 9}}, flag};
        record.measuredXYZ_x(filled<PrimaryColours>());
        ProfileData expected = filled<ProfileData>();
        expected.measuredXYZ.set({{180000, 190000, 200000},
                                  {360000, 370000, 380000},
                                  {540000, 550000, 560000},
                                  {720000, 730000, 740000},
                                  {900000, 910000, 920000}});
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(ProfileDataMeasuredAccessors, Limited109SetterReplacesFourVectorsEmptiesBlackAndTouchesNothingElse) {
    for (const bool flag : {false, true}) {
        ProfileData record = filled<ProfileData>();
        record.measuredXYZLimited109 = {{{}, {9}, {9, 9}, {9, 9, 9, 9}, {9, 9, 9}}, flag};
        record.measuredXYZLimited109_x(filled<PrimaryColours>());
        ProfileData expected = filled<ProfileData>();
        expected.measuredXYZLimited109.set({{180000, 190000, 200000},
                                            {360000, 370000, 380000},
                                            {540000, 550000, 560000},
                                            {720000, 730000, 740000},
                                            {}});
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(ProfileDataMeasuredAccessors, Limited109AlwaysReturnsAZeroBlack) {
    ProfileData record;
    record.measuredXYZLimited109.value.black = {1000000, 2000000, 3000000};
    EXPECT_EQ(describe(record.measuredXYZLimited109_x()), describe(PrimaryColours()));
}

TEST(ProfileDataMeasuredAccessors, Limited109GivesFourColoursBackAndAWriteEmitsExactlyFourElements) {
    PrimaryColours measured;
    measured.red.X = 1.5;
    measured.green.Y = 2.5;
    measured.blue.Z = 3.5;
    measured.white.Y = 100.0;
    PrimaryColours withBlack = measured;
    withBlack.black.Y = 0.5;
    ProfileData record;
    record.measuredXYZLimited109_x(withBlack);
    EXPECT_EQ(describe(record.measuredXYZLimited109_x()), describe(measured));
    const std::string text = compact(record);
    for (const auto& [color, numbers] :
         {std::pair{"Limited109Red", "1500000|0|0"}, std::pair{"Limited109Green", "0|2500000|0"},
          std::pair{"Limited109Blue", "0|0|3500000"}, std::pair{"Limited109White", "0|100000000|0"}}) {
        const std::string element = std::string("<MeasuredXYZ Color=\"") + color + "\">" + numbers + "</MeasuredXYZ>";
        EXPECT_NE(text.find(element), std::string::npos) << element;
    }
    EXPECT_EQ(text.find("Limited109Black"), std::string::npos);
}

}  // namespace
}  // namespace lv::test
