#include <tests/support/ParsedDocument.h>
#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <array>
#include <string>
#include <type_traits>

namespace lv::test {
namespace {

using Settings = TargetSetting::advanced_settings_t;
using Colours = Settings::advanced_settings_six_colors_t;
using Tint = TargetSetting::black_level_t;
static_assert(std::is_same_v<Settings::black_level_t, Tint>, "the type goes by both names");

struct Number {
    std::string name;
    property<int> Settings::*member;
};

const std::array everyNumber = {Number{"hue", &Settings::hue}, Number{"saturation", &Settings::saturation}};

struct TintMember {
    std::string name;
    int Tint::*member;
};

const std::array everyTint = {TintMember{"red", &Tint::red}, TintMember{"green", &Tint::green},
                              TintMember{"blue", &Tint::blue}};

struct Group {
    std::string name;
    property<Colours> Settings::*member;
};

const std::array everyGroup = {Group{"hue", &Settings::sixColorsHue},
                               Group{"saturation", &Settings::sixColorsSaturation},
                               Group{"lightness", &Settings::sixColorsLightness}};

struct ColourMember {
    std::string name;
    int Colours::*member;
};

const std::array everyColour = {ColourMember{"red", &Colours::red},         ColourMember{"green", &Colours::green},
                                ColourMember{"blue", &Colours::blue},       ColourMember{"cyan", &Colours::cyan},
                                ColourMember{"magenta", &Colours::magenta}, ColourMember{"yellow", &Colours::yellow}};

std::string coloursText(const Colours& colours) {
    std::string text;
    for (const auto& [name, member] : everyColour) {
        text += elementOrEmptyTag(name, std::to_string(colours.*member));
    }
    return text;
}

std::string writtenSettings(const std::string& children) {
    return written<TargetSetting>(elementOrEmptyTag("AdvancedSettings", children));
}

TargetSetting withSettings(const Settings& settings) {
    TargetSetting record;
    record.advancedSettings.set(settings);
    return record;
}

Settings filledSettings() {
    return filled<TargetSetting>().advancedSettings.value;
}

Settings filledWithClearFlags() {
    return withClearFlags(filledSettings());
}

/// Settings filled before that have read these children.
Settings filledHavingRead(const std::string& children) {
    TargetSetting record = withSettings(filledSettings());
    EXPECT_TRUE(record.parseXMLString(documentOf<TargetSetting>(elementOrEmptyTag("AdvancedSettings", children))));
    EXPECT_TRUE(record.advancedSettings.hasValue);
    return record.advancedSettings.value;
}

TEST(TargetSettingAdvancedSettings, SettingsWithNothingSetAreAnEmptyElementAndComeBack) {
    const TargetSetting record = withSettings(Settings());
    EXPECT_EQ(compact(record), writtenSettings(""));
    const auto back = parsed<TargetSetting>(compact(record));
    EXPECT_TRUE(back.advancedSettings.hasValue);
    EXPECT_EQ(describe(back.advancedSettings.value), describe(Settings()));
}

TEST(TargetSettingAdvancedSettings, ValuesWithClearFlagsAreNotWritten) {
    EXPECT_EQ(compact(withSettings(filledWithClearFlags())), writtenSettings(""));
}

TEST(TargetSettingAdvancedSettings, EachNumberIsWrittenAndReadAloneWithItsSign) {
    for (const auto& [name, member] : everyNumber) {
        for (const int value : {0, -5, 5, -2147483647 - 1, 2147483647}) {
            Settings settings;
            (settings.*member).set(value);
            EXPECT_EQ(compact(withSettings(settings)), writtenSettings(elementOrEmptyTag(name, std::to_string(value))));
            Settings expected = filledWithClearFlags();
            (expected.*member).set(value);
            EXPECT_EQ(describe(filledHavingRead(elementOrEmptyTag(name, std::to_string(value)))), describe(expected));
        }
    }
}

TEST(TargetSettingAdvancedSettings, EmptyNumberCountsAsMissingAndABadOneAs0) {
    for (const auto& [name, member] : everyNumber) {
        EXPECT_EQ(describe(filledHavingRead('<' + name + "/>")), describe(filledWithClearFlags())) << name;
        Settings expected = filledWithClearFlags();
        (expected.*member).set(0);
        EXPECT_EQ(describe(filledHavingRead(elementOrEmptyTag(name, "abc"))), describe(expected)) << name;
    }
}

TEST(TargetSettingAdvancedSettings, BlackLevelIsWrittenWithAllThreeColours) {
    Settings settings;
    settings.blackLevel.set({0, -7, 0});
    EXPECT_EQ(compact(withSettings(settings)),
              writtenSettings("<blackLevel><red>0</red><green>-7</green><blue>0</blue></blackLevel>"));
}

TEST(TargetSettingAdvancedSettings, EachColourOfTheBlackLevelAloneSetsItAndLeavesTheOthers) {
    for (const auto& [name, member] : everyTint) {
        Settings expected = filledWithClearFlags();
        expected.blackLevel.hasValue = true;
        expected.blackLevel.value.*member = -99;
        EXPECT_EQ(describe(filledHavingRead(elementOrEmptyTag("blackLevel", elementOrEmptyTag(name, "-99")))),
                  describe(expected));
        EXPECT_EQ(describe(filledHavingRead(elementOrEmptyTag("blackLevel", '<' + name + "/>"))),
                  describe(filledWithClearFlags()));
        EXPECT_EQ(describe(filledHavingRead(elementOrEmptyTag(name, "-99"))), describe(filledWithClearFlags()));
    }
}

TEST(TargetSettingAdvancedSettings, EachGroupAloneIsWrittenInsideSixColorsWithAllSixColoursZerosIncluded) {
    for (const auto& [name, member] : everyGroup) {
        for (const Colours& colours : {Colours(), Colours{-1, 2, -3, 4, -5, 6}}) {
            Settings settings;
            (settings.*member).set(colours);
            EXPECT_EQ(compact(withSettings(settings)),
                      writtenSettings(elementOrEmptyTag("sixColors", elementOrEmptyTag(name, coloursText(colours)))));
        }
    }
}

TEST(TargetSettingAdvancedSettings, OnlySixColorsLightnessWritesSixColorsWithLightnessAlone) {
    Settings settings;
    settings.sixColorsLightness.set({1, 0, 0, 0, 0, 0});
    EXPECT_EQ(compact(withSettings(settings)),
              writtenSettings("<sixColors><lightness><red>1</red><green>0</green><blue>0</blue><cyan>0</cyan>"
                              "<magenta>0</magenta><yellow>0</yellow></lightness></sixColors>"));
}

TEST(TargetSettingAdvancedSettings, GroupLeftOutIsLeftOutAlone) {
    for (const auto& [left, cleared] : everyGroup) {
        Settings settings = filledSettings();
        (settings.*cleared).hasValue = false;
        settings.hue = settings.saturation = {};
        settings.blackLevel = {};
        std::string text;
        for (const auto& [name, member] : everyGroup) {
            text += name == left ? "" : elementOrEmptyTag(name, coloursText((settings.*member).value));
        }
        EXPECT_EQ(compact(withSettings(settings)), writtenSettings(elementOrEmptyTag("sixColors", text)));
    }
}

TEST(TargetSettingAdvancedSettings, EachColourOfEachGroupAloneSetsTheGroupAndLeavesTheOtherFive) {
    for (const auto& [group, target] : everyGroup) {
        for (const auto& [name, member] : everyColour) {
            Settings expected = filledWithClearFlags();
            (expected.*target).hasValue = true;
            (expected.*target).value.*member = -99;
            const std::string text =
                elementOrEmptyTag("sixColors", elementOrEmptyTag(group, elementOrEmptyTag(name, "-99")));
            EXPECT_EQ(describe(filledHavingRead(text)), describe(expected)) << text;
        }
    }
}

TEST(TargetSettingAdvancedSettings, GroupWithoutANumberIsUnset) {
    for (const auto& [group, target] : everyGroup) {
        for (const char* content : {"", "<red/><yellow></yellow>", "<Red>1</Red>", "<other>1</other>", "7"}) {
            const std::string text = elementOrEmptyTag("sixColors", elementOrEmptyTag(group, content));
            EXPECT_EQ(describe(filledHavingRead(text)), describe(filledWithClearFlags())) << text;
        }
    }
}

TEST(TargetSettingAdvancedSettings, HueAndSaturationOfTheSettingsAreNotThoseOfSixColors) {
    const Settings outer = filledHavingRead("<hue><red>1</red></hue><saturation><cyan>1</cyan></saturation>"
                                            "<lightness><red>1</red></lightness>");
    EXPECT_EQ(describe(outer), describe(filledWithClearFlags()));
    const Settings inner = filledHavingRead("<sixColors><hue>7</hue><saturation>8</saturation></sixColors>");
    EXPECT_EQ(describe(inner), describe(filledWithClearFlags()));
}

TEST(TargetSettingAdvancedSettings, MissingElementClearsTheInnerFlagsTooAndKeepsTheValues) {
    TargetSetting record = withSettings(filledSettings());
    ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>("<hue>1</hue><advancedSettings/>")));
    EXPECT_FALSE(record.advancedSettings.hasValue);
    EXPECT_EQ(describe(record.advancedSettings.value), describe(filledWithClearFlags()));
}

