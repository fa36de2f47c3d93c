#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

#include <algorithm>

// The pictures of grey steps: tone and balance.

using lv::analysis::balancePicture;
using lv::analysis::ModeFigures;
using lv::analysis::tonePicture;
using lv::test::Element;
using lv::test::ParsedPicture;
using lv::test::sampleMode;

namespace {

/// A mode with steps at half and full signal.
ModeFigures halfAndFull() {
    ModeFigures mode;
    mode.tone.steps = {{0.5, 0.25, {0.2176, ""}, {2.0, ""}, {{1.02, 1.0, 0.98}}}, {1, 1, {1, ""}, {}, {{1, 1, 1}}}};
    mode.tone.targetCurve = "2.2";
    return mode;
}

/// The lines with symbols.
std::vector<Element> marked(const ParsedPicture& picture) {
    std::vector<Element> lines;
    for (const Element& path : picture.all("path")) {
        const auto style = path.attributes.find("style");
        if (style != path.attributes.end() && style->second.rfind("marker:url(#", 0) == 0) {
            lines.push_back(path);
        }
    }
    return lines;
}

}  // namespace

TEST(TonePicture, HasEachStepInBothPanels) {
    const ParsedPicture picture(tonePicture(halfAndFull()));
    const auto found = marked(picture);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].points().size(), 2U);                             // of light
    EXPECT_EQ(found[1].points().front().x, found[1].points().back().x);  // of gamma: one step
    const std::vector<std::string> texts{"50.0 %: light 25.00 %, target 21.76 %, gamma 2.00",
                                         "100.0 %: light 100.00 %, target 100.00 %"};
    EXPECT_EQ(picture.hoverTexts(), texts);
}

TEST(TonePicture, HasStepsWhereTheyBelong) {
    const ParsedPicture picture(tonePicture(halfAndFull()));
    const Element frame = picture.all("rect", "lv-frame").front();
    const auto half = marked(picture).front().points().front();
    EXPECT_NEAR(half.x, frame.number("x") + frame.number("width") / 2, 0.06);
    EXPECT_NEAR(half.y, frame.points()[0].y + frame.number("height") * 0.75, 0.06);
}

TEST(TonePicture, HasTheTargetInBothPanels) {
    EXPECT_EQ(ParsedPicture(tonePicture(sampleMode())).all("path", "lv-target").size(), 3U);
    ModeFigures mode = sampleMode();
    for (auto& step : mode.tone.steps) {
        step.target = {};
    }
    EXPECT_TRUE(ParsedPicture(tonePicture(mode)).all("path", "lv-target").empty());
}

TEST(TonePicture, HasAStraightTargetGammaOfAPower) {
    const ParsedPicture picture(tonePicture(sampleMode()));
    const auto points = picture.all("path", "lv-target").back().points();
    ASSERT_EQ(points.size(), 2U);
    EXPECT_NEAR(points[0].y, points[1].y, 0.01);
}

TEST(TonePicture, LeavesOutGammasOffTheScaleAndSaysSo) {
    ModeFigures mode = sampleMode();
    mode.tone.steps[1].gamma.value = 30;
    EXPECT_TRUE(ParsedPicture(tonePicture(mode)).says("1 value outside the scale"));
}

TEST(TonePicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(tonePicture({})).says("no grey patches were measured"));
    ModeFigures mode;
    mode.tone.meanGamma.reason = "no calibration result";
    EXPECT_TRUE(ParsedPicture(tonePicture(mode)).says("no calibration result"));
}

TEST(BalancePicture, HasEachChannelWithAnOwnLook) {
    const ParsedPicture picture(balancePicture(halfAndFull()));
    for (const std::string name : {"lv-red", "lv-green", "lv-blue"}) {
        const auto paths = picture.all("path", name);
        const auto hasBoth = [](const Element& path) {
            return path.points().size() == 2;
        };
        EXPECT_TRUE(std::any_of(paths.begin(), paths.end(), hasBoth)) << name;
    }
    ASSERT_EQ(picture.hoverTexts().size(), 2U);
    EXPECT_EQ(picture.hoverTexts()[0], "50.0 %: red 2.00 %, green 0.00 %, blue -2.00 %");
}

TEST(BalancePicture, HasBalanceInTheMiddle) {
    const ParsedPicture picture(balancePicture(halfAndFull()));
    const Element frame = picture.only("rect", "lv-frame");
    const double middle = frame.points()[0].y + frame.number("height") / 2;
    EXPECT_NEAR(picture.all("path", "lv-zero").front().points()[0].y, middle, 0.01);
    EXPECT_NEAR(marked(picture)[1].points()[0].y, middle, 0.06);
}

TEST(BalancePicture, SaysWhatItNeeds) {
    ModeFigures mode = halfAndFull();
    for (auto& step : mode.tone.steps) {
        step.balance = {};
    }
    EXPECT_TRUE(ParsedPicture(balancePicture(mode)).says("the measured white and primaries are needed"));
}
