#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

#include <cmath>

using lv::analysis::MapFigures;
using lv::analysis::mapPicture;
using lv::test::Element;
using lv::test::noisyMap;
using lv::test::ParsedPicture;
using lv::test::sampleMap;

namespace {

/// The paths of cells, which are not those of the ramp below.
std::vector<Element> steps(const ParsedPicture& picture) {
    constexpr std::size_t stepsOfRamp = 9;
    std::vector<Element> paths = picture.all("path", "lv-cells");
    paths.resize(paths.size() - stepsOfRamp);
    return paths;
}

/// Whether the class is that of the cell with this upper left corner.
bool isOf(const ParsedPicture& picture, const std::string& className, const lv::analysis::svg::Point& corner) {
    const std::size_t pointsOfACell = 4;
    for (const Element& step : steps(picture)) {
        const auto points = step.points();
        for (std::size_t index = 0; index < points.size(); index += pointsOfACell) {
            if (points[index].x == corner.x && points[index].y == corner.y) {
                return step.hasClass(className);
            }
        }
    }
    ADD_FAILURE() << "no cell at " << corner.x << ", " << corner.y;
    return false;
}

/// Where the cell of a hover text begins.
lv::analysis::svg::Point cornerOf(const ParsedPicture& picture, std::size_t index) {
    const Element cell = picture.all("path", "lv-hover").at(index);
    const double width = picture.only("g", "lv-hover").number("stroke-width");
    return {std::round((cell.points()[0].x - width / 2) * 10) / 10, cell.points()[0].y};
}

}  // namespace

TEST(MapPicture, HasACellForEachEntry) {
    const ParsedPicture picture(mapPicture(sampleMap()));
    const auto texts = picture.hoverTexts();
    ASSERT_EQ(texts.size(), 25U);
    EXPECT_EQ(texts[0], "Row 1, column 1: 92, -8.0 % of the centre");
    EXPECT_EQ(texts[8], "Row 2, column 4: 98, -2.0 % of the centre");
    EXPECT_EQ(cornerOf(picture, 5).x, cornerOf(picture, 0).x);
    EXPECT_EQ(cornerOf(picture, 5).y, picture.all("path", "lv-hover")[0].points()[1].y);
}

TEST(MapPicture, HasNumbersInTheCells) {
    const ParsedPicture picture(mapPicture(sampleMap()));
    EXPECT_EQ(picture.all("text", "lv-r0t").size(), 8U);  // 91 and 92 stand in four cells, each with its deviation
    EXPECT_TRUE(picture.says("92"));
    EXPECT_TRUE(picture.says("-8.0 %"));
}

TEST(MapPicture, IsLightWhereValuesAreGreat) {
    const ParsedPicture picture(mapPicture(sampleMap()));
    EXPECT_TRUE(isOf(picture, "lv-r8", cornerOf(picture, 12)));  // 100, the greatest
    EXPECT_TRUE(isOf(picture, "lv-r0", cornerOf(picture, 20)));  // 91, the least
}

TEST(MapPicture, HasOneColourForEqualEntries) {
    MapFigures map = noisyMap(4, 2);
    map.values = {7, 7, 7, 7};
    const ParsedPicture picture(mapPicture(map));
    ASSERT_EQ(steps(picture).size(), 1U);
    EXPECT_TRUE(steps(picture).front().hasClass("lv-r8"));
}

TEST(MapPicture, WithoutAShapeIsWrappedAndSaysSo) {
    const ParsedPicture picture(mapPicture(noisyMap(25, 0)));
    EXPECT_EQ(picture.hoverTexts().size(), 25U);
    EXPECT_TRUE(picture.says("The shape of the map is not known: entries in stored order, 10 in a row."));
    EXPECT_EQ(picture.hoverTexts()[1].rfind("Entry 2: ", 0), 0U) << picture.hoverTexts()[1];
}

TEST(MapPicture, ShowsMeansOfManyEntries) {
    MapFigures map = noisyMap(10000, 100);
    map.values.assign(10000, 5);
    const ParsedPicture picture(mapPicture(map));
    EXPECT_LE(picture.hoverTexts().size(), 225U);
    EXPECT_EQ(picture.hoverTexts()[0], "Row 1, column 1: mean of 49 entries 5");
    EXPECT_TRUE(picture.says("Each cell is the mean of up to 49 entries."));
}

TEST(MapPicture, HasTheUnitOnlyWhereItIsKnown) {
    MapFigures map = sampleMap();
    EXPECT_FALSE(ParsedPicture(mapPicture(map)).says("cd/m²"));
    map.unit = "cd/m²";
    EXPECT_TRUE(ParsedPicture(mapPicture(map)).says("100 cd/m²"));
}

TEST(MapPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(mapPicture({})).says("no such map is recorded"));
}
