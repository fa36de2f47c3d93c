#include <lvdata/analysis/diff/Tolerances.h>

#include <tests/analysis/diff/differences.h>
#include <tests/analysis/diff/documents.h>

#include <gmock/gmock.h>

using lv::analysis::Tolerances;
using lv::test::documentWithGamma;

namespace {

std::string complaint(const std::string& text) {
    return Tolerances().take(text, lv::test::catalogue());
}

std::size_t listed(const std::string& before, const std::string& after, const std::string& tolerances) {
    lv::analysis::DiffOptions options;
    EXPECT_EQ(options.tolerances.take(tolerances, lv::test::catalogue()), "");
    return lv::test::diffOf(before, after, options).differences.size();
}

}  // namespace

TEST(Tolerances, TakesSeveralKinds) {
    Tolerances tolerances;
    EXPECT_EQ(tolerances.take("de00=0.5,chromaticity=0.0005", lv::test::catalogue()), "");
    EXPECT_EQ(tolerances.take("gain=1e-3", lv::test::catalogue()), "");
    EXPECT_EQ(tolerances.of("de00"), 0.5);
    EXPECT_EQ(tolerances.of("chromaticity"), 0.0005);
    EXPECT_EQ(tolerances.of("gain"), 0.001);
    EXPECT_EQ(tolerances.of("gamma"), std::nullopt);
}

TEST(Tolerances, HasTheKindsThatRecordsHave) {
    EXPECT_THAT(Tolerances::kinds(lv::test::catalogue()),
                testing::IsSupersetOf({"chromaticity", "de00", "duv", "gain", "hdrTableEntry", "percent", "version"}));
}

TEST(Tolerances, ListsTheKindsWhenOneIsUnknown) {
    EXPECT_THAT(complaint("colour=1"), testing::StartsWith("unknown kind of tolerance 'colour'; known: candela, "));
}

TEST(Tolerances, RefusesWhatIsNotANumberFromZero) {
    for (const std::string text : {"", "x", "-1", "1x", "inf", "nan"}) {
        EXPECT_EQ(complaint("duv=" + text), "'" + text + "' is not a number from 0");
    }
    EXPECT_EQ(complaint("duv"), "'duv' is not a tolerance such as de00=0.5");
    EXPECT_EQ(complaint(""), "'' is not a tolerance such as de00=0.5");
}

TEST(Tolerances, StaysAsItIsWhenAPartIsWrong) {
    Tolerances tolerances;
    EXPECT_NE(tolerances.take("duv=1,de00=", lv::test::catalogue()), "");
    EXPECT_EQ(tolerances.of("duv"), std::nullopt);
}

TEST(Tolerances, HoldForNumbers) {
    EXPECT_EQ(listed(documentWithGamma("220"), documentWithGamma("230"), "gamma=0.1"), 0U);
    EXPECT_EQ(listed(documentWithGamma("220"), documentWithGamma("209"), "gamma=0.1"), 1U);
    EXPECT_EQ(listed(documentWithGamma("220"), documentWithGamma("220"), "gamma=0"), 0U);
}

TEST(Tolerances, HoldForEachEntryOfATable) {
    const auto curve = [](const std::string& entries) {
        return "<ProfileData><RedTargetCurve Type='Lut'>" + entries + "</RedTargetCurve></ProfileData>";
    };
    EXPECT_EQ(listed(curve("1000|2000"), curve("1001|2001"), "curveEntry=0.000001"), 0U);
    EXPECT_EQ(listed(curve("1000|2000"), curve("1001|2002"), "curveEntry=0.000001"), 1U);
    EXPECT_EQ(listed(curve("1000|2000"), curve("1000|2000|1"), "curveEntry=1"), 1U);
}

TEST(Tolerances, AreInTheShownValues) {
    const auto rgb = [](const std::string& last) {
        const std::string row = "<Measurements><RGB>0|0|" + last + "</RGB></Measurements>";
        return "<MeasurementData>" + row + row + "</MeasurementData>";
    };
    EXPECT_EQ(listed(rgb("5"), rgb("6"), "codeValue=1"), 0U);
    EXPECT_EQ(listed(rgb("5"), rgb("7"), "codeValue=1"), 2U);
}

TEST(Tolerances, DoNotCoverWhatIsMissing) {
    EXPECT_EQ(
        listed("<StandardModeResult/>", "<StandardModeResult><MaxWhite>1</MaxWhite></StandardModeResult>", "number=5"),
        1U);
}
