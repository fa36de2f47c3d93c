#include <tests/support/ParsedDocument.h>
#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <array>
#include <map>
#include <string>
#include <vector>

namespace lv::test {
namespace {

using Gamma = TargetSetting::gamma_t;
using Curve = Gamma::gamma_color;

/// Every type that is told apart, and texts that are not.
const std::vector<std::string> everyType = {"",      "Unknown", "Formula", "formula", "Lut", "lut", "LUT",
                                            "Lut24", "lut24",   "Lut 24",  "PQ",      "pq",  "HLG", "hlg"};

struct Channel {
    std::string name;
    Curve Gamma::*member;
};

const std::array everyChannel = {Channel{"Red", &Gamma::red}, Channel{"Green", &Gamma::green},
                                 Channel{"Blue", &Gamma::blue}};

/// The children of a curve, and which of them is written for a type.
const std::string curveChildren = "<Formula>240</Formula><Lut>1|2|3</Lut><Lut24>4|5</Lut24>";
const std::map<std::string, std::string> childOfType = {
    {"Formula", "<Formula>240</Formula>"}, {"Lut", "<Lut>1|2|3</Lut>"}, {"Lut24", "<Lut24>4|5</Lut24>"}};

Curve curveOf(const std::string& type) {
    return {type, 240, {1, 2, 3}, {4, 5}};
}

std::string curveText(const std::string& name, const std::string& type) {
    const auto child = childOfType.find(type);
    return elementOfType(name, type, child == childOfType.end() ? "" : child->second);
}

std::string gammaDocument(const std::string& children) {
    return documentOf<TargetSetting>(element("Gamma", children));
}

std::string writtenGamma(const std::string& children) {
    return written<TargetSetting>(element("Gamma", children));
}

TEST(TargetSettingGamma, EachTypeOfEachChannelWritesItsOwnChildAndNoOther) {
    for (const auto& [channel, member] : everyChannel) {
        for (const std::string& type : everyType) {
            TargetSetting record;
            record.gamma.hasValue = true;
            record.gamma.value.*member = curveOf(type);
            std::string text;
            for (const auto& [name, other] : everyChannel) {
                text += curveText(name, name == channel ? type : "");
            }
            const std::string clipping = "<PQHLGClipping></PQHLGClipping>";
            const bool clips = channel == "Red" && (type == "PQ" || type == "HLG");
            EXPECT_EQ(compact(record), writtenGamma(text + (clips ? clipping : "")));
        }
    }
}

TEST(TargetSettingGamma, EachTypeOfEachChannelReadsAllChildrenAndSetsTheFlag) {
    for (const auto& [channel, member] : everyChannel) {
        for (const std::string& type : everyType) {
            TargetSetting expected;
            expected.gamma.hasValue = true;
            expected.gamma.value.*member = curveOf(type);
            const auto record = parsed<TargetSetting>(gammaDocument(elementOfType(channel, type, curveChildren)));
            EXPECT_EQ(describe(record), describe(expected)) << channel << type;
        }
    }
}

TEST(TargetSettingGamma, EachChannelAloneSetsTheFlagEvenWhenItIsEmpty) {
    for (const auto& [channel, member] : everyChannel) {
        TargetSetting record = filled<TargetSetting>();
        const Gamma before = record.gamma.value;
        record.gamma.hasValue = false;
        ASSERT_TRUE(record.parseXMLString(gammaDocument('<' + channel + "/>")));
        EXPECT_TRUE(record.gamma.hasValue) << channel;
        EXPECT_EQ(describe(record.gamma.value), describe(before)) << channel;
    }
}

TEST(TargetSettingGamma, OtherChildrenAreReadButLeaveTheFlagClear) {
    TargetSetting expected;
    expected.gamma.value.pqhlgClipping = "Hard";
    expected.gamma.value.hlgSystemGamma = 110;
    expected.gamma.value.importedLutFile.fileName = "a.txt";
    const auto record = parsed<TargetSetting>(
        gammaDocument("<PQHLGClipping>Hard</PQHLGClipping><HLGSystemGamma>110</HLGSystemGamma>"
                      "<ImportedLutFile><FileName>a.txt</FileName></ImportedLutFile><red/><RED/><Cyan/>"));
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), compact(TargetSetting()));
}

