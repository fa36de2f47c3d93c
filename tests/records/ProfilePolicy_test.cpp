#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ProfilePolicy.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

struct Text {
    std::string element;
    property<std::string> ProfilePolicy::*member;
};

const std::array everyTextOfTheRule = {Text{"ProfileDescription", &ProfilePolicy::profileDescription},
                                       Text{"ProfileName", &ProfilePolicy::profileName},
                                       Text{"Content", &ProfilePolicy::content}};

const std::array everyTextOfTheRoot = {Text{"ProfileVersion", &ProfilePolicy::profileVersion},
                                       Text{"ToneCurve", &ProfilePolicy::toneCurve}};

struct Switch {
    std::string element;
    property<bool> ProfilePolicy::*member;
};

const std::array everySwitch = {Switch{"ReflectBlackLevels", &ProfilePolicy::reflectBlackLevels},
                                Switch{"Create3DLut", &ProfilePolicy::create3DLut},
                                Switch{"CreateLuminanceTag", &ProfilePolicy::createLuminanceTag}};

std::string rule(const std::string& children) {
    return R"(<UpdateRule Type="updateRule 13">)" + children + "</UpdateRule>";
}

/// The four members that live in "UpdateRule", without their flags.
void clearFlagsOfTheRule(ProfilePolicy& record) {
    record.updateRule.hasValue = false;
    for (const auto& [name, member] : everyTextOfTheRule) {
        (record.*member).hasValue = false;
    }
}

void clearFlagsOfTheRoot(ProfilePolicy& record) {
    record.version.hasValue = record.minorVersion.hasValue = false;
    for (const auto& [name, member] : everyTextOfTheRoot) {
        (record.*member).hasValue = false;
    }
    for (const auto& [name, member] : everySwitch) {
        (record.*member).hasValue = false;
    }
}

TEST(ProfilePolicy, DefaultRecordWritesTheRootWithItsVersionAndNoChild) {
    EXPECT_EQ(compact(ProfilePolicy()), R"(<ProfilePolicy Version="2" MinorVersion="0"/>)");
}

TEST(ProfilePolicy, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(compact(filled<ProfilePolicy>()),
              R"(<ProfilePolicy Version="11" MinorVersion="12">)"
              R"(<UpdateRule Type="updateRule 13"><ProfileDescription>profileDescription 14</ProfileDescription>)"
              "<ProfileName>profileName 15</ProfileName><Content>content 16</Content></UpdateRule>"
              "<ProfileVersion>profileVersion 17</ProfileVersion><ToneCurve>toneCurve 18</ToneCurve>"
              "<ReflectBlackLevels>true</ReflectBlackLevels><Create3DLut>true</Create3DLut>"
              "<CreateLuminanceTag>true</CreateLuminanceTag></ProfilePolicy>");
}

TEST(ProfilePolicy, RuleAloneIsWrittenWithItsTypeAndNoChild) {
    ProfilePolicy record;
    record.updateRule.set("updateRule 13");
    EXPECT_EQ(compact(record), written<ProfilePolicy>(R"(<UpdateRule Type="updateRule 13"/>)"));
}

TEST(ProfilePolicy, EachTextOfTheRuleIsWrittenAloneInsideTheRule) {
    for (const auto& [name, member] : everyTextOfTheRule) {
        ProfilePolicy record;
        record.updateRule.set("updateRule 13");
        (record.*member).set("text");
        EXPECT_EQ(compact(record), written<ProfilePolicy>(rule(element(name, "text"))));
        (record.*member).hasValue = false;
        EXPECT_EQ(compact(record), written<ProfilePolicy>(R"(<UpdateRule Type="updateRule 13"/>)"));
    }
}

TEST(ProfilePolicy, ProfileNameWithoutAnUpdateRuleIsNotWrittenNorIsAnyTextOfTheRule) {
    for (const auto& [name, member] : everyTextOfTheRule) {
        ProfilePolicy record;
        (record.*member).set("text");
        EXPECT_EQ(compact(record), compact(ProfilePolicy())) << name;
    }
    ProfilePolicy record = filled<ProfilePolicy>();
    record.updateRule.hasValue = false;
    EXPECT_EQ(compact(record).find("UpdateRule"), std::string::npos);
    ProfilePolicy expected = filledAndParsedBack<ProfilePolicy>();
    expected.updateRule = {};
    expected.profileDescription = {};
    expected.profileName = {};
    expected.content = {};
    EXPECT_EQ(describe(parsed<ProfilePolicy>(compact(record))), describe(expected));
}

