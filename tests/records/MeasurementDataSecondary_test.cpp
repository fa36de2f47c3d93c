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
                                  "<Measurements><RGB>13|14|15</RGB><CMYK>16|17|18|19</CMYK><XYZ>-20|21|-22</XYZ>"
                                  "<CIELAB>23|-24|25</CIELAB><PQR>-26|27|-28</PQR></Measurements>"
                                  "<Measurements><RGB>29|30|31</RGB><CMYK>32|33|34|35</CMYK><XYZ>-36|37|-38</XYZ>"
                                  "<CIELAB>39|-40|41</CIELAB><PQR>-42|43|-44</PQR></Measurements>"
                                  "</MeasurementDataSecondary>");
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
