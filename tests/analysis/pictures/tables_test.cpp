#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

using lv::analysis::ModeFigures;
using lv::analysis::tablesPicture;
using lv::test::Element;
using lv::test::ParsedPicture;

namespace {

ModeFigures modeWith(const std::vector<double>& red) {
    ModeFigures mode;
    mode.tables[0] = red;
    return mode;
}

}  // namespace

TEST(TablesPicture, HasEachTableInBothPanels) {
    const ParsedPicture picture(tablesPicture(lv::test::sampleMode()));
    for (const std::string name : {"lv-red", "lv-green", "lv-blue"}) {
        EXPECT_EQ(picture.all("path", name).size(), 3U) << name;  // one in the legend
    }
    EXPECT_TRUE(picture.says("Red: 256 entries, greatest deviation from the diagonal 0.00 %"));
}

TEST(TablesPicture, HasEntriesWhereTheyBelong) {
    const ParsedPicture picture(tablesPicture(modeWith({0, 0.75, 1})));
    const Element frame = picture.all("rect", "lv-frame").front();
    const auto points = picture.all("path", "lv-red").at(1).points();
    ASSERT_EQ(points.size(), 3U);
    EXPECT_NEAR(points[1].x, frame.number("x") + frame.number("width") / 2, 0.06);
    EXPECT_NEAR(points[1].y, frame.points()[0].y + frame.number("height") / 4, 0.06);
    EXPECT_TRUE(picture.says("greatest deviation from the diagonal 25.00 % at 50.0 % of the input"));
}

TEST(TablesPicture, ShowsOnlyTheTablesThatThereAre) {
    const ParsedPicture picture(tablesPicture(modeWith({0, 1})));
    EXPECT_TRUE(picture.all("path", "lv-green").empty());
    EXPECT_FALSE(picture.says("Green"));
    EXPECT_TRUE(ParsedPicture(tablesPicture({})).says("no look-up tables are recorded"));
}

TEST(TablesPicture, ShowsValuesOnHover) {
    const auto columns = ParsedPicture(tablesPicture(modeWith({0, 0.75, 1}))).all("path", "lv-hover");
    ASSERT_EQ(columns.size(), 26U);
    EXPECT_EQ(columns.front().title, "0.0 %: Red 0.0000");
    EXPECT_EQ(columns.back().title, "100.0 %: Red 1.0000");
}
