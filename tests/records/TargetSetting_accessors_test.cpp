#include <tests/support/fixed_point_access.h>
#include <tests/support/parameter_names.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <string>
#include <vector>

namespace lv::test {
namespace {

using WhitePoint = TargetSetting::white_point_t;
using Gamma = TargetSetting::gamma_t;
using Curve = Gamma::gamma_color;
using Gamut = TargetSetting::gamut_t;
using Primary = Gamut::coordinate;
using Stored = std::vector<unsigned int>;
using Doubles = std::vector<double>;

colour chromaticity(double x, double y) {
    colour result;
    result.x = x;
    result.y = y;
    return result;
}

TEST(TargetSettingAccessors, WhitePointIsHeldInTenThousandths) {
    const auto storedX = [](double value) {
        WhitePoint whitePoint;
        whitePoint.coordinate_x(chromaticity(value, 0.5));
        return whitePoint.x;
    };
    expectUnsignedFixedPoint(10000.0, storedX, [](unsigned int number) {
        return WhitePoint{"", 1, number, 2}.coordinate_x().x;
    });
    const auto storedY = [](double value) {
        WhitePoint whitePoint;
        whitePoint.coordinate_x(chromaticity(0.5, value));
        return whitePoint.y;
    };
    expectUnsignedFixedPoint(10000.0, storedY, [](unsigned int number) {
        return WhitePoint{"", 1, 2, number}.coordinate_x().y;
    });
}

TEST(TargetSettingAccessors, WhitePointReadsAndSetsTheChromaticityAlone) {
    const WhitePoint read = {"Temperature", 6500, 3127, 3290};
    EXPECT_EQ(describe(read.coordinate_x()), describe(chromaticity(0.3127, 0.329)));
    WhitePoint set = {"Temperature", 6500, 1, 2};
    set.coordinate_x(filled<colour>());
    EXPECT_EQ(describe(set), describe(WhitePoint{"Temperature", 6500, 2100, 2200}));
}

/// An accessor pair for a primary.
struct PrimaryAccess {
    const char* name;
    Primary Gamut::*stored;
    colour (Gamut::*get)() const;
    void (Gamut::*set)(const colour&);
};

class TargetSettingPrimaryAccess : public ::testing::TestWithParam<PrimaryAccess> {
protected:
    static Primary storedFrom(const colour& value) {
        Gamut gamut;
        (gamut.*GetParam().set)(value);
        return gamut.*GetParam().stored;
    }