TEST(TargetSettingAdvancedSettings, ParsingReadsTheChildAndReturnsIt) {
    const ParsedDocument document("<A><Other/><AdvancedSettings><hue>-3</hue></AdvancedSettings></A>");
    XMLElement parent = document.root();
    Settings settings = filledSettings();
    const XMLElement found = TargetSetting().parseAdvancedSettingsElement(parent, settings);
    EXPECT_EQ(found.get(), parent.getElement("AdvancedSettings").get());
    Settings expected = filledWithClearFlags();
    expected.hue.set(-3);
    EXPECT_EQ(describe(settings), describe(expected));
}

TEST(TargetSettingAdvancedSettings, ParsingWhatIsMissingReturnsAnInvalidElementAndClearsEveryFlag) {
    const ParsedDocument document("<A><hue>1</hue></A>");
    for (XMLElement parent : {document.root(), XMLElement()}) {
        Settings settings = filledSettings();
        EXPECT_FALSE(TargetSetting().parseAdvancedSettingsElement(parent, settings).isValid());
        EXPECT_EQ(describe(settings), describe(filledWithClearFlags()));
    }
}

TEST(TargetSettingAdvancedSettings, AppendingReturnsTheNewLastChild) {
    const ParsedDocument document("<A><AdvancedSettings/></A>");
    XMLElement parent = document.root();
    Settings settings;
    settings.saturation.set(-4);
    const XMLElement appended = TargetSetting().appendAdvancedSettingElement(parent, settings);
    EXPECT_EQ(appended.get(), parent.getElements("AdvancedSettings").at(1).get());
    EXPECT_EQ(document.text(),
              "<A><AdvancedSettings/><AdvancedSettings><saturation>-4</saturation></AdvancedSettings></A>");
    XMLElement nothing;
    EXPECT_FALSE(TargetSetting().appendAdvancedSettingElement(nothing, filledSettings()).isValid());
}

