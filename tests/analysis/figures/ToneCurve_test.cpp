#include <lvdata/analysis/figures/ToneCurve.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using lv::analysis::curveNamed;
using lv::analysis::Figure;
using lv::analysis::lightOf;
using lv::analysis::powerCurve;
using lv::analysis::systemGammaOf;
using lv::analysis::tableCurve;
using lv::analysis::ToneCurve;
using lv::analysis::ToneRange;
using Kind = ToneCurve::Kind;

constexpr ToneRange relative = {100, 0, false};
constexpr ToneRange absolute = {100, 0.1, true};

std::string lightOfName(const std::string& name, double signal, const ToneRange& range = relative) {
    const auto curve = curveNamed(name);
    return curve ? lightOf(*curve, signal, range).text(5) : "unknown";
}

}  // namespace

TEST(ToneCurve, IsAPowerOfTheSignal) {
    EXPECT_EQ(lightOf(*powerCurve(2), 0.5, relative).text(5), "0.25000");
    EXPECT_EQ(lightOf(*powerCurve(2.2), 0.5, relative).text(5), "0.21764");
    EXPECT_EQ(powerCurve(2.2)->label, "2.2");
    EXPECT_FALSE(powerCurve(0));
}

TEST(ToneCurve, IsATableWithStraightLines) {
    const ToneCurve odd = *tableCurve({0, 0.2, 1});
    EXPECT_EQ(lightOf(odd, 0, relative).text(5), "0.00000");
    EXPECT_EQ(lightOf(odd, 0.25, relative).text(5), "0.10000");
    EXPECT_EQ(lightOf(odd, 0.5, relative).text(5), "0.20000");
    EXPECT_EQ(lightOf(odd, 0.75, relative).text(5), "0.60000");
    EXPECT_EQ(lightOf(odd, 1, relative).text(5), "1.00000");
    EXPECT_EQ(lightOf(*tableCurve({0.5, 1}), 0.5, relative).text(5), "0.75000");
    EXPECT_FALSE(tableCurve({1}));
    EXPECT_FALSE(tableCurve({}));
}

TEST(ToneCurve, IsFoundByItsName) {
    EXPECT_EQ(curveNamed("2.2")->kind, Kind::power);
    EXPECT_EQ(curveNamed("1.8")->exponent, 1.8);
    EXPECT_EQ(curveNamed("sRGB")->kind, Kind::sRGB);
    EXPECT_EQ(curveNamed("LStar")->kind, Kind::lightness);
    EXPECT_EQ(curveNamed("L*")->kind, Kind::lightness);
    EXPECT_EQ(curveNamed("BT.1886")->kind, Kind::bt1886);
    EXPECT_EQ(curveNamed("hlg")->kind, Kind::hlg);
    EXPECT_EQ(curveNamed("PQ")->kind, Kind::pq);
    EXPECT_EQ(curveNamed("DICOM")->kind, Kind::gsdf);
    EXPECT_EQ(curveNamed("GSDF")->kind, Kind::gsdf);
    EXPECT_EQ(curveNamed("BT.1886")->label, "BT.1886");
}

TEST(ToneCurve, IsNotFoundByOtherNames) {
    for (const char* const name : {"", "Native", "0", "-2.2", "2.2x", "11", "1e3", "nan", "inf", "2,2", "****"}) {
        EXPECT_FALSE(curveNamed(name)) << name;
    }
}

// By hand, of the formulas that lvdata/analysis/colour/transfer.h names.

TEST(ToneCurve, FollowsItsStandard) {
    EXPECT_EQ(lightOfName("sRGB", 0.5), "0.21404");     // ((0.5 + 0.055) / 1.055)^2.4
    EXPECT_EQ(lightOfName("LStar", 0.5), "0.18419");    // ((50 + 16) / 116)^3
    EXPECT_EQ(lightOfName("BT.1886", 0.5), "0.18946");  // 0.5^2.4, black being 0
    EXPECT_EQ(lightOfName("2.4", 0.5), lightOfName("BT.1886", 0.5));
    // Lw^(1/2.4) = 6.812921, Lb^(1/2.4) = 0.383119: (6.429802 * 0.5 + 0.383119)^2.4 = 21.6049; less black, over 99.9.
    EXPECT_EQ(lightOfName("BT.1886", 0.5, absolute), "0.21526");
}

TEST(ToneCurve, NeedsAUnitWhereTheStandardIsAbsolute) {
    const std::string reason = "n/a (it needs Y in cd/m², and the unit of Y is not recorded)";
    EXPECT_EQ(lightOfName("PQ", 0.5), reason);
    EXPECT_EQ(lightOfName("GSDF", 0.5), reason);
    EXPECT_EQ(lightOfName("PQ", 0, absolute), "0.00000");
    EXPECT_EQ(lightOfName("PQ", 1, absolute), "1.00000");
    // BT.2100: a signal of 0.4 is 32.448 cd/m2, less black of 0.1, over 99.9.
    EXPECT_NEAR(*lightOf(*curveNamed("PQ"), 0.4, absolute).value, 0.32380, 0.00001);
}

TEST(ToneCurve, ForDICOMEndsAtBlackAndWhite) {
    EXPECT_EQ(lightOfName("GSDF", 0, {100, 0.5, true}), "0.00000");
    EXPECT_EQ(lightOfName("GSDF", 1, {100, 0.5, true}), "1.00000");
    const std::string reason = "n/a (black and white are not within the 0.05 to 4000 cd/m² of DICOM PS3.14)";
    EXPECT_EQ(lightOfName("GSDF", 0.5, {100, 0.04, true}), reason);
    EXPECT_EQ(lightOfName("GSDF", 0.5, {4001, 1, true}), reason);
}

TEST(ToneCurve, ForHLGHasASystemGamma) {
    ToneCurve curve = *curveNamed("HLG");
    EXPECT_EQ(lightOf(curve, 0.5, relative).text(2),
              "n/a (the target has no HLG system gamma, and the unit of Y is not recorded)");
    EXPECT_EQ(systemGammaOf(curve, {1000, 0, true}).text(4), "1.2000");
    curve.exponent = 1;
    EXPECT_EQ(lightOf(curve, 0.5, relative).text(5), "0.08333");  // 0.5^2 / 3
    curve.exponent = 2;
    EXPECT_EQ(lightOf(curve, 0.5, relative).text(5), "0.00694");  // the square
}

TEST(ToneCurve, IsNotAvailableWithoutARange) {
    EXPECT_FALSE(lightOf(*curveNamed("BT.1886"), 0.5, {1, 1, false}).value);
}
