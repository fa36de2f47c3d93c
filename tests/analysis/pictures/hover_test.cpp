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

TEST(HoverTexts, LeaveOutWordsOfTheTextBefore) {
    EXPECT_EQ(withoutRepetitions({"1 %: red 0.5", "2 %: red 0.5", "", "2 %: red 7 or 8", "2 %: red"}),
              "1 %: red 0.5\n2   \n\n2   7 or 8\n2  ");
    EXPECT_EQ(withoutRepetitions({"word", "word", "two   words"}), "word\nword\ntwo words");
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
    EXPECT_EQ(svg.document(), "<g class=lv-hover data-grid=10,20,100,40,2,2 data-texts=\"a &quot;b&quot;\n\nc\"/>");
}
