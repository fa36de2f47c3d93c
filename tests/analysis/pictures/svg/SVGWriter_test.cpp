#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/shapes.h>

#include <gtest/gtest.h>

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

TEST(Shapes, NeedEnoughPoints) {
    SVGWriter svg;
    addPolyline(svg, {{1, 1}}, {});
    addPolygon(svg, {{1, 1}, {2, 2}}, {});
    EXPECT_EQ(svg.document(), "");
    addPolyline(svg, {{1, 1}, {2, 2}}, {"lv-line", "A line"});
    EXPECT_EQ(svg.document(), "<path class=\"lv-line\" d=\"M1,1l1,1\"><title>A line</title></path>\n");
}
