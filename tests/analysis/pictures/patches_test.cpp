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

/// The heights of the bars, which are lines of one path.
std::vector<double> heightsOf(const ParsedPicture& picture, const std::string& className = "lv-bars") {
    std::vector<double> heights;
    for (const Element& bars : picture.all("path", className)) {
        const auto points = bars.points();  // foot and head, in turns
        for (std::size_t index = 0; index + 1 < points.size(); index += 2) {
            heights.push_back(points[index].y - points[index + 1].y);
        }
    }
    return heights;
}

}  // namespace

TEST(PatchesPicture, HasABarForEachPatch) {
    const ParsedPicture picture(patchesPicture(sampleMode(), nullptr));
    EXPECT_EQ(heightsOf(picture).size(), 48U);
    EXPECT_EQ(picture.hoverTexts().size(), 22U);
    EXPECT_EQ(ParsedPicture(patchesPicture(modeWith({1, 2}), nullptr)).hoverTexts()[1], "Patch 2: ΔE00 2.00");
    EXPECT_EQ(picture.hoverTexts()[0].rfind("Patches 1 to 2: ΔE00 ", 0), 0U) << picture.hoverTexts()[0];
}

TEST(PatchesPicture, HasBarsAsHighAsTheDifferences) {
    const ParsedPicture picture(patchesPicture(modeWith({1, 2, 4, 0}), nullptr));
    const auto bars = heightsOf(picture);
    ASSERT_EQ(bars.size(), 4U);
    EXPECT_NEAR(bars[1], 2 * bars[0], 0.2);
    EXPECT_NEAR(bars[2], 4 * bars[0], 0.4);
    EXPECT_EQ(bars[3], 0);
    const Element frame = picture.only("rect", "lv-frame");
    EXPECT_NEAR(picture.only("path", "lv-bars").points()[0].y, frame.points()[0].y + frame.number("height"), 0.06);
}

TEST(PatchesPicture, JoinsManyPatchesAndKeepsTheGreatest) {
    for (const std::size_t count : {1024U, 10000U}) {
        std::vector<double> differences(count, 1);
        differences[count / 2] = 7;
        const ParsedPicture picture(patchesPicture(modeWith(differences), nullptr));
        const auto bars = heightsOf(picture);
        EXPECT_EQ(bars.size(), 180U);
        EXPECT_NEAR(*std::max_element(bars.begin(), bars.end()), 7 * bars[0], 0.5);
        const std::string text = "greatest ΔE00 7.00, patch " + std::to_string(count / 2 + 1);
        EXPECT_TRUE(picture.says(text)) << count;
    }
}

TEST(PatchesPicture, HasNoBarWithoutADifference) {
    ModeFigures mode = modeWith({1, 2});
    mode.series.patches[0].deltaE2000 = {{}, "no white"};
    const ParsedPicture picture(patchesPicture(mode, nullptr));
    EXPECT_EQ(heightsOf(picture).size(), 1U);
    EXPECT_EQ(picture.hoverTexts(), std::vector<std::string>{"Patch 2: ΔE00 2.00"});
}

TEST(PatchesPicture, HasLinesForMeanAndLimits) {
    const LimitSet limits = lv::test::sampleLimits();
    const ParsedPicture picture(patchesPicture(sampleMode(), &limits));
    for (const std::string text : {"mean 0.83", "95 % 1.97", "limit, mean 1.50", "limit, max. 2.50"}) {
        EXPECT_TRUE(picture.says(text)) << text;
    }
    EXPECT_EQ(picture.all("path", "lv-limit").size(), 2U);
    EXPECT_TRUE(ParsedPicture(patchesPicture(sampleMode(), nullptr)).all("path", "lv-limit").empty());
}

TEST(PatchesPicture, MarksBarsAboveTheLimit) {
    const LimitSet limits = lv::test::sampleLimits();
    const ParsedPicture picture(patchesPicture(modeWith({2.4, 2.6}), &limits));
    EXPECT_EQ(heightsOf(picture, "lv-over").size(), 1U);
    EXPECT_EQ(heightsOf(picture, "lv-measured").size(), 1U);
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