TEST(TargetSettingGamma, ChannelsAndOtherChildrenOutsideTheGammaAreNotRead) {
    const auto record =
        parsedFrom<TargetSetting>("<Gamma/>" + elementOfType("Red", "PQ", curveChildren) +
                                  "<PQHLGClipping>Hard</PQHLGClipping><HLGSystemGamma>110</HLGSystemGamma>"
                                  "<ImportedLutFile><FileName>a.txt</FileName></ImportedLutFile>"
                                  "<FileName>b.txt</FileName>");
    EXPECT_EQ(describe(record), describe(TargetSetting()));
    const auto misplaced = parsed<TargetSetting>(gammaDocument("<Red/><FileName>b.txt</FileName>"));
    EXPECT_EQ(misplaced.gamma.value.importedLutFile.fileName, "");
}

/// A record whose gamma has these types and values for everything else.
TargetSetting withTypes(const std::string& red, const std::string& green, const std::string& blue) {
    TargetSetting record;
    record.gamma.set({curveOf(red), curveOf(green), curveOf(blue), "Hard", 130, {"a.txt"}});
    return record;
}

std::string curveTexts(const std::string& red, const std::string& green, const std::string& blue) {
    return curveText("Red", red) + curveText("Green", green) + curveText("Blue", blue);
}

const std::string clippingText = "<PQHLGClipping>Hard</PQHLGClipping>";
const std::string systemGammaText = "<HLGSystemGamma>130</HLGSystemGamma>";
const std::string fileText = "<ImportedLutFile><FileName>a.txt</FileName></ImportedLutFile>";

TEST(TargetSettingGamma, ClippingIsWrittenForARedCurveOfPQOrHLGAndTheFileForARedCurveOfLutOrLut24Only) {
    for (const std::string& red : everyType) {
        for (const std::string& green : everyType) {
            for (const std::string& blue : everyType) {
                const bool clips = red == "PQ" || red == "HLG";
                const bool imports = red == "Lut" || red == "Lut24";
                EXPECT_EQ(compact(withTypes(red, green, blue)),
                          writtenGamma(curveTexts(red, green, blue) + (clips ? clippingText : "") +
                                       (imports ? fileText : "")));
            }
        }
    }
}

TEST(TargetSettingGamma, ImportedFileWithoutANameIsNotWrittenForAnyType) {
    for (const std::string& type : everyType) {
        TargetSetting record = withTypes(type, type, type);
        record.gamma.value.importedLutFile.fileName = "";
        EXPECT_EQ(compact(record).find("ImportedLutFile"), std::string::npos) << type;
    }
}

TEST(TargetSettingGamma, SystemGammaIsWrittenForEveryTypeByTheSwitchAlone) {
    for (const std::string& type : everyType) {
        TargetSetting record = withTypes(type, "", "");
        const bool clips = type == "PQ" || type == "HLG";
        const bool imports = type == "Lut" || type == "Lut24";
        const std::string before = curveTexts(type, "", "") + (clips ? clippingText : "");
        const std::string after = imports ? fileText : "";
        EXPECT_EQ(compact(record), writtenGamma(before + after));
        record.writeHLGSystemGamma = true;
        EXPECT_EQ(compact(record), writtenGamma(before + systemGammaText + after));
        record.gamma.hasValue = false;
        EXPECT_EQ(compact(record), compact(TargetSetting()));
    }
}

TEST(TargetSettingGamma, SystemGammaOf0IsWrittenToo) {
    TargetSetting record;
    record.writeHLGSystemGamma = true;
    record.gamma.hasValue = true;
    EXPECT_EQ(compact(record), writtenGamma(curveTexts("", "", "") + "<HLGSystemGamma>0</HLGSystemGamma>"));
}

