#include <tests/support/ParsedDocument.h>
#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

using Gamut = TargetSetting::gamut_t;
using Primary = Gamut::coordinate;

struct Channel {
    std::string name;
    Primary Gamut::*member;
};

const std::array everyChannel = {Channel{"Red", &Gamut::red}, Channel{"Green", &Gamut::green},
                                 Channel{"Blue", &Gamut::blue}};
const std::array everyCoordinate = {&Primary::x, &Primary::y};

const Gamut wide = {{7080, 2920}, {1700, 7970}, {1310, 460}, "BT.2020", 2};

const std::string primariesText = R"(<Red Type="Coordinate"><x>7080</x><y>2920</y></Red>)"
                                  R"(<Green Type="Coordinate"><x>1700</x><y>7970</y></Green>)"
                                  R"(<Blue Type="Coordinate"><x>1310</x><y>460</y></Blue>)";
const std::string profileText = "<ProfileName>BT.2020</ProfileName>";
const std::string clippingText = "<GamutClipping><Value>2</Value></GamutClipping>";

std::string writtenGamut(const std::string& children) {
    return written<TargetSetting>(element("Gamut", children));
}

std::string gamutDocument(const std::string& children) {
    return documentOf<TargetSetting>(element("Gamut", children));
}

TargetSetting withGamut(const Gamut& gamut) {
    TargetSetting record;
    record.gamut.set(gamut);
    return record;
}

TEST(TargetSettingGamut, GamutOfSixCoordinatesIsWrittenWithItsPrimaries) {
    EXPECT_FALSE(wide.isNative());
    EXPECT_EQ(compact(withGamut(wide)), writtenGamut(primariesText + profileText + clippingText));
}

TEST(TargetSettingGamut, SmallestCoordinatesAreNotNative) {
    const Gamut least = {{1, 1}, {1, 1}, {1, 1}, "", 0};
    EXPECT_FALSE(least.isNative());
    EXPECT_NE(compact(withGamut(least)).find("<Red"), std::string::npos);
}

TEST(TargetSettingGamut, GamutWithAnyOneCoordinateOf0IsNativeAndWrittenWithoutPrimaries) {
    for (const auto& [name, member] : everyChannel) {
        for (const auto coordinate : everyCoordinate) {
            Gamut gamut = wide;
            gamut.*member.*coordinate = 0;
            EXPECT_TRUE(gamut.isNative()) << name;
            EXPECT_EQ(compact(withGamut(gamut)), writtenGamut(profileText + clippingText));
        }
    }
}

TEST(TargetSettingGamut, GamutWithOneCoordinateAloneIsNative) {
    EXPECT_TRUE(Gamut().isNative());
    for (const auto& [name, member] : everyChannel) {
        for (const auto coordinate : everyCoordinate) {
            Gamut gamut;
            gamut.*member.*coordinate = 3000;
            EXPECT_TRUE(gamut.isNative()) << name;
        }
    }
}

TEST(TargetSettingGamut, ProfileNameIsWrittenUnlessItIsEmptyAndTheClippingAlways) {
    Gamut gamut = wide;
    gamut.profileName = "";
    EXPECT_EQ(compact(withGamut(gamut)), writtenGamut(primariesText + clippingText));
    EXPECT_EQ(compact(withGamut(Gamut())), writtenGamut("<GamutClipping><Value>0</Value></GamutClipping>"));
}

TEST(TargetSettingGamut, GamutIsSetByItsElementAlone) {
    TargetSetting record = filled<TargetSetting>();
    const Gamut before = record.gamut.value;
    record.gamut.hasValue = false;
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>("<Gamut/>")));
    EXPECT_TRUE(record.gamut.hasValue);
    EXPECT_EQ(describe(record.gamut.value), describe(before));
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>("<gamut/><GamutV7 Type=''/>")));
    EXPECT_FALSE(record.gamut.hasValue);
    EXPECT_EQ(describe(record.gamut.value), describe(before));
}

TEST(TargetSettingGamut, EachCoordinateIsReadAloneAndLeavesTheOthers) {
    for (const auto& [name, member] : everyChannel) {
        for (const auto coordinate : everyCoordinate) {
            const std::string child = coordinate == &Primary::x ? "<x>5</x>" : "<y>5</y>";
            TargetSetting record = withGamut(wide);
            ASSERT_TRUE(record.parseXMLString(gamutDocument('<' + name + '>' + child + "</" + name + '>')));
            Gamut expected = wide;
            expected.*member.*coordinate = 5;
            EXPECT_EQ(describe(record), describe(withGamut(expected))) << name << child;
        }
    }
}

