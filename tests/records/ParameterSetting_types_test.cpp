#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ParameterSetting.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// What the text of "Type" decides: which children are written, and which are read.

namespace lv::test {
namespace {

/// Every text that any of the parameters tells apart, and texts that none does.
const std::vector<std::string> everyType = {
    "",      "Unknown", "Candela",     "candela",     "Percent",    "percent",    "Value",      "value",      "Fixed",
    "fixed", "FIXED",   "Temperature", "temperature", "Coordinate", "SyncSignal", "syncSignal", "Syncsignal", " Fixed"};

/// A parameter with all its children.
struct Parameter {
    std::string name;

    /// All children, and what reading them sets.
    std::string children;
    std::function<void(ParameterSetting&, const std::string& type)> set;

    /// What reading them sets for the type "SyncSignal".
    std::function<void(ParameterSetting&)> setSynced;

    /// Which of them are written for a type; those written for any other type.
    std::map<std::string, std::string> childrenOfType;
    std::string otherwise;
};

const Parameter brightness = {"Brightness",
                              "<Value>11</Value>",
                              [](auto& record, auto& type) {
                                  record.brightness.set({type, 11});
                              },
                              [](auto& record) {
                                  record.brightness.set({"SyncSignal", 0});
                              },
                              {{"Candela", "<Value>11</Value>"}, {"Percent", "<Value>11</Value>"}},
                              ""};

const Parameter whitePoint = {"WhitePoint",
                              "<Temperature>12</Temperature><Fixed>D65</Fixed>",
                              [](auto& record, auto& type) {
                                  record.whitePoint.set({type, 12, "D65"});
                              },
                              [](auto& record) {
                                  record.whitePoint.set({"SyncSignal", 12, "D65"});
                              },
                              {{"Temperature", "<Temperature>12</Temperature>"}, {"Fixed", "<Fixed>D65</Fixed>"}},
                              ""};

const Parameter gamma = {
    "Gamma",
    "<Value>13</Value><Fixed>PQ</Fixed><PQHLGClipping>Hard</PQHLGClipping>"
    "<HLGSystemGamma>14</HLGSystemGamma>",
    [](auto& record, auto& type) {
        record.gamma.set({type, 13, "PQ", "Hard", 14});
    },
    [](auto& record) {
        record.gamma.set({"SyncSignal", 0, "", "", 0});
    },
    {{"Value", "<Value>13</Value>"}, {"Fixed", "<Fixed>PQ</Fixed><PQHLGClipping>Hard</PQHLGClipping>"}},
    ""};

const Parameter gamut = {"Gamut",
                         "<Fixed>Wide</Fixed><Clipping>15</Clipping>",
                         [](auto& record, auto& type) {
                             record.gamut.set({type, "Wide", 15});
                         },
                         [](auto& record) {
                             record.gamut.set({"SyncSignal", "", 15});
                         },
                         {{"Fixed", "<Fixed>Wide</Fixed><Clipping>15</Clipping>"}},
                         "<Clipping>15</Clipping>"};

const std::vector<Parameter> everyParameter = {brightness, whitePoint, gamma, gamut};

/// The text of a record in which one parameter has this text and the others are as in a fresh record.
std::string writtenWith(const std::string& parameter, const std::string& text) {
    std::string children;
    for (const Parameter& other : everyParameter) {
        const std::string fresh = elementOfType(other.name, "", other.name == "Gamut" ? "<Clipping>0</Clipping>" : "");
        children += other.name == parameter ? text : fresh;
    }
    return written<ParameterSetting>(children);
}

std::string childrenWritten(const Parameter& parameter, const std::string& type) {
    const auto found = parameter.childrenOfType.find(type);
    return found == parameter.childrenOfType.end() ? parameter.otherwise : found->second;
}

TEST(ParameterSettingTypes, EachTypeWritesItsOwnChildrenAndNoOthers) {
    for (const Parameter& parameter : everyParameter) {
        for (const std::string& type : everyType) {
            ParameterSetting record;
            parameter.set(record, type);
            const std::string text = elementOfType(parameter.name, type, childrenWritten(parameter, type));
            EXPECT_EQ(compact(record), writtenWith(parameter.name, text));
        }
    }
}

TEST(ParameterSettingTypes, EachTypeButSyncSignalReadsAllChildren) {
    for (const Parameter& parameter : everyParameter) {
        for (const std::string& type : everyType) {
            ParameterSetting expected;
            type == "SyncSignal" ? parameter.setSynced(expected) : parameter.set(expected, type);
            const std::string text = elementOfType(parameter.name, type, parameter.children);
            const auto record = parsedFrom<ParameterSetting>(text);
            EXPECT_EQ(describe(record), describe(expected)) << text;
        }
    }
}

TEST(ParameterSettingTypes, ParameterWithoutAnyChildSetsTypeAndFlagAlone) {
    for (const std::string& type : everyType) {
        ParameterSetting expected;
        expected.brightness.set({type, 0});
        expected.whitePoint.set({type, 0, ""});
        expected.gamma.set({type, 0, "", "", 0});
        expected.gamut.set({type, "", 0});
        std::string text;
        for (const Parameter& parameter : everyParameter) {
            text += elementOfType(parameter.name, type, "");
        }
        const auto record = parsedFrom<ParameterSetting>(text);
        EXPECT_EQ(describe(record), describe(expected)) << text;
    }
}

TEST(ParameterSettingTypes, ChildrenOfOtherTypesAreDroppedWhenWrittenBack) {
    for (const Parameter& parameter : everyParameter) {
        for (const std::string& type : everyType) {
            const std::string text = elementOfType(parameter.name, type, parameter.children);
            auto record = parsedFrom<ParameterSetting>(text);
            const std::string back = elementOfType(parameter.name, type, childrenWritten(parameter, type));
            EXPECT_EQ(compact(record), writtenWith(parameter.name, back));
        }
    }
}

TEST(ParameterSettingTypes, BrightnessOfTypeSyncSignalIsReadAndWrittenBackWithoutItsValue) {
    const auto record = parsedFrom<ParameterSetting>(R"(<Brightness Type="SyncSignal"><Value>80</Value></Brightness>)");
    EXPECT_TRUE(record.brightness.hasValue);
    EXPECT_EQ(record.brightness.value.value, 0U);
    EXPECT_EQ(compact(record), writtenWith("Brightness", R"(<Brightness Type="SyncSignal"/>)"));
}

TEST(ParameterSettingTypes, ParameterWithoutATypeKeepsTheEarlierTypeWhichDecidesWhatIsRead) {
    for (const Parameter& parameter : everyParameter) {
        for (const std::string& type : everyType) {
            ParameterSetting record;
            ASSERT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(elementOfType(parameter.name, type, ""))));
            const std::string text = '<' + parameter.name + '>' + parameter.children + "</" + parameter.name + '>';
            ASSERT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(text)));
            ParameterSetting expected;
            type == "SyncSignal" ? parameter.setSynced(expected) : parameter.set(expected, type);
            EXPECT_EQ(describe(record), describe(expected)) << type << text;
        }
    }
}