TEST(ProfilePolicy, EmptyRuleThatIsSetIsWritten) {
    ProfilePolicy record;
    record.updateRule.set("");
    record.content.set("");
    EXPECT_EQ(compact(record), written<ProfilePolicy>(R"(<UpdateRule Type=""><Content></Content></UpdateRule>)"));
    const auto back = parsed<ProfilePolicy>(compact(record));
    EXPECT_EQ(back.updateRule, (property<std::string>{"", true}));
    EXPECT_EQ(back.content, (property<std::string>{"", true}));
}

TEST(ProfilePolicy, EachTextOfTheRootIsWrittenAloneAndOnlyWhenSet) {
    for (const auto& [name, member] : everyTextOfTheRoot) {
        ProfilePolicy record;
        (record.*member).value = "text";
        EXPECT_EQ(compact(record), compact(ProfilePolicy())) << name;
        (record.*member).hasValue = true;
        EXPECT_EQ(compact(record), written<ProfilePolicy>(element(name, "text")));
    }
}

TEST(ProfilePolicy, EachSwitchIsWrittenAloneAndOnlyWhenSetTrueOrFalse) {
    for (const auto& [name, member] : everySwitch) {
        for (const bool value : {false, true}) {
            ProfilePolicy record;
            (record.*member).value = value;
            EXPECT_EQ(compact(record), compact(ProfilePolicy())) << name;
            (record.*member).hasValue = true;
            EXPECT_EQ(compact(record), written<ProfilePolicy>(element(name, value ? "true" : "false")));
        }
    }
}

TEST(ProfilePolicy, EverySwitchOfFalseIsSetAndWrittenBack) {
    for (const auto& [name, member] : everySwitch) {
        const auto record = parsedFrom<ProfilePolicy>(element(name, "false"));
        ProfilePolicy expected;
        (expected.*member).set(false);
        EXPECT_EQ(describe(record), describe(expected));
        EXPECT_EQ(compact(record), written<ProfilePolicy>(element(name, "false")));
    }
}

TEST(ProfilePolicy, SwitchIsTrueForTwoTextsOnlyAndUnsetWithoutText) {
    for (const auto& [name, member] : everySwitch) {
        const auto read = [&, &name = name, &member = member](const std::string& text) {
            return parsedFrom<ProfilePolicy>(element(name, text)).*member;
        };
        for (const char* text : {"true", "TRUE"}) {
            EXPECT_EQ(read(text), (property<bool>{true, true})) << name << text;
        }
        for (const char* text : {"false", "FALSE", "True", "tRUE", " true", "true ", "1", "yes", "0"}) {
            EXPECT_EQ(read(text), (property<bool>{false, true})) << name << text;
        }
        EXPECT_EQ(read(""), (property<bool>{false, false})) << name;
    }
}

TEST(ProfilePolicy, EachChildOfTheRuleReplacesItsMemberAloneInARecordThatHoldsOthers) {
    for (const auto& [name, member] : everyTextOfTheRule) {
        ProfilePolicy record = filled<ProfilePolicy>();
        ASSERT_TRUE(record.parseXMLString(documentOf<ProfilePolicy>(rule(element(name, "new")))));
        ProfilePolicy expected = filled<ProfilePolicy>();
        clearFlagsOfTheRule(expected);
        clearFlagsOfTheRoot(expected);
        expected.updateRule.hasValue = true;
        (expected.*member).set("new");
        EXPECT_EQ(describe(record), describe(expected)) << name;
    }
}

TEST(ProfilePolicy, EachChildOfTheRootReplacesItsMemberAloneInARecordThatHoldsOthers) {
    for (const auto& [name, member] : everyTextOfTheRoot) {
        ProfilePolicy record = filled<ProfilePolicy>();
        ASSERT_TRUE(record.parseXMLString(documentOf<ProfilePolicy>(element(name, "new"))));
        ProfilePolicy expected = filled<ProfilePolicy>();
        clearFlagsOfTheRule(expected);
        clearFlagsOfTheRoot(expected);
        (expected.*member).set("new");
        EXPECT_EQ(describe(record), describe(expected)) << name;
    }
}