TEST(TargetSettingGamma, SystemGammaIsReadRegardlessOfTheSwitch) {
    for (const bool value : {false, true}) {
        TargetSetting record;
        record.writeHLGSystemGamma = value;
        ASSERT_TRUE(record.parseXMLString(gammaDocument("<Red/><HLGSystemGamma>118</HLGSystemGamma>")));
        EXPECT_EQ(record.gamma.value.hlgSystemGamma, 118U);
    }
}

TEST(TargetSettingGamma, EmptyCurvesAreWrittenAsEmptyTextAndLeaveEarlierEntriesWhenRead) {
    TargetSetting record;
    record.gamma.set({{"Lut", 0, {}, {}}, {"Lut24", 0, {}, {}}, {}, "", 0, {}});
    const std::string text =
        R"(<Red Type="Lut"><Lut></Lut></Red><Green Type="Lut24"><Lut24></Lut24></Green><Blue Type=""/>)";
    EXPECT_EQ(compact(record), writtenGamma(text));
    TargetSetting other = withTypes("", "", "");
    ASSERT_TRUE(other.parseXMLString(gammaDocument(text)));
    EXPECT_EQ(describe(other.gamma.value.red), describe(curveOf("Lut")));
    EXPECT_EQ(describe(other.gamma.value.green), describe(curveOf("Lut24")));
}

TEST(TargetSettingGamma, CurveReplacesTheEarlierOneAndSkipsEmptyPieces) {
    TargetSetting record = withTypes("", "", "");
    ASSERT_TRUE(record.parseXMLString(gammaDocument("<Red><Lut>|7||-1|</Lut><Lut24>||</Lut24></Red>")));
    EXPECT_EQ(record.gamma.value.red.lut, (std::vector<unsigned int>{7, 4294967295U}));
    EXPECT_TRUE(record.gamma.value.red.lut24.empty());
    EXPECT_EQ(record.gamma.value.red.formula, 240U);
}

TEST(TargetSettingGamma, SecondDocumentKeepsWhatItLacks) {
    TargetSetting record = withTypes("Lut", "PQ", "Formula");
    ASSERT_TRUE(record.parseXMLString(gammaDocument(R"(<Green Type="Lut24"><Formula>99</Formula></Green>)")));
    TargetSetting expected = withTypes("Lut", "Lut24", "Formula");
    expected.gamma.value.green.formula = 99;
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(TargetSettingGamma, ParsingOneCurveReadsTheNamedChildAndReturnsIt) {
    for (const std::string& type : everyType) {
        const ParsedDocument document("<A><Other/>" + elementOfType("Any", type, curveChildren) + "<Any/></A>");
        XMLElement parent = document.root();
        Curve curve;
        const XMLElement found = TargetSetting().parseGammaElement(parent, "Any", curve);
        EXPECT_EQ(found.get(), parent.getElement("Any").get());
        EXPECT_EQ(describe(curve), describe(curveOf(type)));
    }
}

TEST(TargetSettingGamma, ParsingACurveThatIsMissingReturnsAnInvalidElementAndLeavesTheCurve) {
    const ParsedDocument document("<A><Any><Lut>7</Lut></Any></A>");
    for (XMLElement parent : {document.root(), XMLElement()}) {
        Curve curve = curveOf("PQ");
        EXPECT_FALSE(TargetSetting().parseGammaElement(parent, "any", curve).isValid());
        EXPECT_EQ(describe(curve), describe(curveOf("PQ")));
    }
}

TEST(TargetSettingGamma, AppendingOneCurveReturnsTheNewLastChild) {
    for (const std::string& type : everyType) {
        const ParsedDocument document("<A><Any/></A>");
        XMLElement parent = document.root();
        const XMLElement appended = TargetSetting().appendGammaElement(parent, "Any", curveOf(type));
        EXPECT_EQ(appended.get(), parent.getElements("Any").at(1).get());
        EXPECT_EQ(document.text(), "<A><Any/>" + curveText("Any", type) + "</A>");
    }
}

TEST(TargetSettingGamma, AppendingACurveToAnInvalidParentReturnsAnInvalidElement) {
    XMLElement nothing;
    EXPECT_FALSE(TargetSetting().appendGammaElement(nothing, "Red", curveOf("Lut")).isValid());
}

}  // namespace
}  // namespace lv::test
