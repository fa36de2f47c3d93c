#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorParameter.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

using Colours = MonitorParameter::six_colors_t;

struct Group {
    std::string suffix;
    property<Colours> MonitorParameter::*member;
};

const std::array everyGroup = {Group{"Hue", &MonitorParameter::hue}, Group{"Saturation", &MonitorParameter::saturation},
                               Group{"Lightness", &MonitorParameter::lightness}};

struct Member {
    std::string prefix;
    int Colours::*member;
};

const std::array everyColour = {Member{"Red", &Colours::red},         Member{"Green", &Colours::green},
                                Member{"Blue", &Colours::blue},       Member{"Cyan", &Colours::cyan},
                                Member{"Magenta", &Colours::magenta}, Member{"Yellow", &Colours::yellow}};

/// The six elements of a group in their order.
std::string groupElements(const std::string& suffix, const Colours& colours) {
    std::string elements;
    for (const auto& [prefix, member] : everyColour) {
        elements += element(prefix + suffix, std::to_string(colours.*member));
    }
    return elements;
}

TEST(MonitorParameter, OnlyCyanHueSetsTheHueAndAllSixAreWrittenTheOthersWithTheirEarlierValues) {
    MonitorParameter record = filled<MonitorParameter>();
    ASSERT_TRUE(record.parseXMLString(written<MonitorParameter>("<CyanHue>99</CyanHue>")));
    EXPECT_TRUE(record.hue.hasValue);
    EXPECT_EQ(compact(record), written<MonitorParameter>(
                                   "<RedHue>-1554</RedHue><GreenHue>1555</GreenHue><BlueHue>-1556</BlueHue>"
                                   "<CyanHue>99</CyanHue><MagentaHue>-1558</MagentaHue><YellowHue>1559</YellowHue>"));
}

TEST(MonitorParameter, EachElementOfAGroupAloneSetsTheGroupAndReplacesItsMember) {
    for (const auto& [suffix, group] : everyGroup) {
        for (const auto& [prefix, member] : everyColour) {
            MonitorParameter expected;
            (expected.*group).hasValue = true;
            (expected.*group).value.*member = -99;
            const std::string text = element(prefix + suffix, "-99");
            const auto record = parsedFrom<MonitorParameter>(text);
            EXPECT_EQ(describe(record), describe(expected));
            EXPECT_EQ(compact(record), written<MonitorParameter>(groupElements(suffix, (expected.*group).value)));
        }
    }
}

TEST(MonitorParameter, GroupWithoutAnyElementIsClearedAndKeepsItsValues) {
    for (const auto& [suffix, group] : everyGroup) {
        MonitorParameter expected = filled<MonitorParameter>();
        MonitorParameter record = expected;
        (record.*group).value.red = (expected.*group).value.red = 31;
        ASSERT_TRUE(record.parseXMLString("<MonitorParameter/>"));
        EXPECT_FALSE((record.*group).hasValue);
        EXPECT_EQ(describe((record.*group).value), describe((expected.*group).value));
        EXPECT_EQ(compact(record).find(suffix), std::string::npos);
    }
}

TEST(MonitorParameter, EmptyElementsOfAGroupCountAsMissing) {
    for (const auto& [suffix, group] : everyGroup) {
        std::string children;
        for (const auto& colour : everyColour) {
            children += '<' + colour.prefix + suffix + "/>";
        }
        MonitorParameter record = filled<MonitorParameter>();
        ASSERT_TRUE(record.parseXMLString(documentOf<MonitorParameter>(children)));
        EXPECT_FALSE((record.*group).hasValue);
        EXPECT_EQ(describe((record.*group).value), describe((filled<MonitorParameter>().*group).value));
    }
}

TEST(MonitorParameter, GroupOfZerosIsWrittenWhenItIsSet) {
    for (const auto& [suffix, group] : everyGroup) {
        MonitorParameter record;
        (record.*group).hasValue = true;
        EXPECT_EQ(compact(record), written<MonitorParameter>(groupElements(suffix, Colours())));
    }
}

}  // namespace
}  // namespace lv::test
