#include <lvdata/analysis/colour/colour_matching.h>
#include <lvdata/analysis/colour/standards.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace colour = lv::analysis::colour;

namespace {

struct KnownPrimaries {
    std::string name;
    colour::Primaries primaries;
};

/// IEC 61966-2-1, Adobe RGB (1998), SMPTE RP 431-2, ITU-R BT.2020, EBU Tech 3213, SMPTE RP 145.
const colour::Primaries bt709 = {{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}};
const colour::Primaries adobeRGB = {{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}};
const colour::Primaries p3 = {{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
const colour::Primaries bt2020 = {{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}};
const colour::Primaries ebu = {{0.64, 0.33}, {0.29, 0.60}, {0.15, 0.06}};
const colour::Primaries smpteC = {{0.630, 0.340}, {0.310, 0.595}, {0.155, 0.070}};

const std::vector<KnownPrimaries> knownPrimaries = {
    {"sRGB", bt709},
    {"SRGB", bt709},
    {"BT.709", bt709},
    {"bt709", bt709},
    {"Rec. 709", bt709},
    {"ITU-R BT.709", bt709},
    {"Adobe_RGB", adobeRGB},
    {"AdobeRGB", adobeRGB},
    {"Adobe RGB (1998)", adobeRGB},
    {"DCI-P3", p3},
    {"Display P3", p3},
    {"P3-D65", p3},
    {"BT.2020", bt2020},
    {"Rec.2020", bt2020},
    {"BT.2100", bt2020},
    {"EBU", ebu},
    {"SMPTE-C", smpteC},
    {"SMPTE C", smpteC},
};

struct KnownWhite {
    std::string name;
    colour::Chromaticity chromaticity;
};

const std::vector<KnownWhite> knownWhites = {
    {"D50", {0.3457, 0.3585}}, {"d 50", {0.3457, 0.3585}}, {"D55", {0.3324, 0.3474}}, {"D65", {0.3127, 0.3290}},
    {"D75", {0.2990, 0.3149}}, {"DCI", {0.314, 0.351}},    {"A", {0.4476, 0.4074}},   {"C", {0.3101, 0.3162}},
};

void expectEqual(const colour::Chromaticity& actual, const colour::Chromaticity& expected, const std::string& what) {
    EXPECT_EQ(actual.x, expected.x) << what;
    EXPECT_EQ(actual.y, expected.y) << what;
}

void expectEqual(const colour::Primaries& actual, const colour::Primaries& expected, const std::string& what) {
    expectEqual(actual.red, expected.red, what + ", red");
    expectEqual(actual.green, expected.green, what + ", green");
    expectEqual(actual.blue, expected.blue, what + ", blue");
}

colour::Chromaticity locusAt(int wavelength) {
    for (const colour::LocusPoint& point : colour::spectrumLocus()) {
        if (point.wavelength == wavelength) {
            return point.chromaticity;
        }
    }
    return {};
}

colour::Tristimulus sumOfColourMatches(int first, int last) {
    colour::Tristimulus sums = {};
    for (const colour::ColourMatch& match : colour::colourMatchingFunctions()) {
        for (std::size_t index = 0; match.wavelength >= first && match.wavelength <= last && index < sums.size();
             ++index) {
            sums.at(index) += match.functions.at(index);
        }
    }
    return sums;
}

}  // namespace

TEST(ColourStandards, HasTheReferenceSpacesInOrder) {
    const std::vector<KnownPrimaries> expected = {
        {"sRGB", bt709}, {"Adobe RGB (1998)", adobeRGB}, {"Display P3", p3}, {"BT.2020", bt2020}};
    ASSERT_EQ(colour::referenceSpaces().size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        const colour::RGBSpace& space = colour::referenceSpaces()[index];
        EXPECT_EQ(space.name, expected[index].name);
        EXPECT_FALSE(space.source.empty()) << space.name;
        expectEqual(space.primaries, expected[index].primaries, expected[index].name);
        expectEqual(space.white, {0.3127, 0.3290}, expected[index].name);
    }
}

TEST(ColourStandards, KnowsPrimariesByName) {
    for (const KnownPrimaries& known : knownPrimaries) {
        const auto found = colour::primariesNamed(known.name);
        ASSERT_TRUE(found) << known.name;
        expectEqual(*found, known.primaries, known.name);
    }
}

TEST(ColourStandards, KnowsTheNamesOfTheReferenceSpaces) {
    for (const colour::RGBSpace& space : colour::referenceSpaces()) {
        const auto found = colour::primariesNamed(space.name);
        ASSERT_TRUE(found) << space.name;
        expectEqual(*found, space.primaries, std::string(space.name));
    }
}

TEST(ColourStandards, KnowsWhitesByName) {
    for (const KnownWhite& known : knownWhites) {
        const auto found = colour::whiteNamed(known.name);
        ASSERT_TRUE(found) << known.name;
        expectEqual(*found, known.chromaticity, known.name);
    }
}

TEST(ColourStandards, KnowsNoOtherNames) {
    for (const std::string& name : {std::string(), std::string("Native"), std::string("sRGB2"), std::string("BT/709"),
                                    std::string("sRGB\0", 5), std::string("\xFF"), std::string(10000, 'D')}) {
        EXPECT_FALSE(colour::primariesNamed(name)) << name;
        EXPECT_FALSE(colour::whiteNamed(name)) << name;
    }
    EXPECT_FALSE(colour::primariesNamed("D65"));
    EXPECT_FALSE(colour::whiteNamed("sRGB"));
}

// CIE 15:2004 prints these sums below its table, so that a wrong digit in a row would show.
TEST(ColourStandards, HasTheColourMatchingFunctionsWithTheirPublishedSums) {
    const colour::Tristimulus sums = sumOfColourMatches(380, 780);
    EXPECT_NEAR(sums[0], 21.371524, 1e-9);
    EXPECT_NEAR(sums[1], 21.371327, 1e-9);
    EXPECT_NEAR(sums[2], 21.371540, 1e-9);
    const double total = sums[0] + sums[1] + sums[2];
    EXPECT_NEAR(sums[0] / total, 1.0 / 3, 0.00001);  // light of equal power everywhere is illuminant E
    EXPECT_NEAR(sums[1] / total, 1.0 / 3, 0.00001);
}

TEST(ColourStandards, HasColourMatchingFunctionsOutsideThatTable) {
    const colour::Tristimulus before = sumOfColourMatches(360, 375);
    EXPECT_NEAR(before[0], 0.0015185, 1e-12);
    EXPECT_NEAR(before[1], 0.000045292, 1e-12);
    EXPECT_NEAR(before[2], 0.0071241, 1e-12);
    const colour::Tristimulus after = sumOfColourMatches(785, 830);
    EXPECT_NEAR(after[0], 0.00009628006, 1e-12);
    EXPECT_NEAR(after[1], 0.00003476847, 1e-12);
    EXPECT_EQ(after[2], 0);
}

TEST(ColourStandards, HasARowForEveryFiveNanometres) {
    int wavelength = 360;
    for (const colour::ColourMatch& match : colour::colourMatchingFunctions()) {
        EXPECT_EQ(match.wavelength, wavelength);
        wavelength += 5;
    }
    EXPECT_EQ(wavelength, 835);
}

// CIE 15:2004, table T.4: chromaticity coordinates.
TEST(ColourStandards, HasThePublishedSpectrumLocus) {
    struct Known {
        int wavelength;
        colour::Chromaticity chromaticity;
    };
    const std::vector<Known> published = {
        {380, {0.17411, 0.00496}}, {450, {0.15664, 0.01771}}, {500, {0.00817, 0.53842}}, {520, {0.07430, 0.83380}},
        {555, {0.33736, 0.65885}}, {600, {0.62704, 0.37249}}, {700, {0.73469, 0.26531}},
    };
    for (const Known& known : published) {
        const colour::Chromaticity actual = locusAt(known.wavelength);
        EXPECT_NEAR(actual.x, known.chromaticity.x, 0.00001) << known.wavelength;
        EXPECT_NEAR(actual.y, known.chromaticity.y, 0.00001) << known.wavelength;
    }
    EXPECT_EQ(colour::spectrumLocus().front().wavelength, 380);
    EXPECT_EQ(colour::spectrumLocus().back().wavelength, 700);
}
