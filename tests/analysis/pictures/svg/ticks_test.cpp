#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/pictures/svg/ticks.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using lv::analysis::svg::Range;
using lv::analysis::svg::Tick;
using lv::analysis::svg::ticksOf;
using lv::analysis::svg::toTicks;

namespace {

std::string joined(const std::vector<Tick>& ticks) {
    std::string text;
    for (const Tick& tick : ticks) {
        text += text.empty() ? tick.label : ' ' + tick.label;
    }
    return text;
}

struct Case {
    Range range;
    int most;
    std::string labels;
};

}  // namespace

TEST(Ticks, AreMultiplesOfOneTwoOrFive) {
    const std::vector<Case> cases{{{0, 1}, 10, "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0"},
                                  {{0, 1}, 5, "0.0 0.2 0.4 0.6 0.8 1.0"},
                                  {{0, 1}, 4, "0.0 0.5 1.0"},
                                  {{0, 0.64}, 9, "0.0 0.1 0.2 0.3 0.4 0.5 0.6"},
                                  {{-0.05, 0.8}, 9, "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8"},
                                  {{0, 7}, 7, "0 1 2 3 4 5 6 7"},
                                  {{-3, 3}, 4, "-2 0 2"},
                                  {{0, 1234}, 6, "0 500 1000"},
                                  {{2.1, 2.3}, 4, "2.10 2.15 2.20 2.25 2.30"},
                                  {{0, 0.0003}, 3, "0.0000 0.0001 0.0002 0.0003"},
                                  {{0, 4e12}, 2, "0 2e12 4e12"}};
    for (const Case& one : cases) {
        EXPECT_EQ(joined(ticksOf(one.range, one.most)), one.labels);
    }
}

TEST(Ticks, AreAtTheValuesOfTheirLabels) {
    for (const Tick& tick : ticksOf({0, 1}, 10)) {
        EXPECT_NEAR(tick.value, lv::analysis::decimalNumber(tick.label).value(), 1e-12);
    }
}

TEST(Ticks, MakeARangeBeginAndEndAtOne) {
    const auto scale = toTicks({-4.1, 4.7}, 5);
    EXPECT_EQ(scale.range.first, -6);
    EXPECT_EQ(scale.range.last, 6);
    EXPECT_EQ(joined(scale.ticks), "-6 -4 -2 0 2 4 6");
}

TEST(Ticks, LeaveARangeThatHasTicksAtItsEnds) {
    const auto scale = toTicks({0, 0.3}, 3);
    EXPECT_EQ(scale.range.first, 0);
    EXPECT_NEAR(scale.range.last, 0.3, 1e-12);
}

TEST(Ticks, AreOnlyOneForARangeWithoutWidth) {
    EXPECT_EQ(joined(ticksOf({5, 5}, 4)), "5");
    EXPECT_EQ(joined(toTicks({5, 5}, 4).ticks), "5");
}

TEST(Ticks, AreOnlyOneForARangeTooNarrowForItsNumbers) {
    EXPECT_EQ(ticksOf({1e16, 1e16 + 2}, 4).size(), 1U);
}

TEST(Ticks, AreOnlyOneForAnInvalidRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double huge = std::numeric_limits<double>::max();
    for (const Range& range : {Range{0, infinity}, Range{std::nan(""), 1}, Range{1, 0}, Range{-huge, huge}}) {
        EXPECT_EQ(ticksOf(range, 4).size(), 1U);
        EXPECT_EQ(toTicks(range, 4).ticks.size(), 1U);
    }
}
