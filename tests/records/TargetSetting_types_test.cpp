#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// What the attribute "Type" of levels, white point and standards decides.

namespace lv::test {
namespace {

/// Every text that any of these elements tells apart, and texts that none does.
const std::vector<std::string> everyType = {
    "",           "Unknown",  "Value",    "value",    "Temperature", "temperature", "Coordinate",
    "coordinate", "Standard", "standard", "STANDARD", "Standard ",   "V7",          "SyncSignal"};

/// An element with all its children.
struct Tagged {
    std::string name;
    std::string children;

    /// What reading them sets, and what reading the type alone sets.
    std::function<void(TargetSetting&, const std::string& type)> set;
    std::function<void(TargetSetting&, const std::string& type)> setType;

    /// Which of them are written for a type; none for any other.
    std::map<std::string, std::string> childrenOfType;
};

Tagged levelElement(const std::string& name, property<TargetSetting::level_t> TargetSetting::*member) {
    const std::string value = "<Value>81</Value>";
    return {name,
            value,
            [member](auto& record, auto& type) {
                (record.*member).set({type, 81});
            },
            [member](auto& record, auto& type) {
                (record.*member).set({type, 0});
            },
            {{"Value", value}}};
}

Tagged standardElement(const std::string& name, property<TargetSetting::standard_t> TargetSetting::*member) {
    const std::string standard = "<Standard>BT 2020</Standard>";
    return {name,
            standard,
            [member](auto& record, auto& type) {
                (record.*member).set({type, "BT 2020"});
            },
            [member](auto& record, auto& type) {
                (record.*member).set({type, ""});
            },
            {{"Standard", standard}}};
}

Tagged whitePointElement() {
    const std::string temperature = "<Temperature>5000</Temperature>";
    const std::string coordinate = "<x>3457</x><y>3585</y>";
    return {"WhitePoint",
            temperature + coordinate,
            [](auto& record, auto& type) {
                record.whitePoint.set({type, 5000, 3457, 3585});
            },
            [](auto& record, auto& type) {
                record.whitePoint.set({type, 0, 0, 0});
            },
            {{"Temperature", temperature}, {"Coordinate", coordinate}}};
}

const std::vector<Tagged> everyElement = {levelElement("Brightness", &TargetSetting::brightness),
                                          levelElement("BlackLevel", &TargetSetting::blackLevel),
                                          whitePointElement(),
                                          standardElement("WhitePointV7", &TargetSetting::whitePointV7),
                                          standardElement("GammaV7", &TargetSetting::gammaV7),
                                          standardElement("GamutV7", &TargetSetting::gamutV7)};

std::string childrenWritten(const Tagged& tagged, const std::string& type) {
    const auto found = tagged.childrenOfType.find(type);
    return found == tagged.childrenOfType.end() ? "" : found->second;
}

TEST(TargetSettingTypes, EachTypeWritesItsOwnChildrenAndNoOthers) {
    for (const Tagged& tagged : everyElement) {
        for (const std::string& type : everyType) {
            TargetSetting record;
            tagged.set(record, type);
            EXPECT_EQ(compact(record),
                      written<TargetSetting>(elementOfType(tagged.name, type, childrenWritten(tagged, type))));
        }
    }
}

TEST(TargetSettingTypes, EveryTypeReadsAllChildrenAndWritesBackOnlyItsOwn) {
    for (const Tagged& tagged : everyElement) {
        for (const std::string& type : everyType) {
            TargetSetting expected;
            tagged.set(expected, type);
            const auto record = parsedFrom<TargetSetting>(elementOfType(tagged.name, type, tagged.children));
            EXPECT_EQ(describe(record), describe(expected)) << tagged.name << type;
            EXPECT_EQ(compact(record),
                      written<TargetSetting>(elementOfType(tagged.name, type, childrenWritten(tagged, type))));
        }
    }
}

TEST(TargetSettingTypes, EveryTypeAloneSetsTheFlag) {
    for (const Tagged& tagged : everyElement) {
        for (const std::string& type : everyType) {
            TargetSetting expected;
            tagged.setType(expected, type);
            EXPECT_EQ(describe(parsedFrom<TargetSetting>(elementOfType(tagged.name, type, ""))), describe(expected))
                << tagged.name << type;
        }
    }
}

TEST(TargetSettingTypes, ElementWithoutATypeIsReadButNotSetAndIsNotWrittenBack) {
    for (const Tagged& tagged : everyElement) {
        TargetSetting expected;
        tagged.set(expected, "");
        const auto record = parsedFrom<TargetSetting>('<' + tagged.name + " type=\"Value\">" + tagged.children + "</" +
                                                      tagged.name + '>');
        EXPECT_EQ(describe(record), describe(withClearFlags(expected))) << tagged.name;
        EXPECT_EQ(compact(record), compact(TargetSetting()));
    }
}

TEST(TargetSettingTypes, TypeAloneLeavesTheEarlierValues) {
    for (const Tagged& tagged : everyElement) {
        for (const std::string& type : everyType) {
            TargetSetting record;
            tagged.set(record, "earlier");
            ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>(elementOfType(tagged.name, type, ""))));
            TargetSetting expected;
            tagged.set(expected, type);
            EXPECT_EQ(describe(record), describe(expected)) << tagged.name << type;
        }
    }
}