TEST(TargetSettingGamut, TypeOfAPrimaryIsIgnored) {
    for (const char* attribute : {"", R"( Type="")", R"( Type="Coordinate")", R"( Type="Unknown")", R"( type="x")"}) {
        const std::string text = std::string("<Red") + attribute + "><x>1</x><y>2</y></Red>";
        const Gamut expected = {{1, 2}, {}, {}, "", 0};
        EXPECT_EQ(describe(parsed<TargetSetting>(gamutDocument(text))), describe(withGamut(expected))) << text;
    }
}

TEST(TargetSettingGamut, NativeGamutKeepsWhatWasReadButWritesNoPrimaries) {
    const auto record = parsed<TargetSetting>(gamutDocument("<Red><x>6400</x><y>3300</y></Red>" + profileText));
    EXPECT_EQ(describe(record), describe(withGamut({{6400, 3300}, {}, {}, "BT.2020", 0})));
    EXPECT_EQ(compact(record), writtenGamut(profileText + "<GamutClipping><Value>0</Value></GamutClipping>"));
}

TEST(TargetSettingGamut, ClippingIsReadFromTheValueInsideItOnly) {
    for (const char* text :
         {"<GamutClipping/>", "<GamutClipping>7</GamutClipping>", "<Value>7</Value>", R"(<GamutClipping Value="7"/>)",
          "<GamutClipping><Value/></GamutClipping>", "<GamutClipping><value>7</value></GamutClipping>"}) {
        TargetSetting record = withGamut(wide);
        ASSERT_TRUE(record.parseXMLString(gamutDocument(text)));
        EXPECT_EQ(describe(record), describe(withGamut(wide))) << text;
    }
    const auto record = parsed<TargetSetting>(gamutDocument("<GamutClipping><Value>-1</Value></GamutClipping>"));
    EXPECT_EQ(record.gamut.value.gamutClipping, 4294967295U);
}

TEST(TargetSettingGamut, ChildrenOutsideTheGamutAreNotRead) {
    const auto record = parsedFrom<TargetSetting>("<Gamut/>" + primariesText + profileText + clippingText);
    EXPECT_EQ(describe(record), describe(withGamut(Gamut())));
}

TEST(TargetSettingGamut, ParsingOnePrimaryReadsTheNamedChildAndReturnsIt) {
    const ParsedDocument document("<A><Other/><Any Type='?'><x>11</x><y>12</y></Any><Any><x>13</x></Any></A>");
    XMLElement parent = document.root();
    Primary primary;
    const XMLElement found = TargetSetting().parseGamutCoordinateElement(parent, "Any", primary);
    EXPECT_EQ(found.get(), parent.getElement("Any").get());
    EXPECT_EQ(describe(primary), describe(Primary{11, 12}));
}

TEST(TargetSettingGamut, ParsingAPrimaryThatIsMissingReturnsAnInvalidElementAndLeavesTheCoordinates) {
    const ParsedDocument document("<A><Any><x>11</x></Any></A>");
    for (XMLElement parent : {document.root(), XMLElement()}) {
        Primary primary = {3, 4};
        EXPECT_FALSE(TargetSetting().parseGamutCoordinateElement(parent, "any", primary).isValid());
        EXPECT_EQ(describe(primary), describe(Primary{3, 4}));
    }
}

TEST(TargetSettingGamut, AppendingOnePrimaryReturnsTheNewLastChildZerosIncluded) {
    const ParsedDocument document("<A><Any/></A>");
    XMLElement parent = document.root();
    const XMLElement appended = TargetSetting().appendGamutCoordinateElement(parent, "Any", {0, 4294967295U});
    EXPECT_EQ(appended.get(), parent.getElements("Any").at(1).get());
    EXPECT_EQ(document.text(), R"(<A><Any/><Any Type="Coordinate"><x>0</x><y>4294967295</y></Any></A>)");
}

TEST(TargetSettingGamut, AppendingAPrimaryToAnInvalidParentReturnsAnInvalidElement) {
    XMLElement nothing;
    EXPECT_FALSE(TargetSetting().appendGamutCoordinateElement(nothing, "Red", {1, 2}).isValid());
}

}  // namespace
}  // namespace lv::test
