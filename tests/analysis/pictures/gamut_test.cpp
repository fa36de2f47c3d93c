#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

#include <set>

using lv::analysis::gamutPicture;
using lv::analysis::ModeFigures;
using lv::analysis::colour::Plane;
using lv::analysis::svg::Point;
using lv::test::Element;
using lv::test::ParsedPicture;
using lv::test::sampleMode;

namespace {

/// What one unit is in pixels, and where 0, 0 lies, as the labels of the axes say.
struct Axes {
    Point zero;
    Point one;

    explicit Axes(const ParsedPicture& picture) {
        zero = {tick(picture, "0.0", true), tick(picture, "0.0", false)};
        one = {2 * tick(picture, "0.5", true) - zero.x, 2 * tick(picture, "0.5", false) - zero.y};
    }

    [[nodiscard]] Point at(double x, double y) const {
        return {zero.x + x * (one.x - zero.x), zero.y + y * (one.y - zero.y)};
    }

    /// The pixel of a label of the horizontal or vertical axis.
    static double tick(const ParsedPicture& picture, const std::string& label, bool isHorizontal) {
        for (const Element& text : picture.all("text", "lv-tick")) {
            const bool isMiddle = text.anchor == "middle";
            if (text.text == label && isMiddle == isHorizontal) {
                return isHorizontal ? text.points()[0].x : text.points()[0].y - 4;  // letters stand below the middle
            }
        }
        ADD_FAILURE() << "no tick " << label;
        return 0;
    }
};

Element titled(const ParsedPicture& picture, const std::string& start) {
    for (const Element& element : picture.elements()) {
        if (element.title.rfind(start, 0) == 0) {
            return element;
        }
    }
    ADD_FAILURE() << "nothing is titled " << start;
    return {};
}

}  // namespace

TEST(GamutPicture, HasD65WhereItBelongs) {
    ModeFigures mode = sampleMode();
    mode.primaries[0].measured = {0.3127, 0.3290};
    const ParsedPicture picture(gamutPicture(mode, Plane::xy));
    const Point wanted = Axes(picture).at(0.3127, 0.3290);
    const Element red = titled(picture, "Measured red: x 0.3127, y 0.3290");
    EXPECT_NEAR(red.number("cx"), wanted.x, 0.12);
    EXPECT_NEAR(red.number("cy"), wanted.y, 0.12);
}

TEST(GamutPicture, HasD65WhereItBelongsInTheUniformDiagram) {
    ModeFigures mode = sampleMode();
    mode.primaries[0].measured = {0.3127, 0.3290};
    const ParsedPicture picture(gamutPicture(mode, Plane::uv));
    const Point wanted = Axes(picture).at(0.19783, 0.46832);  // CIE 15, table of illuminants
    const Element red = titled(picture, "Measured red: u′ 0.1978, v′ 0.4683");
    EXPECT_NEAR(red.number("cx"), wanted.x, 0.12);
    EXPECT_NEAR(red.number("cy"), wanted.y, 0.12);
}

TEST(GamutPicture, HasEqualScales) {
    for (const Plane plane : {Plane::xy, Plane::uv}) {
        const Axes axes{ParsedPicture(gamutPicture(sampleMode(), plane))};
        EXPECT_NEAR(axes.one.x - axes.zero.x, axes.zero.y - axes.one.y, 0.3);
    }
}

TEST(GamutPicture, HasTheLocusWithWavelengths) {
    for (const Plane plane : {Plane::xy, Plane::uv}) {
        const ParsedPicture picture(gamutPicture(sampleMode(), plane));
        EXPECT_GE(titled(picture, "Spectrum locus").points().size(), 25U);
        for (const std::string text : {"460", "480", "500", "520 nm", "540", "560", "580", "600", "620"}) {
            EXPECT_TRUE(picture.says(text)) << text;
        }
        const auto notes = picture.all("text", "lv-note");
        EXPECT_EQ(notes.size(), 9U);
    }
}

TEST(GamutPicture, HasTrianglesWithAnOwnLookEach) {
    const ParsedPicture picture(gamutPicture(sampleMode(), Plane::xy));
    std::set<std::string> looks;
    for (const std::string name :
         {"sRGB", "Adobe RGB (1998)", "Display P3", "BT.2020", "Target gamut", "Measured gamut"}) {
        const Element triangle = titled(picture, name);
        EXPECT_EQ(triangle.points().size(), 3U) << name;
        EXPECT_TRUE(looks.insert(triangle.attributes.at("class")).second) << name;
    }
    EXPECT_EQ(picture.all("circle", "lv-measured").size(), 4U);  // three corners, and one in the legend
}

TEST(GamutPicture, ShowsWhites) {
    const ParsedPicture picture(gamutPicture(sampleMode(), Plane::xy));
    EXPECT_TRUE(titled(picture, "Measured white: x 0.3131, y 0.3294").hasClass("lv-measured"));
    EXPECT_TRUE(titled(picture, "Target white: x 0.3127, y 0.3290").hasClass("lv-target"));
}

TEST(GamutPicture, CutsWhatIsOutsideAndSaysSo) {
    ModeFigures mode = sampleMode();
    mode.primaries[1].measured = {0.2, 1.5};
    const ParsedPicture picture(gamutPicture(mode, Plane::xy));
    EXPECT_TRUE(picture.says("measured green at x 0.2000, y 1.5000, which is outside the diagram."));
    EXPECT_EQ(titled(picture, "Measured gamut").points().size(), 4U);
    EXPECT_EQ(picture.all("circle", "lv-measured").size(), 3U);
}

TEST(GamutPicture, SaysWhatIsNotThere) {
    ModeFigures mode = sampleMode();
    mode.primaries = {};
    const ParsedPicture picture(gamutPicture(mode, Plane::xy));
    EXPECT_TRUE(picture.says("No measured red."));
    EXPECT_FALSE(picture.says("Target gamut"));
    EXPECT_TRUE(ParsedPicture(gamutPicture({}, Plane::uv)).says("no white and no primaries are recorded"));
}
