#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

using lv::analysis::ModeFigures;
using lv::analysis::sixColoursPicture;
using lv::test::ParsedPicture;

TEST(SixColoursPicture, HasAPanelForEachAdjustmentAndABarForEachColour) {
    const ParsedPicture picture(sixColoursPicture(lv::test::sampleMode()));
    EXPECT_EQ(picture.all("rect", "lv-frame").size(), 3U);
    EXPECT_EQ(picture.all("path", "lv-measured").size(), 3U);
    EXPECT_EQ(picture.all("path", "lv-target").size(), 1U);
    for (const std::string text : {"Hue in steps", "Saturation in steps", "Lightness in steps", "Of the target"}) {
        EXPECT_TRUE(picture.says(text)) << text;
    }
}

TEST(SixColoursPicture, HasBarsUpAndDownFromZero) {
    ModeFigures mode;
    mode.sixColours = {{"Hue", "monitor", {2, -1, 0, 0, 0, 0}}};
    const ParsedPicture picture(sixColoursPicture(mode));
    const double zero = picture.only("path", "lv-zero").points()[0].y;
    const lv::test::Element bars = picture.only("path", "lv-bar");
    EXPECT_EQ(bars.title, "Hue of the monitor: Red 2, Yellow -1, Green 0, Cyan 0, Blue 0, Magenta 0");
    const std::size_t pointsOfABar = 4;
    ASSERT_EQ(bars.points().size(), 6 * pointsOfABar);
    const auto heightOf = [&](std::size_t bar) {
        return zero - bars.points()[bar * pointsOfABar + 1].y;
    };
    EXPECT_NEAR(bars.points()[0].y, zero, 0.06);
    EXPECT_GT(heightOf(0), 0);
    EXPECT_NEAR(heightOf(0), -2 * heightOf(1), 0.2);
    EXPECT_NEAR(heightOf(2), 0, 0.06);
}

TEST(SixColoursPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(sixColoursPicture({})).says("no adjustments of six colours are recorded"));
}
