#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfileData.h>

#include <string>

namespace lv::test {
namespace {

const std::string emptyColours = R"(<MeasuredXYZ Color="Red"/><MeasuredXYZ Color="Green"/><MeasuredXYZ Color="Blue"/>)"
                                 R"(<MeasuredXYZ Color="White"/><MeasuredXYZ Color="Black"/>)";
const std::string emptyCurves = "<RedTargetCurve/><GreenTargetCurve/><BlueTargetCurve/>";

std::string writtenDescription(const std::string& description) {
    return written<ProfileData>(description + emptyColours + emptyCurves);
}

property<std::string> descriptionFrom(const std::string& children) {
    return parsedFrom<ProfileData>(children).description;
}

TEST(ProfileData, DefaultRecordWritesFiveEmptyColoursAndThreeEmptyCurvesAndNoDescription) {
    EXPECT_EQ(compact(ProfileData()),
              R"(<ProfileData Version="2" MinorVersion="0">)" + emptyColours + emptyCurves + "</ProfileData>");
}

TEST(ProfileData, DocumentOfTheRootAloneParsesWithEveryFlagClearAndIsWrittenAsTheDefault) {
    const auto record = parsed<ProfileData>(R"(<ProfileData Version="2" MinorVersion="0"/>)");
    ProfileData expected;
    expected.version.hasValue = expected.minorVersion.hasValue = true;
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), writtenDescription(""));
}

TEST(ProfileData, TextOfTheDefaultRecordComesBackWithTheCurvesFoundAndWithoutAType) {
    const auto record = parsed<ProfileData>(writtenDescription(""));
    ProfileData expected;
    expected.version.hasValue = expected.minorVersion.hasValue = true;
    for (auto curve : {&ProfileData::redTargetCurve, &ProfileData::greenTargetCurve, &ProfileData::blueTargetCurve}) {
        (expected.*curve).hasValue = true;
    }
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), writtenDescription(""));
}

TEST(ProfileData, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(compact(filled<ProfileData>()), R"(<ProfileData Version="11" MinorVersion="12">)"
                                              "<Description>description 13</Description>"
                                              R"(<MeasuredXYZ Color="Red">14|15|16</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Green">17|18|19</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Blue">20|21|22</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="White">23|24|25</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Black">26|27|28</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Limited109Red">29|30|31</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Limited109Green">32|33|34</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Limited109Blue">35|36|37</MeasuredXYZ>)"
                                              R"(<MeasuredXYZ Color="Limited109White">38|39|40</MeasuredXYZ>)"
                                              R"(<RedTargetCurve Type="Formula">44</RedTargetCurve>)"
                                              R"(<GreenTargetCurve Type="Lut">50|51</GreenTargetCurve>)"
                                              R"(<BlueTargetCurve Type="Formula">53</BlueTargetCurve>)"
                                              "</ProfileData>");
}

TEST(ProfileData, DescriptionIsWrittenWhenItIsSetAlsoWhenItIsEmpty) {
    ProfileData record;
    record.description.set("a < b & \"c\"");
    EXPECT_EQ(compact(record), writtenDescription("<Description>a &lt; b &amp; \"c\"</Description>"));
    record.description.set("");
    EXPECT_EQ(compact(record), writtenDescription("<Description></Description>"));
    record.description = {"text", false};
    EXPECT_EQ(compact(record), writtenDescription(""));
}

TEST(ProfileData, DescriptionIsReadAndItsFlagSaysWhetherItWasFound) {
    EXPECT_EQ(descriptionFrom("<Description>a &amp; b</Description>"), (property<std::string>{"a & b", true}));
    EXPECT_EQ(descriptionFrom("<Description/>"), (property<std::string>{"", true}));
    EXPECT_EQ(descriptionFrom("<Description>1</Description><Description>2</Description>").value, "1");
    for (const char* child : {"", "<description>a</description>", "<Other><Description>a</Description></Other>"}) {
        EXPECT_EQ(descriptionFrom(child), (property<std::string>{"", false})) << child;
    }
}