TEST(ProfilePolicy, MissingUpdateRuleClearsItsFourFlagsAndKeepsTheValues) {
    ProfilePolicy record = filled<ProfilePolicy>();
    const std::string others = compact(filled<ProfilePolicy>());
    const std::string end = "</UpdateRule>";
    const std::size_t ruleAt = others.find("<UpdateRule");
    const std::size_t afterRule = others.find(end) + end.size();
    ASSERT_TRUE(record.parseXMLString(others.substr(0, ruleAt) + others.substr(afterRule)));
    ProfilePolicy expected = filled<ProfilePolicy>();
    clearFlagsOfTheRule(expected);
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ProfilePolicy, UpdateRuleWithoutATypeLeavesTheRuleUnsetAndIsDroppedWithItsChildren) {
    std::string children;
    ProfilePolicy expected;
    for (const auto& [name, member] : everyTextOfTheRule) {
        children += element(name, name);
        (expected.*member).set(name);
    }
    const auto record = parsedFrom<ProfilePolicy>(element("UpdateRule", children));
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), compact(ProfilePolicy()));
}

TEST(ProfilePolicy, AttributeOfTheRuleIsTypeInExactlyThisCase) {
    for (const char* attribute : {"type", "TYPE", "Rule"}) {
        const auto record =
            parsedFrom<ProfilePolicy>(std::string("<UpdateRule ") + attribute + R"(="updateRule 13"/>)");
        EXPECT_EQ(describe(record), describe(ProfilePolicy())) << attribute;
    }
}

TEST(ProfilePolicy, ChildrenOfTheRuleDirectlyUnderTheRootAreNotFound) {
    for (const auto& [name, member] : everyTextOfTheRule) {
        ProfilePolicy expected;
        expected.updateRule.set("R");
        EXPECT_EQ(describe(parsedFrom<ProfilePolicy>(element(name, "text") + R"(<UpdateRule Type="R"/>)")),
                  describe(expected));
    }
}

TEST(ProfilePolicy, ChildrenOfTheRootInsideTheRuleAreNotFound) {
    ProfilePolicy expected;
    expected.updateRule.set("updateRule 13");
    for (const auto& [name, member] : everyTextOfTheRoot) {
        EXPECT_EQ(describe(parsedFrom<ProfilePolicy>(rule(element(name, "text")))), describe(expected)) << name;
    }
    for (const auto& [name, member] : everySwitch) {
        EXPECT_EQ(describe(parsedFrom<ProfilePolicy>(rule(element(name, "true")))), describe(expected)) << name;
    }
}

TEST(ProfilePolicy, OnlyTheFirstUpdateRuleIsRead) {
    ProfilePolicy expected;
    expected.updateRule.set("First");
    const auto record = parsedFrom<ProfilePolicy>(R"(<UpdateRule Type="First"/>)" + rule("<Content>second</Content>"));
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ProfilePolicy, EmptyTextElementIsSetAndLeavesTheText) {
    ProfilePolicy record = filled<ProfilePolicy>();
    const std::string empty = "<UpdateRule><ProfileDescription/><ProfileName/><Content></Content></UpdateRule>"
                              "<ProfileVersion/><ToneCurve></ToneCurve>";
    ASSERT_TRUE(record.parseXMLString(documentOf<ProfilePolicy>(empty)));
    ProfilePolicy expected = filled<ProfilePolicy>();
    expected.version.hasValue = expected.minorVersion.hasValue = false;
    expected.updateRule.hasValue = false;
    for (const auto& [name, member] : everySwitch) {
        (expected.*member).hasValue = false;
    }
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(ProfilePolicy, TextAndRuleAreEscapedAndComeBack) {
    const std::string text = R"(<a> & "b" 'c')";
    ProfilePolicy record;
    record.updateRule.set(text);
    record.profileName.set(text);
    record.toneCurve.set(text);
    const auto back = parsed<ProfilePolicy>(compact(record));
    EXPECT_EQ(back.updateRule, record.updateRule);
    EXPECT_EQ(back.profileName, record.profileName);
    EXPECT_EQ(back.toneCurve, record.toneCurve);
}

TEST(ProfilePolicy, EntitiesAndCDATAAreRead) {
    EXPECT_EQ(parsedFrom<ProfilePolicy>("<ToneCurve>&lt;&#65;&amp;</ToneCurve>").toneCurve.value, "<A&");
    EXPECT_EQ(parsedFrom<ProfilePolicy>("<ToneCurve><![CDATA[a<b>&amp;]]></ToneCurve>").toneCurve.value, "a<b>&amp;");
}

}  // namespace
}  // namespace lv::test
