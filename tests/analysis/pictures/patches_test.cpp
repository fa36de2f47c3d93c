#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

#include <algorithm>

using lv::analysis::LimitSet;
using lv::analysis::ModeFigures;
using lv::analysis::patchesPicture;
using lv::test::Element;
using lv::test::ParsedPicture;
using lv::test::sampleMode;

namespace {

/// Patches of these differences.
ModeFigures modeWith(const std::vector<double>& differences) {
    ModeFigures mode;
    for (const double difference : differences) {
        lv::analysis::PatchFigures patch;
        patch.number = mode.series.patches.size() + 1;
        patch.deltaE2000.value = difference;
        mode.series.patches.push_back(patch);
    }
    return mode;
}

double tallest(const std::vector<Element>& bars) {
    double height = 0;
    for (const Element& bar : bars) {
        height = std::max(height, bar.number("height"));
    }
    return height;
}

}  // namespace

TEST(PatchesPicture, HasABarForEachPatch) {
    const auto bars = ParsedPicture(patchesPicture(sampleMode(), nullptr)).all("rect", "lv-bar");
    ASSERT_EQ(bars.size(), 48U);
    EXPECT_EQ(bars[1].title.rfind("Patch 2 (RGB 1 254 128): ΔE00 ", 0), 0U) << bars[1].title;
}

TEST(PatchesPicture, HasBarsAsHighAsTheDifferences) {
    const ParsedPicture picture(patchesPicture(modeWith({1, 2, 4, 0}), nullptr));
    const auto bars = picture.all("rect", "lv-bar");
    ASSERT_EQ(bars.size(), 4U);
    EXPECT_NEAR(bars[1].number("height"), 2 * bars[0].number("height"), 0.02);
    EXPECT_NEAR(bars[2].number("height"), 4 * bars[0].number("height"), 0.02);
    EXPECT_EQ(bars[3].number("height"), 0);
    const Element frame = picture.only("rect", "lv-frame");
    EXPECT_NEAR(bars[0].number("y") + bars[0].number("height"), frame.number("y") + frame.number("height"), 0.02);
}

TEST(PatchesPicture, JoinsManyPatchesAndKeepsTheGreatest) {
    for (const std::size_t count : {1024U, 10000U}) {
        std::vector<double> differences(count, 1);
        differences[count / 2] = 7;
        const auto bars = ParsedPicture(patchesPicture(modeWith(differences), nullptr)).all("rect", "lv-bar");
        EXPECT_GT(bars.size(), 100U);
        EXPECT_LE(bars.size(), 180U);
        const auto found = std::find_if(bars.begin(), bars.end(), [](const Element& bar) {
            return bar.title.find("greatest ΔE00 7.00") != std::string::npos;
        });
        ASSERT_NE(found, bars.end());
        EXPECT_EQ(found->number("height"), tallest(bars));
        EXPECT_NE(found->title.find("patch " + std::to_string(count / 2 + 1)), std::string::npos) << found->title;
    }
}

TEST(PatchesPicture, HasNoBarWithoutADifference) {
    ModeFigures mode = modeWith({1, 2});
    mode.series.patches[0].deltaE2000 = {{}, "no white"};
    const auto bars = ParsedPicture(patchesPicture(mode, nullptr)).all("rect", "lv-bar");
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(bars[0].title, "Patch 2: ΔE00 2.00");
}

TEST(PatchesPicture, HasLinesForMeanAndLimits) {
    const LimitSet limits = lv::test::sampleLimits();
    const ParsedPicture picture(patchesPicture(sampleMode(), &limits));
    for (const std::string text : {"mean 0.83", "95 % 1.97", "limit, mean 1.50", "limit, max. 2.50"}) {
        EXPECT_TRUE(picture.says(text)) << text;
    }
    EXPECT_EQ(picture.all("line", "lv-limit").size(), 2U);
    EXPECT_TRUE(ParsedPicture(patchesPicture(sampleMode(), nullptr)).all("line", "lv-limit").empty());
}

TEST(PatchesPicture, TellsBarsAboveTheLimit) {
    const LimitSet limits = lv::test::sampleLimits();
    const auto bars = ParsedPicture(patchesPicture(modeWith({2.4, 2.6}), &limits)).all("rect", "lv-over");
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(bars[0].title, "Patch 2: ΔE00 2.60");
}

TEST(PatchesPicture, HasLabelsOfLinesApart) {
    ModeFigures mode = modeWith({1});
    mode.series.mean.value = 1;
    mode.series.percentile95.value = 1;
    std::vector<double> places;
    for (const Element& text : ParsedPicture(patchesPicture(mode, nullptr)).all("text", "lv-value")) {
        places.push_back(text.number("y"));
    }
    ASSERT_EQ(places.size(), 2U);
    EXPECT_GE(places[1] - places[0], 13);
}

TEST(PatchesPicture, KnowsTheKeysOfItsLimits) {
    const auto lines = lv::analysis::figureLines(ModeFigures());
    for (const auto& limit : lv::test::sampleLimits().limits) {
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const auto& line) { return line.key == limit.key; }))
            << limit.key;
    }
}

TEST(PatchesPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(patchesPicture({}, nullptr)).says("no patches were measured"));
}