TEST(ParameterSettingTypes, SyncSignalLeavesEarlierValuesAsTheyWere) {
    ParameterSetting record = filled<ParameterSetting>();
    std::string text;
    for (const Parameter& parameter : everyParameter) {
        text += elementOfType(parameter.name, "SyncSignal", parameter.children);
    }
    ASSERT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(text)));
    ParameterSetting expected = filled<ParameterSetting>();
    expected.version.hasValue = expected.minorVersion.hasValue = false;
    expected.limited109Setting.hasValue = false;
    expected.brightness.value.type = "SyncSignal";
    expected.whitePoint.value = {"SyncSignal", 12, "D65"};
    expected.gamma.value.type = "SyncSignal";
    expected.gamut.value.type = "SyncSignal";
    expected.gamut.value.clipping = 15;
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ParameterSettingTypes, ClippingIsWrittenForTheFixedCurvesPQAndHLGAloneComparedExactly) {
    for (const char* fixed : {"PQ", "HLG", "pq", "hlg", "Pq", "PQ ", " HLG", "HLG2", "PQHLG", "Unknown", ""}) {
        for (const std::string& type : everyType) {
            ParameterSetting record;
            record.gamma.set({type, 220, fixed, "Soft", 0});
            const std::string name = fixed;
            const std::string clipping = name == "PQ" || name == "HLG" ? "<PQHLGClipping>Soft</PQHLGClipping>" : "";
            const std::string ofFixed = "<Fixed>" + name + "</Fixed>" + clipping;
            const std::string children = type == "Fixed" ? ofFixed : type == "Value" ? "<Value>220</Value>" : "";
            EXPECT_EQ(compact(record), writtenWith("Gamma", elementOfType("Gamma", type, children)));
        }
    }
}

TEST(ParameterSettingTypes, EmptyClippingOfAPQCurveIsWrittenAsEmptyText) {
    ParameterSetting record;
    record.gamma.set({"Fixed", 0, "PQ", "", 0});
    EXPECT_EQ(compact(record),
              writtenWith("Gamma", R"(<Gamma Type="Fixed"><Fixed>PQ</Fixed><PQHLGClipping></PQHLGClipping></Gamma>)"));
}

TEST(ParameterSettingTypes, HLGSystemGammaIsWrittenLastForEveryTypeWhenTheSwitchIsOn) {
    for (const std::string& type : everyType) {
        ParameterSetting record;
        record.writeHLGSystemGamma = true;
        gamma.set(record, type);
        const std::string children = childrenWritten(gamma, type) + "<HLGSystemGamma>14</HLGSystemGamma>";
        EXPECT_EQ(compact(record), writtenWith("Gamma", elementOfType("Gamma", type, children)));
    }
}

}  // namespace
}  // namespace lv::test