    static colour read(const Primary& primary) {
        Gamut gamut;
        gamut.*GetParam().stored = primary;
        return (gamut.*GetParam().get)();
    }
};

INSTANTIATE_TEST_SUITE_P(TargetSetting, TargetSettingPrimaryAccess,
                         ::testing::Values(PrimaryAccess{"red", &Gamut::red, &Gamut::red_x, &Gamut::red_x},
                                           PrimaryAccess{"green", &Gamut::green, &Gamut::green_x, &Gamut::green_x},
                                           PrimaryAccess{"blue", &Gamut::blue, &Gamut::blue_x, &Gamut::blue_x}),
                         nameOfParameter);

TEST_P(TargetSettingPrimaryAccess, IsHeldInTenThousandths) {
    expectUnsignedFixedPoint(
        10000.0, [](double value) { return storedFrom(chromaticity(value, 0.5)).x; },
        [](unsigned int number) {
            return read({number, 2}).x;
        });
    expectUnsignedFixedPoint(
        10000.0, [](double value) { return storedFrom(chromaticity(0.5, value)).y; },
        [](unsigned int number) {
            return read({2, number}).y;
        });
}

TEST_P(TargetSettingPrimaryAccess, ReadsAndSetsItsOwnChromaticityAlone) {
    EXPECT_EQ(describe(read({6400, 3300})), describe(chromaticity(0.64, 0.33)));
    EXPECT_EQ(describe((Gamut().*GetParam().get)()), describe(colour()));
    Gamut gamut = filled<TargetSetting>().gamut.value;
    Gamut expected = gamut;
    expected.*GetParam().stored = {2100, 2200};
    (gamut.*GetParam().set)(filled<colour>());
    EXPECT_EQ(describe(gamut), describe(expected));
}

TEST(TargetSettingAccessors, FormulaOf22Stores220AndANegativeOneStores0) {
    Curve curve;
    curve.formula_x(2.2);
    EXPECT_EQ(curve.formula, 220U);
    EXPECT_EQ(curve.formula_x(), 2.2);
    curve.formula_x(-1.0);
    EXPECT_EQ(curve.formula, 0U);
}

TEST(TargetSettingAccessors, FormulaIsHeldInHundredths) {
    const auto stored = [](double value) {
        Curve curve;
        curve.formula_x(value);
        return curve.formula;
    };
    expectUnsignedFixedPoint(100.0, stored, [](unsigned int number) { return Curve{"", number, {}, {}}.formula_x(); });
}

TEST(TargetSettingAccessors, HLGSystemGammaOf12Stores120) {
    Gamma gamma;
    gamma.hlgSystemGamma_x(1.2);
    EXPECT_EQ(gamma.hlgSystemGamma, 120U);
    EXPECT_EQ(gamma.hlgSystemGamma_x(), 1.2);
}

TEST(TargetSettingAccessors, HLGSystemGammaIsHeldInHundredths) {
    const auto withNumber = [](unsigned int number) {
        Gamma gamma;
        gamma.hlgSystemGamma = number;
        return gamma.hlgSystemGamma_x();
    };
    const auto stored = [](double value) {
        Gamma gamma;
        gamma.hlgSystemGamma_x(value);
        return gamma.hlgSystemGamma;
    };
    expectUnsignedFixedPoint(100.0, stored, withNumber);
}

TEST(TargetSettingAccessors, NumberSettersTouchNeitherTypeNorAnyOtherMember) {
    Gamma gamma = filled<TargetSetting>().gamma.value;
    Gamma expected = gamma;
    expected.green.formula = 180;
    expected.hlgSystemGamma = 150;
    gamma.green.formula_x(1.8);
    gamma.hlgSystemGamma_x(1.5);
    EXPECT_EQ(describe(gamma), describe(expected));
}

TEST(TargetSettingAccessors, CurvesAreHeldAsSharesOfFullScale) {
    const auto stored16 = [](double value) {
        Curve curve;
        curve.lut_x({0.5, value});
        return curve.lut.at(1);
    };
    expectUnsignedFixedPoint(65535.0, stored16, [](unsigned int number) {
        return Curve{"", 0, {1, number}, {}}.lut_x().at(1);
    });
    const auto stored24 = [](double value) {
        Curve curve;
        curve.lut24_x({0.5, value});
        return curve.lut24.at(1);
    };
    expectUnsignedFixedPoint(16777215.0, stored24, [](unsigned int number) {
        return Curve{"", 0, {}, {1, number}}.lut24_x().at(1);
    });
}

TEST(TargetSettingAccessors, LutOf256OnesStores256TimesFullScaleAndLut24ThenEmptiesIt) {
    Curve curve;
    curve.lut_x(Doubles(256, 1.0));
    EXPECT_EQ(curve.lut, Stored(256, 65535));
    EXPECT_EQ(curve.lut_x(), Doubles(256, 1.0));
    curve.lut24_x(Doubles(1024, 1.0));
    EXPECT_TRUE(curve.lut.empty());
    EXPECT_EQ(curve.lut24, Stored(1024, 16777215));
    EXPECT_EQ(curve.lut24_x(), Doubles(1024, 1.0));
}

TEST(TargetSettingAccessors, LutSetterReplacesTheCurveAndLeavesEverythingElse) {
    Curve curve = {"PQ", 220, {1, 2, 3}, {4, 5}};
    curve.lut_x({0.0, 1.0});
    EXPECT_EQ(describe(curve), describe(Curve{"PQ", 220, {0, 65535}, {4, 5}}));
    curve.lut_x({});
    EXPECT_EQ(describe(curve), describe(Curve{"PQ", 220, {}, {4, 5}}));
}

TEST(TargetSettingAccessors, Lut24SetterEmptiesTheOtherCurveAndAppendsToItsOwnEntries) {
    Curve curve = {"PQ", 220, {1, 2, 3}, {4, 5}};
    curve.lut24_x({0.0, 1.0});
    EXPECT_EQ(describe(curve), describe(Curve{"PQ", 220, {}, {4, 5, 0, 16777215}}));
    curve.lut = {9};
    curve.lut24_x({});
    EXPECT_EQ(describe(curve), describe(Curve{"PQ", 220, {}, {4, 5, 0, 16777215}}));
}

TEST(TargetSettingAccessors, Lut24BeforeLutKeepsBothCurves) {
    Curve curve;
    curve.lut24_x({1.0});
    curve.lut_x({1.0});
    EXPECT_EQ(describe(curve), describe(Curve{"", 0, {65535}, {16777215}}));
}

TEST(TargetSettingAccessors, CurveGettersGiveAsManyEntriesAsThereAre) {
    EXPECT_TRUE(Curve().lut_x().empty());
    EXPECT_TRUE(Curve().lut24_x().empty());
    const Curve curve = {"", 0, {0, 65535, 131070}, {16777215}};
    EXPECT_EQ(curve.lut_x(), (Doubles{0.0, 1.0, 2.0}));
    EXPECT_EQ(curve.lut24_x(), (Doubles{1.0}));
}

TEST(TargetSettingAccessors, FileNameIsAPlainCopy) {
    for (const char* name : {"", "curve.txt", "a folder/<&>.csv"}) {
        Gamma::imported_lut_file file;
        file.fileName_x(name);
        EXPECT_EQ(file.fileName, name);
        EXPECT_EQ(file.fileName_x(), name);
    }
}

}  // namespace
}  // namespace lv::test
