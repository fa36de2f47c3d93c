#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfileData.h>

#include <array>
#include <string>
#include <vector>

// The elements "MeasuredXYZ": nine colours in two sets, whose flags are computed from what the record then holds.

namespace lv::test {
namespace {

using Stored = std::vector<unsigned int>;
using Set = ProfileData::xyz_set_t;

struct Colour {
    std::string text;
    property<Set> ProfileData::*set;
    Stored Set::*stored;
};

const std::array everyColour = {Colour{"Red", &ProfileData::measuredXYZ, &Set::red},
                                Colour{"Green", &ProfileData::measuredXYZ, &Set::green},
                                Colour{"Blue", &ProfileData::measuredXYZ, &Set::blue},
                                Colour{"White", &ProfileData::measuredXYZ, &Set::white},
                                Colour{"Black", &ProfileData::measuredXYZ, &Set::black},
                                Colour{"Limited109Red", &ProfileData::measuredXYZLimited109, &Set::red},
                                Colour{"Limited109Green", &ProfileData::measuredXYZLimited109, &Set::green},
                                Colour{"Limited109Blue", &ProfileData::measuredXYZLimited109, &Set::blue},
                                Colour{"Limited109White", &ProfileData::measuredXYZLimited109, &Set::white}};

const std::array everySet = {&ProfileData::measuredXYZ, &ProfileData::measuredXYZLimited109};

std::string measured(const std::string& color, const std::string& text) {
    return "<MeasuredXYZ Color=\"" + color + "\">" + text + "</MeasuredXYZ>";
}

std::string empty(const std::string& color) {
    return "<MeasuredXYZ Color=\"" + color + "\"/>";
}

/// The five colours that are written always, without text.
std::string emptyPanel() {
    return empty("Red") + empty("Green") + empty("Blue") + empty("White") + empty("Black");
}

std::string writtenColours(const std::string& colours) {
    return written<ProfileData>(colours + "<RedTargetCurve/><GreenTargetCurve/><BlueTargetCurve/>");
}

/// A record of nine complete colours with both flags as given and nothing else.
ProfileData complete(bool flag) {
    ProfileData record;
    record.measuredXYZ = {filled<ProfileData>().measuredXYZ.value, flag};
    record.measuredXYZLimited109 = {filled<ProfileData>().measuredXYZLimited109.value, flag};
    record.measuredXYZLimited109.value.black.clear();
    return record;
}

/// The elements of all nine colours; one of them holds this text.
std::string allColoursBut(const std::string& color, const std::string& text) {
    std::string children;
    for (const auto& each : everyColour) {
        children += measured(each.text, each.text == color ? text : "1|2|3");
    }
    return children;
}

TEST(ProfileDataMeasured, EachColourIsReadIntoItsOwnVectorAndSetsNoFlagAlone) {
    for (const auto& [color, set, stored] : everyColour) {
        ProfileData expected;
        (expected.*set).value.*stored = {95047000, 100000000, 4294967295U};
        const auto record = afterReading(ProfileData(), measured(color, "95047000|100000000|4294967295"));
        EXPECT_EQ(describe(record), describe(expected)) << color;
    }
}

TEST(ProfileDataMeasured, CompleteSetsAreFlagged) {
    const auto record = afterReading(ProfileData(), allColoursBut("none", ""));
    EXPECT_TRUE(record.measuredXYZ.hasValue);
    EXPECT_TRUE(record.measuredXYZLimited109.hasValue);
}

TEST(ProfileDataMeasured, RedOfTwoNumbersLeavesTheSetUnsetEvenWhenTheOtherFourAreComplete) {
    const auto record = afterReading(ProfileData(), allColoursBut("Red", "1|2"));
    EXPECT_FALSE(record.measuredXYZ.hasValue);
    EXPECT_EQ(record.measuredXYZ.value.red, (Stored{1, 2}));
    EXPECT_EQ(record.measuredXYZ.value.black, (Stored{1, 2, 3}));
}

TEST(ProfileDataMeasured, EachColourOfAnotherLengthClearsTheFlagOfItsSetAndOfNoOther) {
    for (const auto& [color, set, stored] : everyColour) {
        for (const char* text : {"", "|", "1", "1|2", "1|2|3|4"}) {
            const auto record = afterReading(ProfileData(), allColoursBut(color, text));
            for (const auto other : everySet) {
                EXPECT_EQ((record.*other).hasValue, other != set) << color << ' ' << text;
            }
        }
        EXPECT_FALSE((afterReading(complete(true), measured(color, "1|2")).*set).hasValue) << color;
    }
}

TEST(ProfileDataMeasured, Limited109NeedsNoBlack) {
    const auto record =
        afterReading(ProfileData(), measured("Limited109White", "1|2|3") + measured("Limited109Red", "4|5|6") +
                                        measured("Limited109Green", "7|8|9") + measured("Limited109Blue", "10|11|12"));
    ProfileData expected;
    expected.measuredXYZLimited109.set({{4, 5, 6}, {7, 8, 9}, {10, 11, 12}, {1, 2, 3}, {}});
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ProfileDataMeasured, Limited109IsFlaggedRegardlessOfItsBlack) {
    for (const Stored& black : {Stored{}, Stored{1, 2}, Stored{1, 2, 3}}) {
        ProfileData record = complete(false);
        record.measuredXYZLimited109.value.black = black;
        EXPECT_TRUE(afterReading(record, "").measuredXYZLimited109.hasValue);
        EXPECT_EQ(afterReading(record, "").measuredXYZLimited109.value.black, black);
    }
}

TEST(ProfileDataMeasured, DocumentWithoutAnyLeavesCompleteVectorsInPlaceAndSetsTheFlagsAgain) {
    for (const bool flag : {false, true}) {
        EXPECT_EQ(describe(afterReading(complete(flag), "")), describe(complete(true)));
    }
}

TEST(ProfileDataMeasured, FlagThatTheCallerSetOverIncompleteVectorsIsClearedByParsing) {
    ProfileData record;
    record.measuredXYZ.set({{1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {}});
    record.measuredXYZLimited109.hasValue = true;
    const ProfileData back = afterReading(record, "");
    EXPECT_FALSE(back.measuredXYZ.hasValue);
    EXPECT_FALSE(back.measuredXYZLimited109.hasValue);
    EXPECT_EQ(describe(back.measuredXYZ.value), describe(record.measuredXYZ.value));
}

TEST(ProfileDataMeasured, LastColourThatASetLackedCompletesItFromAnotherDocument) {
    for (const auto& [color, set, stored] : everyColour) {
        ProfileData record = complete(false);
        ((record.*set).value.*stored).clear();
        EXPECT_FALSE((afterReading(record, "").*set).hasValue) << color;
        EXPECT_TRUE((afterReading(record, measured(color, "7|8|9")).*set).hasValue) << color;
    }
}

TEST(ProfileDataMeasured, ElementWithoutATextLeavesItsVector) {
    for (const auto& colour : everyColour) {
        for (const std::string& element : {empty(colour.text), measured(colour.text, ""), measured(colour.text, " \n"),
                                           measured(colour.text, "<b>1|2|3</b>")}) {
            EXPECT_EQ(describe(afterReading(complete(false), element)), describe(complete(true))) << element;
        }
    }
}

TEST(ProfileDataMeasured, SeparatorsAloneEmptyTheVector) {
    for (const auto& [color, set, stored] : everyColour) {
        ProfileData expected = complete(true);
        (expected.*set).hasValue = false;
        ((expected.*set).value.*stored).clear();
        EXPECT_EQ(describe(afterReading(complete(true), measured(color, "||"))), describe(expected)) << color;
    }
}

TEST(ProfileDataMeasured, LaterOfTwoElementsOfAColourWinsUnlessItIsEmpty) {
    for (const auto& [color, set, stored] : everyColour) {
        const std::string children = measured(color, "1|2|3") + measured(color, "4|5") + empty(color);
        EXPECT_EQ((afterReading(ProfileData(), children).*set).value.*stored, (Stored{4, 5})) << color;
    }
}

TEST(ProfileDataMeasured, OtherColoursAreSkipped) {
    for (const char* attribute :
         {"", R"(Color="")", R"(Color="red")", R"(Color="RED")", R"(Color="Cyan")", R"(Color="Red ")", R"(color="Red")",
          R"(Type="Red")", R"(Color="Limited109Black")", R"(Color="limited109Red")", R"(Color="Limited109")"}) {
        const std::string element = "<MeasuredXYZ " + std::string(attribute) + ">7|8|9</MeasuredXYZ>";
        EXPECT_EQ(describe(afterReading(ProfileData(), element)), describe(ProfileData())) << attribute;
        EXPECT_EQ(describe(afterReading(complete(true), element)), describe(complete(true))) << attribute;
    }
}

TEST(ProfileDataMeasured, ElementsOfOtherNamesAndInOtherPlacesAreNotRead) {
    const std::string red = measured("Red", "1|2|3");
    for (const std::string& children :
         {std::string(R"(<measuredXYZ Color="Red">1|2|3</measuredXYZ>)"), "<Other>" + red + "</Other>",
          "<RedTargetCurve>" + red + "</RedTargetCurve>", "<MeasuredXYZ>" + red + "</MeasuredXYZ>"}) {
        EXPECT_TRUE(afterReading(ProfileData(), children).measuredXYZ.value.red.empty()) << children;
    }
}

TEST(ProfileDataMeasured, NumbersAreUnsignedAndReadWithoutEverFailing) {
    const auto record = afterReading(ProfileData(), measured("Green", "|-1||99999999999|x|"));
    EXPECT_EQ(record.measuredXYZ.value.green, (Stored{4294967295U, 4294967295U, 0}));
}

TEST(ProfileDataMeasured, UnsetSetsWriteFiveEmptyColoursRegardlessOfTheirValues) {
    EXPECT_EQ(compact(complete(false)), writtenColours(emptyPanel()));
}

TEST(ProfileDataMeasured, PanelAloneIsWrittenWithFiveColours) {
    ProfileData record = complete(true);
    record.measuredXYZLimited109.hasValue = false;
    EXPECT_EQ(compact(record), writtenColours(measured("Red", "14|15|16") + measured("Green", "17|18|19") +
                                              measured("Blue", "20|21|22") + measured("White", "23|24|25") +
                                              measured("Black", "26|27|28")));
}

TEST(ProfileDataMeasured, Limited109AloneIsWrittenWithFourColoursAfterTheEmptyPanel) {
    ProfileData record = complete(true);
    record.measuredXYZ.hasValue = false;
    record.measuredXYZLimited109.value.black = {1, 2, 3};
    EXPECT_EQ(compact(record),
              writtenColours(emptyPanel() + measured("Limited109Red", "29|30|31") +
                             measured("Limited109Green", "32|33|34") + measured("Limited109Blue", "35|36|37") +
                             measured("Limited109White", "38|39|40")));
}

TEST(ProfileDataMeasured, SetsThatTheCallerFlaggedAreWrittenWithTheVectorsTheyHave) {
    ProfileData record;
    record.measuredXYZ.set({{}, {1}, {1, 2}, {1, 2, 3}, {1, 2, 3, 4}});
    record.measuredXYZLimited109.set({{1, 2, 3, 4}, {1, 2}, {}, {0}, {9}});
    EXPECT_EQ(compact(record),
              writtenColours(measured("Red", "") + measured("Green", "1") + measured("Blue", "1|2") +
                             measured("White", "1|2|3") + measured("Black", "1|2|3|4") +
                             measured("Limited109Red", "1|2|3|4") + measured("Limited109Green", "1|2") +
                             measured("Limited109Blue", "") + measured("Limited109White", "0")));
}

}  // namespace
}  // namespace lv::test