TEST(ProfileData, MissingDescriptionKeepsTheEarlierTextAndAnEmptyOneSetsTheFlagOverIt) {
    ProfileData record = filled<ProfileData>();
    ASSERT_TRUE(record.parseXMLString("<ProfileData/>"));
    EXPECT_EQ(record.description, (property<std::string>{"description 13", false}));
    ASSERT_TRUE(record.parseXMLString("<ProfileData><Description></Description></ProfileData>"));
    EXPECT_EQ(record.description, (property<std::string>{"description 13", true}));
}

TEST(ProfileData, ColoursAndCurvesAreReadInAnyOrder) {
    const auto record = parsed<ProfileData>(R"(<ProfileData Version="11" MinorVersion="12">)"
                                            R"(<BlueTargetCurve Type="Formula">53</BlueTargetCurve>)"
                                            R"(<MeasuredXYZ Color="Limited109White">38|39|40</MeasuredXYZ>)"
                                            R"(<MeasuredXYZ Color="Black">26|27|28</MeasuredXYZ>)"
                                            R"(<GreenTargetCurve Type="Lut">50|51</GreenTargetCurve>)"
                                            R"(<MeasuredXYZ Color="Limited109Blue">35|36|37</MeasuredXYZ>)"
                                            R"(<MeasuredXYZ Color="White">23|24|25</MeasuredXYZ>)"
                                            R"(<MeasuredXYZ Color="Limited109Red">29|30|31</MeasuredXYZ>)"
                                            R"(<MeasuredXYZ Color="Red">14|15|16</MeasuredXYZ>)"
                                            "<Description>description 13</Description>"
                                            R"(<MeasuredXYZ Color="Green">17|18|19</MeasuredXYZ>)"
                                            R"(<RedTargetCurve Type="Formula">44</RedTargetCurve>)"
                                            R"(<MeasuredXYZ Color="Blue">20|21|22</MeasuredXYZ>)"
                                            R"(<MeasuredXYZ Color="Limited109Green">32|33|34</MeasuredXYZ>)"
                                            "</ProfileData>");
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<ProfileData>()));
}

TEST(ProfileData, SecondParseKeepsWhatTheDocumentLacksMemberByMember) {
    ProfileData record = filled<ProfileData>();
    ASSERT_TRUE(record.parseXMLString(R"(<ProfileData Version="11" MinorVersion="12">)"
                                      R"(<MeasuredXYZ Color="Green">7|8|9</MeasuredXYZ>)"
                                      R"(<MeasuredXYZ Color="Limited109Blue">5</MeasuredXYZ>)"
                                      R"(<RedTargetCurve Type="Lut">1|2</RedTargetCurve>)"
                                      R"(<BlueTargetCurve Type="Formula">53</BlueTargetCurve></ProfileData>)"));
    ProfileData expected = filled<ProfileData>();
    expected.description.hasValue = false;
    expected.measuredXYZ.value.green = {7, 8, 9};
    expected.measuredXYZLimited109.value.blue = {5};
    expected.measuredXYZLimited109.hasValue = false;
    expected.redTargetCurve.set({"Lut", 44, {1, 2}});
    expected.greenTargetCurve.hasValue = false;
    expected.blueTargetCurve.value.type = "Formula";
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ProfileData, FailedParseLeavesFlagsThatNoParseWouldHaveSet) {
    ProfileData record;
    record.measuredXYZ.hasValue = true;
    record.measuredXYZLimited109 = {filled<ProfileData>().measuredXYZLimited109.value, false};
    record.redTargetCurve.value.type = "Lut";
    const std::string before = describe(record);
    for (const char* text : {"<profileData/>", "<Profile/>", "<ProfileData>", ""}) {
        EXPECT_FALSE(record.parseXMLString(text));
        EXPECT_EQ(describe(record), before) << text;
    }
}

TEST(ProfileData, CopiesAreDeep) {
    const auto original = filled<ProfileData>();
    ProfileData copy = original;
    copy.measuredXYZ.value.red[0] = 99;
    copy.measuredXYZLimited109.value.black.clear();
    copy.greenTargetCurve.value.lut.push_back(99);
    copy.blueTargetCurve.value.type += "9";
    EXPECT_EQ(describe(original), describe(filled<ProfileData>()));
}

}  // namespace
}  // namespace lv::test
