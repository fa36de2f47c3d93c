#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv::test {
namespace {

TEST(MeasurementDataSecondary, DefaultRecordWritesItsOwnRootWithTheVersionOfTheSeries) {
    EXPECT_EQ(compact(MeasurementDataSecondary()), R"(<MeasurementDataSecondary Version="2" MinorVersion="0"/>)");
    EXPECT_EQ(MeasurementDataSecondary().getRootElementName(), "MeasurementDataSecondary");
}

TEST(MeasurementDataSecondary, RowsAreWrittenAsThoseOfTheFirstSeries) {
    MeasurementDataSecondary secondary;
    secondary.objects = filled<MeasurementData>().objects;
    EXPECT_EQ(compact(secondary), R"(<MeasurementDataSecondary Version="2" MinorVersion="0">)"
                                  "<Measurements><RGB>1|2|3</RGB><CMYK>4|5|6|7</CMYK><XYZ>8|9|10</XYZ>"
                                  "<CIELAB>11|-12|13</CIELAB><PQR>14|15|-16</PQR></Measurements>"
                                  "<Measurements><RGB>101|102|103</RGB><CMYK>104|105|106|107</CMYK>"
                                  "<XYZ>108|109|110</XYZ><CIELAB>111|-112|113</CIELAB><PQR>114|115|-116</PQR>"
                                  "</Measurements></MeasurementDataSecondary>");
}

TEST(MeasurementDataSecondary, AcceptsOnlyItsOwnRootName) {
    MeasurementDataSecondary secondary = filled<MeasurementDataSecondary>();
    EXPECT_FALSE(secondary.parseXMLString(compact(filled<MeasurementData>())));
    EXPECT_EQ(describe(secondary), describe(filled<MeasurementDataSecondary>()));
    EXPECT_TRUE(secondary.parseXMLString("<MeasurementDataSecondary/>"));
    EXPECT_TRUE(secondary.objects.empty());
}

TEST(MeasurementDataSecondary, KeepsItsNameWhenUsedThroughTheFirstSeries) {
    MeasurementDataSecondary secondary;
    MeasurementData& series = secondary;
    EXPECT_EQ(series.getRootElementName(), "MeasurementDataSecondary");
    EXPECT_EQ(compact(series), compact(MeasurementDataSecondary()));
    EXPECT_TRUE(series.parseXMLString(compact(filled<MeasurementDataSecondary>())));
    EXPECT_FALSE(series.parseXMLString("<MeasurementData/>"));
    EXPECT_EQ(describe(secondary), describe(filledAndParsedBack<MeasurementDataSecondary>()));
}

TEST(MeasurementDataSecondary, CopiedIntoTheFirstSeriesItsRowsAreWrittenUnderThatName) {
    const MeasurementDataSecondary secondary = filled<MeasurementDataSecondary>();
    const MeasurementData& asSeries = secondary;
    const MeasurementData series(asSeries);  // NOLINT(cppcoreguidelines-slicing): the row list is what is wanted
    EXPECT_EQ(describe(series), describe(secondary));
    EXPECT_EQ(compact(series).rfind("<MeasurementData Version=", 0), 0U);
}

}  // namespace
}  // namespace lv::test