TEST(TargetSettingAdvancedSettings, ParsingOneGroupReadsTheNamedChildAndReturnsIt) {
    const ParsedDocument document("<A><any><cyan>5</cyan></any><empty/></A>");
    XMLElement parent = document.root();
    property<Colours> target = {{1, 2, 3, 4, 5, 6}, false};
    const XMLElement found = TargetSetting().parseAdvancedSettingsSixColorsElement(parent, "any", target);
    EXPECT_EQ(found.get(), parent.getElement("any").get());
    EXPECT_TRUE(target.hasValue);
    EXPECT_EQ(describe(target.value), describe(Colours{1, 2, 3, 5, 5, 6}));
    EXPECT_TRUE(TargetSetting().parseAdvancedSettingsSixColorsElement(parent, "empty", target).isValid());
    EXPECT_FALSE(target.hasValue);
    EXPECT_EQ(describe(target.value), describe(Colours{1, 2, 3, 5, 5, 6}));
}

TEST(TargetSettingAdvancedSettings, ParsingAGroupThatIsMissingReturnsAnInvalidElementAndClearsTheFlag) {
    const ParsedDocument document("<A><any><cyan>5</cyan></any></A>");
    for (XMLElement parent : {document.root(), XMLElement()}) {
        property<Colours> target = {{1, 2, 3, 4, 5, 6}, true};
        EXPECT_FALSE(TargetSetting().parseAdvancedSettingsSixColorsElement(parent, "Any", target).isValid());
        EXPECT_FALSE(target.hasValue);
        EXPECT_EQ(describe(target.value), describe(Colours{1, 2, 3, 4, 5, 6}));
    }
}

TEST(TargetSettingAdvancedSettings, AppendingOneGroupReturnsTheNewLastChild) {
    const Colours colours = {-1, 0, 1, 2147483647, -2147483647 - 1, 6};
    const ParsedDocument document("<A><any/></A>");
    XMLElement parent = document.root();
    const XMLElement appended = TargetSetting().appendAdvancedSettingSixColorElement(parent, "any", colours);
    EXPECT_EQ(appended.get(), parent.getElements("any").at(1).get());
    EXPECT_EQ(document.text(), "<A><any/>" + elementOrEmptyTag("any", coloursText(colours)) + "</A>");
    XMLElement nothing;
    EXPECT_FALSE(TargetSetting().appendAdvancedSettingSixColorElement(nothing, "hue", colours).isValid());
}

}  // namespace
}  // namespace lv::test
