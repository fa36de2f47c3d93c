#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/shapes.h>

#include <gtest/gtest.h>

using lv::analysis::svg::SharedParts;
using lv::analysis::svg::SVGWriter;

TEST(SVGWriter, WritesElements) {
    SVGWriter svg;
    svg.open("g", {{"class", "a & b"}});
    svg.empty("rect", {{"x", 1.5}, {"width", 10}});
    svg.text("text", {}, "1 < 2");
    svg.titled("circle", {{"r", 4}}, "\"here\"");
    svg.titled("circle", {{"r", 5}}, "");
    svg.close();
    EXPECT_EQ(svg.document(), "<g class=\"a &amp; b\">\n"
                              "<rect x=\"1.5\" width=\"10\"/>\n"
                              "<text>1 &lt; 2</text>\n"
                              "<circle r=\"4\"><title>&quot;here&quot;</title></circle>\n"
                              "<circle r=\"5\"/>\n"
                              "</g>\n");
}

TEST(SVGWriter, WritesForAPageOnOneLineAndWithoutQuotes) {
    SharedParts parts;
    SVGWriter svg(&parts);
    svg.empty("rect", {{"class", "a"}, {"x", 1.5}});
    svg.empty("rect", {{"x", 1}, {"class", "a b"}});
    svg.text("text", {{"class", ""}, {"id", "a=b"}}, "1 < 2");
    EXPECT_EQ(svg.document(),
              "<rect class=a x=1.5 /><rect x=1 class=\"a b\"/><text class=\"\" id=\"a=b\">1 &lt; 2</text>");
}

TEST(SVGWriter, SharesAPartOfAPageOnce) {
    SharedParts parts;
    SVGWriter svg(&parts);
    SVGWriter part = svg.newPart();
    part.text("text", {}, "same");
    svg.share(part);
    svg.share(part, 20);
    svg.define(part);
    EXPECT_EQ(svg.document(), "<use href=#p1 /><use href=#p1 y=20 />");
    const std::string all = parts.definitions();
    EXPECT_NE(all.find("<g id=p1><text>same</text></g>"), std::string::npos) << all;
}

TEST(SVGWriter, MovesAPartOfAFileDown) {
    SVGWriter svg;
    SVGWriter part = svg.newPart();
    part.empty("rect", {{"x", 1}});
    svg.share(part, 20);
    EXPECT_EQ(svg.document(), "<g transform=\"translate(0,20)\">\n<rect x=\"1\"/>\n</g>\n");
}

TEST(Shapes, HaveRoundedStepsThatAddUpToThePoints) {
    EXPECT_EQ(
        lv::analysis::svg::pathThrough({{0, 0}, {10.04, 10}, {20.08, 0}, {20.08, 30}, {30.12, 30}, {39.96, 29.5}}),
        "M0,0l10,10,10.1-10v30h10l9.9-.5");
    EXPECT_EQ(lv::analysis::svg::pathThrough({{1, 2}}), "M1,2h0");
}

TEST(Shapes, NeedEnoughPoints) {
    SVGWriter svg;
    addPolyline(svg, {{1, 1}}, {});
    addPolygon(svg, {{1, 1}, {2, 2}}, {});
    EXPECT_EQ(svg.document(), "");
    addPolyline(svg, {{1, 1}, {2, 2}}, {"lv-line", "A line"});
    EXPECT_EQ(svg.document(), "<path class=\"lv-line\" d=\"M1,1l1,1\"><title>A line</title></path>\n");
}
