#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

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

std::vector<Element> marks(const ParsedPicture& picture, const std::string& name, const std::string& className) {
    std::vector<Element> found;
    for (const Element& element : picture.all(name, className)) {
        if (!element.title.empty()) {
            found.push_back(element);
        }
    }
    return found;
}

}  // namespace

TEST(TonePicture, HasEachStepInBothPanels) {
    const ParsedPicture picture(tonePicture(halfAndFull()));
    const auto found = marks(picture, "circle", "lv-measured");
    ASSERT_EQ(found.size(), 3U);  // two of light, one of gamma
    EXPECT_EQ(found[0].title, "Signal 50.0 %: light 25.00 %, target 21.76 %");
    EXPECT_EQ(found[2].title, "Signal 50.0 %: gamma 2.00");
}

TEST(TonePicture, HasStepsWhereTheyBelong) {
    const ParsedPicture picture(tonePicture(halfAndFull()));
    const Element frame = picture.all("rect", "lv-frame").front();
    const Element half = marks(picture, "circle", "lv-measured").front();
    EXPECT_NEAR(half.number("cx"), frame.number("x") + frame.number("width") / 2, 0.01);
    EXPECT_NEAR(half.number("cy"), frame.number("y") + frame.number("height") * 0.75, 0.01);
}

TEST(TonePicture, HasTheTargetInBothPanels) {
    EXPECT_EQ(ParsedPicture(tonePicture(sampleMode())).all("polyline", "lv-target").size(), 2U);
    ModeFigures mode = sampleMode();
    for (auto& step : mode.tone.steps) {
        step.target = {};
    }
    EXPECT_TRUE(ParsedPicture(tonePicture(mode)).all("polyline", "lv-target").empty());
}

TEST(TonePicture, HasAStraightTargetGammaOfAPower) {
    const ParsedPicture picture(tonePicture(sampleMode()));
    const auto points = picture.all("polyline", "lv-target").back().points();
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
    ASSERT_EQ(marks(picture, "path", "lv-red").size(), 2U);
    EXPECT_EQ(marks(picture, "path", "lv-red")[0].title, "Signal 50.0 %: Red 2.00 %");
    EXPECT_EQ(marks(picture, "circle", "lv-green").size(), 2U);
    EXPECT_EQ(marks(picture, "path", "lv-blue")[0].title, "Signal 50.0 %: Blue -2.00 %");
}

TEST(BalancePicture, HasBalanceInTheMiddle) {
    const ParsedPicture picture(balancePicture(halfAndFull()));
    const Element frame = picture.only("rect", "lv-frame");
    const double middle = frame.number("y") + frame.number("height") / 2;
    EXPECT_NEAR(picture.only("line", "lv-zero").number("y1"), middle, 0.01);
    EXPECT_NEAR(marks(picture, "circle", "lv-green")[0].number("cy"), middle, 0.01);
}

TEST(BalancePicture, SaysWhatItNeeds) {
    ModeFigures mode = halfAndFull();
    for (auto& step : mode.tone.steps) {
        step.balance = {};
    }
    EXPECT_TRUE(ParsedPicture(balancePicture(mode)).says("the measured white and primaries are needed"));
}
