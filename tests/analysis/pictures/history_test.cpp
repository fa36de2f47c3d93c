#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

using lv::analysis::FigureLimit;
using lv::analysis::historyPicture;
using lv::analysis::HistorySeries;
using lv::test::Element;
using lv::test::ParsedPicture;
using lv::test::sampleSeries;

namespace {

const FigureLimit atMost{"", {}, 1.5, ""};
constexpr double roundedTwice = 0.11;  // places in a picture have one digit after the point
const FigureLimit between{"", 0.5, 1.5, ""};

}  // namespace

TEST(HistoryPicture, HasAPointForEachDocument) {
    const auto points = ParsedPicture(historyPicture(sampleSeries(), nullptr)).all("circle", "lv-measured");
    ASSERT_EQ(points.size(), 4U);
    EXPECT_EQ(points[0].title, "2023-02-11T09:00:00: 0.61");
    EXPECT_LT(points[3].number("cy"), points[0].number("cy"));
}

TEST(HistoryPicture, MarksPointsOutsideTheLimit) {
    const ParsedPicture picture(historyPicture(sampleSeries(), &atMost));
    EXPECT_EQ(picture.only("path", "lv-over").title, "2024-11-20T08:00:00: 1.61, outside the limit");
    EXPECT_EQ(picture.all("circle", "lv-measured").size(), 3U);
}

TEST(HistoryPicture, HasLinesAndABandOfTheLimit) {
    EXPECT_TRUE(ParsedPicture(historyPicture(sampleSeries(), nullptr)).all("rect", "lv-band").empty());
    EXPECT_TRUE(ParsedPicture(historyPicture(sampleSeries(), &atMost)).says("limit ≤ 1.50"));
    const ParsedPicture picture(historyPicture(sampleSeries(), &between));
    const auto lines = picture.all("path", "lv-limit");
    ASSERT_EQ(lines.size(), 2U);
    const Element band = picture.only("rect", "lv-band");
    EXPECT_NEAR(band.number("y"), lines[0].points()[0].y, 0.01);
    EXPECT_NEAR(band.number("y") + band.number("height"), lines[1].points()[0].y, 0.01);
}

TEST(HistoryPicture, WithoutDatesHasEvenSteps) {
    HistorySeries series = sampleSeries();
    series.points[1].when = "some time";
    const auto points = ParsedPicture(historyPicture(series, nullptr)).all("circle", "lv-measured");
    ASSERT_EQ(points.size(), 4U);
    const double step = points[1].number("cx") - points[0].number("cx");
    EXPECT_NEAR(points[2].number("cx") - points[1].number("cx"), step, roundedTwice);
    EXPECT_NEAR(points[3].number("cx") - points[2].number("cx"), step, roundedTwice);
}

TEST(HistoryPicture, HasNoPointWithoutAValue) {
    HistorySeries series = sampleSeries();
    series.points[1].figure = {{}, "no white"};
    EXPECT_EQ(ParsedPicture(historyPicture(series, nullptr)).all("circle", "lv-measured").size(), 3U);
}

TEST(HistoryPicture, ForOneDocumentHasOnePoint) {
    HistorySeries series = sampleSeries();
    series.points.resize(1);
    const ParsedPicture picture(historyPicture(series, &atMost));
    EXPECT_EQ(picture.all("circle", "lv-measured").size(), 1U);
    EXPECT_TRUE(picture.says("Mean ΔE00 of 1 document."));
}

TEST(HistoryPicture, HasLabelsThatDoNotOverlap) {
    HistorySeries series = sampleSeries();
    for (int index = 0; index < 30; ++index) {
        series.points.push_back(series.points.back());
    }
    double free = 0;
    for (const Element& text : ParsedPicture(historyPicture(series, nullptr)).all("text", "lv-tick")) {
        if (text.anchor == "middle") {
            EXPECT_GT(text.number("x"), free);
            free = text.number("x") + 60;
        }
    }
    EXPECT_GT(free, 0);
}

TEST(HistoryPicture, SaysWhyThereIsNothing) {
    EXPECT_TRUE(ParsedPicture(historyPicture({}, nullptr)).says("no document has this figure"));
    HistorySeries series;
    series.points = {{"", {{}, "no calibration result"}}};
    EXPECT_TRUE(ParsedPicture(historyPicture(series, nullptr)).says("no calibration result"));
}

TEST(HistoryPicture, HasPointsWhereTheirDatesBelong) {
    HistorySeries series = sampleSeries();
    series.points = {{"2024-01-01", {1, ""}}, {"2024-01-11", {1, ""}}, {"2024-01-31", {1, ""}}};
    const auto points = ParsedPicture(historyPicture(series, nullptr)).all("circle", "lv-measured");
    ASSERT_EQ(points.size(), 3U);
    const double step = points[1].number("cx") - points[0].number("cx");
    EXPECT_NEAR(points[2].number("cx") - points[1].number("cx"), 2 * step, 3 * roundedTwice / 2);
}
