#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

using lv::analysis::MapFigures;
using lv::analysis::mapPicture;
using lv::test::Element;
using lv::test::noisyMap;
using lv::test::ParsedPicture;
using lv::test::sampleMap;

namespace {

std::vector<Element> cells(const ParsedPicture& picture) {
    std::vector<Element> found;
    for (const Element& element : picture.all("rect", "lv-cells")) {
        if (!element.title.empty()) {
            found.push_back(element);
        }
    }
    return found;
}

}  // namespace

TEST(MapPicture, HasACellForEachEntry) {
    const ParsedPicture picture(mapPicture(sampleMap()));
    const auto found = cells(picture);
    ASSERT_EQ(found.size(), 25U);
    EXPECT_EQ(found[0].title, "Row 1, column 1: 92, -8.0 % of the centre");
    EXPECT_EQ(found[8].title, "Row 2, column 4: 98, -2.0 % of the centre");
    EXPECT_EQ(found[5].number("x"), found[0].number("x"));
    EXPECT_NEAR(found[5].number("y"), found[0].number("y") + found[0].number("height"), 0.02);
}

TEST(MapPicture, HasNumbersInTheCells) {
    const ParsedPicture picture(mapPicture(sampleMap()));
    const auto texts = picture.all("text", "lv-cells");
    ASSERT_EQ(texts.size(), 50U);
    EXPECT_EQ(texts[0].text, "92");
    EXPECT_EQ(texts[1].text, "-8.0 %");
}

TEST(MapPicture, IsLightWhereValuesAreGreat) {
    const auto found = cells(ParsedPicture(mapPicture(sampleMap())));
    EXPECT_TRUE(found[12].hasClass("lv-r8"));  // 100, the greatest
    EXPECT_TRUE(found[20].hasClass("lv-r0"));  // 91, the least
}

TEST(MapPicture, OfEqualEntriesHasOneColour) {
    MapFigures map = noisyMap(4, 2);
    map.values = {7, 7, 7, 7};
    for (const Element& cell : cells(ParsedPicture(mapPicture(map)))) {
        EXPECT_TRUE(cell.hasClass("lv-r8"));
    }
}

TEST(MapPicture, WithoutAShapeIsWrappedAndSaysSo) {
    const ParsedPicture picture(mapPicture(noisyMap(25, 0)));
    EXPECT_EQ(cells(picture).size(), 25U);
    EXPECT_TRUE(picture.says("The shape of the map is not known: entries in stored order, 10 in a row."));
    EXPECT_EQ(cells(picture)[1].title.rfind("Entry 2: ", 0), 0U) << cells(picture)[1].title;
}

TEST(MapPicture, OfManyEntriesHasMeans) {
    MapFigures map = noisyMap(10000, 100);
    map.values.assign(10000, 5);
    const ParsedPicture picture(mapPicture(map));
    EXPECT_LE(cells(picture).size(), 225U);
    EXPECT_EQ(cells(picture)[0].title, "Row 1, column 1: mean of 49 entries 5");
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
