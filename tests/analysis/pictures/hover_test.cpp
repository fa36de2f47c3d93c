#include <lvdata/analysis/pictures/hover.h>

#include <gtest/gtest.h>

using lv::analysis::addHoverCells;
using lv::analysis::withoutRepetitions;
using lv::analysis::svg::Box;
using lv::analysis::svg::SharedParts;
using lv::analysis::svg::SVGWriter;

namespace {

constexpr Box box{10, 20, 100, 40};

}  // namespace

TEST(HoverTexts, HaveWordsOfAllTextsOnce) {
    EXPECT_EQ(withoutRepetitions({"1 %: red 0.5", "", "2 %: red 7 or 8", "2 %: red 9"}),
              " %: red \n1 0.5\n\n2 7 or 8\n2 9");
    EXPECT_EQ(withoutRepetitions({"1 of 2", "3 of 4 in all"}), " of \n1 2\n3 4 in all");
}

TEST(HoverTexts, LeaveOutWordsOfThePreviousText) {
    EXPECT_EQ(withoutRepetitions({"1 a 2 x", "2 a 2 x", "", "2 a 3 x y", "2 a 3 x y"}), " a  x\n1 2\n2 \n\n2 3 y\n2  ");
}

/// A line without words is a text without words.
TEST(HoverTexts, HaveAtLeastOneWordOfTheirOwn) {
    EXPECT_EQ(withoutRepetitions({"one text"}), "\none text");
    EXPECT_EQ(withoutRepetitions({"word", "word", "two   words"}), "\nword\nword\ntwo words");
    EXPECT_EQ(withoutRepetitions({"a b", "", "a b c"}), "\na b\n\na  c");
    EXPECT_EQ(withoutRepetitions({}), "");
}

TEST(HoverCells, AreElementsInAFile) {
    SVGWriter svg;
    addHoverCells(svg, box, 2, {"a", "", "c"});
    EXPECT_EQ(svg.document(), "<g class=\"lv-hover\" stroke-width=\"50\">\n"
                              "<path d=\"M35,20v20\"><title>a</title></path>\n"
                              "<path d=\"M35,40v20\"><title>c</title></path>\n"
                              "</g>\n");
}

TEST(HoverCells, AreDataInAPage) {
    SharedParts parts;
    SVGWriter svg(&parts);
    addHoverCells(svg, box, 2, {"a \"b\"", "", "c"});
    EXPECT_EQ(svg.document(), "<g class=lv-hover data-grid=10,20,100,40,2,2 data-texts=\"\na &quot;b&quot;\n\nc\"/>");
}