TEST(TargetSettingTypes, MissingElementKeepsTypeAndValuesAndClearsTheFlag) {
    for (const Tagged& tagged : everyElement) {
        TargetSetting record;
        tagged.set(record, "Value");
        const TargetSetting earlier = record;
        ASSERT_TRUE(record.parseXMLString("<TargetSetting/>"));
        EXPECT_EQ(describe(record), describe(withClearFlags(earlier)));
        EXPECT_EQ(compact(record), compact(TargetSetting()));
    }
}

TEST(TargetSettingTypes, ChildrenOutsideTheFirstElementOfTheirNameAreNotRead) {
    for (const Tagged& tagged : everyElement) {
        TargetSetting expected;
        tagged.setType(expected, "Value");
        const std::string first = elementOfType(tagged.name, "Value", "");
        EXPECT_EQ(describe(parsedFrom<TargetSetting>(first + tagged.children)), describe(expected));
        EXPECT_EQ(describe(parsedFrom<TargetSetting>(first + elementOfType(tagged.name, "x", tagged.children))),
                  describe(expected));
    }
}

TEST(TargetSettingTypes, BrightnessOfAnotherTypeThanValueIsWrittenWithoutAChildAndReadWithWhatItHolds) {
    TargetSetting record;
    record.brightness.set({"Max", 300});
    EXPECT_EQ(compact(record), written<TargetSetting>(R"(<Brightness Type="Max"/>)"));
    EXPECT_EQ(parsed<TargetSetting>(compact(record)).brightness.value.value, 0U);
    const auto back = parsedFrom<TargetSetting>(R"(<Brightness Type="Max"><Value>301</Value></Brightness>)");
    EXPECT_TRUE(back.brightness.hasValue);
    EXPECT_EQ(back.brightness.value.value, 301U);
}

TEST(TargetSettingTypes, WhitePointByCoordinateSurvivesWritingAndParsing) {
    TargetSetting record;
    record.whitePoint.set({"Coordinate", 0, 3127, 3290});
    const auto back = parsed<TargetSetting>(compact(record));
    EXPECT_EQ(back.whitePoint.value.x, 3127U);
    EXPECT_EQ(back.whitePoint.value.y, 3290U);
    EXPECT_EQ(back.whitePoint.value.coordinate_x().x, 0.3127);
    EXPECT_EQ(back.whitePoint.value.coordinate_x().y, 0.329);
}

TEST(TargetSettingTypes, NoElementNamedCoordinateIsReadOrWritten) {
    TargetSetting expected;
    expected.whitePoint.set({"Coordinate", 0, 0, 0});
    const auto record = parsedFrom<TargetSetting>(
        R"(<WhitePoint Type="Coordinate"><Coordinate><x>1</x><y>2</y></Coordinate></WhitePoint>)");
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record),
              written<TargetSetting>(R"(<WhitePoint Type="Coordinate"><x>0</x><y>0</y></WhitePoint>)"));
}

TEST(TargetSettingTypes, EachHalfOfAWhitePointIsReadAlone) {
    TargetSetting record = filled<TargetSetting>();
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>(R"(<WhitePoint Type="a"><x>1</x></WhitePoint>)")));
    EXPECT_EQ(describe(record.whitePoint.value), describe(TargetSetting::white_point_t{"a", 20, 1, 22}));
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>("<WhitePoint><y>2</y><X>3</X></WhitePoint>")));
    EXPECT_EQ(describe(record.whitePoint.value), describe(TargetSetting::white_point_t{"a", 20, 1, 2}));
    EXPECT_FALSE(record.whitePoint.hasValue);
}

TEST(TargetSettingTypes, NumbersAreReadAsUnsignedAndAnEmptyOneCountsAsMissing) {
    const auto read = [](const std::string& text) {
        return parsedFrom<TargetSetting>("<Brightness Type=\"Value\"><Value>" + text + "</Value></Brightness>")
            .brightness.value.value;
    };
    EXPECT_EQ(read("-1"), 4294967295U);
    EXPECT_EQ(read("99999999999"), 4294967295U);
    EXPECT_EQ(read(" 12.9"), 12U);
    TargetSetting record = filled<TargetSetting>();
    ASSERT_TRUE(record.parseXMLString(
        documentOf<TargetSetting>("<Brightness><Value/></Brightness><BlackLevel><Value>abc</Value></BlackLevel>")));
    EXPECT_EQ(record.brightness.value.value, 16U);
    EXPECT_EQ(record.blackLevel.value.value, 0U);
}

TEST(TargetSettingTypes, EmptyStandardIsWrittenAsEmptyTextAndLeavesTheEarlierOneWhenRead) {
    TargetSetting record;
    record.gammaV7.set({"Standard", ""});
    const std::string text = R"(<GammaV7 Type="Standard"><Standard></Standard></GammaV7>)";
    EXPECT_EQ(compact(record), written<TargetSetting>(text));
    record.gammaV7.set({"Standard", "sRGB"});
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>(text)));
    EXPECT_EQ(record.gammaV7.value.standard, "sRGB");
}

}  // namespace
}  // namespace lv::test
