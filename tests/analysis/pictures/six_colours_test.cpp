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
    const double zero = picture.only("line", "lv-zero").number("y1");
    const lv::test::Element bars = picture.only("path", "lv-bar");
    EXPECT_EQ(bars.title, "Hue of the monitor: Red 2, Yellow -1, Green 0, Cyan 0, Blue 0, Magenta 0");
    ASSERT_EQ(bars.points().size(), 6U);
    const auto heightOf = [&](std::size_t bar) {
        std::string path = bars.attributes.at("d");
        for (std::size_t skipped = 0; skipped < bar; ++skipped) {
            path.erase(0, path.find('z') + 1);
        }
        return zero - lv::test::leadingNumber(path.substr(path.find('V') + 1));
    };
    EXPECT_NEAR(bars.points()[0].y, zero, 0.06);
    EXPECT_GT(heightOf(0), 0);
    EXPECT_NEAR(heightOf(0), -2 * heightOf(1), 0.2);
    EXPECT_NEAR(heightOf(2), 0, 0.06);
}

TEST(SixColoursPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(sixColoursPicture({})).says("no adjustments of six colours are recorded"));
}
