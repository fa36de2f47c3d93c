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
    EXPECT_EQ(picture.all("rect", "lv-measured").size(), 18U + 1);  // and one in the legend
    EXPECT_EQ(picture.all("rect", "lv-target").size(), 6U + 1);
    for (const std::string text : {"Hue in steps", "Saturation in steps", "Lightness in steps", "Of the target"}) {
        EXPECT_TRUE(picture.says(text)) << text;
    }
}

TEST(SixColoursPicture, HasBarsUpAndDownFromZero) {
    ModeFigures mode;
    mode.sixColours = {{"Hue", "monitor", {2, -1, 0, 0, 0, 0}}};
    const ParsedPicture picture(sixColoursPicture(mode));
    const auto bars = picture.all("rect", "lv-bar");
    const double zero = picture.only("line", "lv-zero").number("y1");
    EXPECT_EQ(bars[0].title, "Red, Hue (monitor): 2");
    EXPECT_NEAR(bars[0].number("y") + bars[0].number("height"), zero, 0.02);
    EXPECT_NEAR(bars[1].number("y"), zero, 0.02);
    EXPECT_NEAR(bars[0].number("height"), 2 * bars[1].number("height"), 0.02);
}

TEST(SixColoursPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(sixColoursPicture({})).says("no adjustments of six colours are recorded"));
}
