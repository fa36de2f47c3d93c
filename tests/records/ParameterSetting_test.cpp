#include <tests/support/fixed_point_access.h>
#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ParameterSetting.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lv::test {
namespace {

using Gamma = ParameterSetting::gamma_t;

TEST(ParameterSetting, DefaultRecordWritesTheFourParametersWithEmptyTypesAndAClippingOf0) {
    EXPECT_EQ(compact(ParameterSetting()),
              written<ParameterSetting>(R"(<Brightness Type=""/><WhitePoint Type=""/><Gamma Type=""/>)"
                                        R"(<Gamut Type=""><Clipping>0</Clipping></Gamut>)"));
}

TEST(ParameterSetting, DefaultRecordWithTheSwitchWritesAnHLGSystemGammaOf0) {
    ParameterSetting record;
    record.writeHLGSystemGamma = true;
    EXPECT_EQ(compact(record), written<ParameterSetting>(R"(<Brightness Type=""/><WhitePoint Type=""/>)"
                                                         R"(<Gamma Type=""><HLGSystemGamma>0</HLGSystemGamma></Gamma>)"
                                                         R"(<Gamut Type=""><Clipping>0</Clipping></Gamut>)"));
}

TEST(ParameterSetting, FilledRecordWritesAllElementsOfItsTypesInOrder) {
    EXPECT_EQ(compact(filled<ParameterSetting>()),
              R"(<ParameterSetting Version="11" MinorVersion="12">)"
              R"(<Brightness Type="Candela"><Value>14</Value></Brightness>)"
              R"(<WhitePoint Type="Temperature"><Temperature>16</Temperature></WhitePoint>)"
              R"(<Gamma Type="Fixed"><Fixed>HLG</Fixed><PQHLGClipping>pqhlgClipping 21</PQHLGClipping>)"
              "<HLGSystemGamma>22</HLGSystemGamma></Gamma>"
              R"(<Gamut Type="Fixed"><Fixed>fixed 24</Fixed><Clipping>25</Clipping></Gamut>)"
              "<Limited109Setting>26</Limited109Setting></ParameterSetting>");
}

TEST(ParameterSetting, ParametersAreWrittenWhetherOrNotTheyAreSet) {
    ParameterSetting unset = filled<ParameterSetting>();
    unset.brightness.hasValue = false;
    unset.whitePoint.hasValue = false;
    unset.gamma.hasValue = false;
    unset.gamut.hasValue = false;
    EXPECT_EQ(compact(unset), compact(filled<ParameterSetting>()));
}

TEST(ParameterSetting, Limited109SettingIsWrittenOnlyWhenSet) {
    ParameterSetting record;
    record.limited109Setting.value = 5;
    EXPECT_EQ(compact(record), compact(ParameterSetting()));
    record.limited109Setting.hasValue = true;
    EXPECT_EQ(compact(record), written<ParameterSetting>(R"(<Brightness Type=""/><WhitePoint Type=""/><Gamma Type=""/>)"
                                                         R"(<Gamut Type=""><Clipping>0</Clipping></Gamut>)"
                                                         "<Limited109Setting>5</Limited109Setting>"));
}

TEST(ParameterSetting, Limited109SettingIsSetOnlyByAnElementWithText) {
    const auto read = [](const std::string& children) {
        ParameterSetting record;
        record.limited109Setting.set(5);
        EXPECT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(children)));
        return record.limited109Setting;
    };
    EXPECT_EQ(read("<Limited109Setting>0</Limited109Setting>"), (property<unsigned int>{0, true}));
    EXPECT_EQ(read("<Limited109Setting>abc</Limited109Setting>"), (property<unsigned int>{0, true}));
    EXPECT_EQ(read("<Limited109Setting>-1</Limited109Setting>"), (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(read("<Limited109Setting/>"), (property<unsigned int>{5, false}));
    EXPECT_EQ(read("<limited109Setting>6</limited109Setting>"), (property<unsigned int>{5, false}));
    EXPECT_EQ(read(""), (property<unsigned int>{5, false}));
}

TEST(ParameterSetting, TextOfTheDefaultRecordComesBackWithTheFourParametersSet) {
    ParameterSetting expected;
    expected.version.hasValue = expected.minorVersion.hasValue = true;
    expected.brightness.hasValue = true;
    expected.whitePoint.hasValue = true;
    expected.gamma.hasValue = true;
    expected.gamut.hasValue = true;
    EXPECT_EQ(describe(parsed<ParameterSetting>(compact(ParameterSetting()))), describe(expected));
}

TEST(ParameterSetting, HLGSystemGammaIsTheOnlyDifferenceThatTheSwitchMakes) {
    for (const char* type : {"Value", "Fixed", "SyncSignal", "Unknown", ""}) {
        ParameterSetting record = filled<ParameterSetting>();
        record.gamma.value.type = type;
        std::string text = compact(record);
        const std::string element = "<HLGSystemGamma>22</HLGSystemGamma></Gamma>";
        ASSERT_NE(text.find(element), std::string::npos) << text;
        auto parsedBack = parsed<ParameterSetting>(text);
        parsedBack.gamma.value.hlgSystemGamma = 22;
        parsedBack.writeHLGSystemGamma = true;
        EXPECT_EQ(compact(parsedBack), text);
        parsedBack.writeHLGSystemGamma = false;
        record.writeHLGSystemGamma = false;
        EXPECT_EQ(compact(record), compact(parsedBack));
        EXPECT_EQ(compact(record).find("HLGSystemGamma"), std::string::npos) << type;
    }
}

TEST(ParameterSetting, HLGSystemGammaIsReadRegardlessOfTheSwitch) {
    for (const bool value : {false, true}) {
        ParameterSetting record;
        record.writeHLGSystemGamma = value;
        ASSERT_TRUE(
            record.parseXMLString(documentOf<ParameterSetting>("<Gamma><HLGSystemGamma>118</HLGSystemGamma></Gamma>")));
        EXPECT_EQ(record.gamma.value.hlgSystemGamma, 118U);
    }
}

/// A child of a parameter and the member it goes to.
struct Child {
    std::string parameter;
    std::string name;
    std::string text;
    std::function<void(ParameterSetting&)> set;
};

const std::vector<Child>& everyChild() {
    static const std::vector<Child> all = {{"Brightness", "Value", "31",
                                            [](auto& record) {
                                                record.brightness.value.value = 31;
                                            }},
                                           {"WhitePoint", "Temperature", "32",
                                            [](auto& record) {
                                                record.whitePoint.value.temperature = 32;
                                            }},
                                           {"WhitePoint", "Fixed", "33",
                                            [](auto& record) {
                                                record.whitePoint.value.fixed = "33";
                                            }},
                                           {"Gamma", "Value", "34",
                                            [](auto& record) {
                                                record.gamma.value.value = 34;
                                            }},
                                           {"Gamma", "Fixed", "35",
                                            [](auto& record) {
                                                record.gamma.value.fixed = "35";
                                            }},
                                           {"Gamma", "PQHLGClipping", "36",
                                            [](auto& record) {
                                                record.gamma.value.pqhlgClipping = "36";
                                            }},
                                           {"Gamma", "HLGSystemGamma", "37",
                                            [](auto& record) {
                                                record.gamma.value.hlgSystemGamma = 37;
                                            }},
                                           {"Gamut", "Fixed", "38",
                                            [](auto& record) {
                                                record.gamut.value.fixed = "38";
                                            }},
                                           {"Gamut", "Clipping", "39", [](auto& record) {
                                                record.gamut.value.clipping = 39;
                                            }}};
    return all;
}

/// The flag of the parameter set.
void setFlag(ParameterSetting& record, const std::string& parameter) {
    record.brightness.hasValue |= parameter == "Brightness";
    record.whitePoint.hasValue |= parameter == "WhitePoint";
    record.gamma.hasValue |= parameter == "Gamma";
    record.gamut.hasValue |= parameter == "Gamut";
}

TEST(ParameterSetting, EachChildWithoutATypeReplacesItsMemberAndLeavesAllOthers) {
    for (const auto& [parameter, name, text, set] : everyChild()) {
        ParameterSetting record = filled<ParameterSetting>();
        ASSERT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(element(parameter, element(name, text)))));
        ParameterSetting expected = withClearFlags(filled<ParameterSetting>());
        setFlag(expected, parameter);
        set(expected);
        EXPECT_EQ(describe(record), describe(expected)) << parameter << ' ' << name;
    }
}

TEST(ParameterSetting, EmptyChildLeavesItsMemberAndTheFlagFollowsTheParameter) {
    for (const auto& [parameter, name, text, set] : everyChild()) {
        ParameterSetting record = filled<ParameterSetting>();
        ASSERT_TRUE(record.parseXMLString(documentOf<ParameterSetting>(element(parameter, '<' + name + "/>"))));
        ParameterSetting expected = withClearFlags(filled<ParameterSetting>());
        setFlag(expected, parameter);
        EXPECT_EQ(describe(record), describe(expected)) << parameter << ' ' << name;
    }
}

TEST(ParameterSetting, ChildrenOutsideTheirParameterAreNotRead) {
    for (const auto& [parameter, name, text, set] : everyChild()) {
        ParameterSetting expected;
        setFlag(expected, parameter);
        EXPECT_EQ(describe(parsedFrom<ParameterSetting>('<' + parameter + "/>" + element(name, text))),
                  describe(expected));
    }
}

TEST(ParameterSetting, OnlyTheFirstOfRepeatedParametersIsRead) {
    for (const auto& [parameter, name, text, set] : everyChild()) {
        ParameterSetting expected;
        setFlag(expected, parameter);
        const std::string repeated = '<' + parameter + "/>" + element(parameter, element(name, text));
        EXPECT_EQ(describe(parsedFrom<ParameterSetting>(repeated)), describe(expected)) << parameter << ' ' << name;
    }
}

TEST(ParameterSetting, GammaValueOf22Stores220AndANegativeOneStores0) {
    Gamma gamma;
    gamma.value_x(2.2);
    EXPECT_EQ(gamma.value, 220U);
    gamma.value_x(-0.1);
    EXPECT_EQ(gamma.value, 0U);
}

TEST(ParameterSetting, StoredGammaOf245ReadsAs245Hundredths) {
    Gamma gamma;
    gamma.value = 245;
    EXPECT_EQ(gamma.value_x(), 2.45);
}

TEST(ParameterSetting, GammaValueIsHeldInHundredths) {
    const auto stored = [](double value) {
        Gamma gamma;
        gamma.value_x(value);
        return gamma.value;
    };
    const auto read = [](unsigned int number) {
        return Gamma{"", number, "", "", 0}.value_x();
    };
    expectUnsignedFixedPoint(100.0, stored, read);
}

TEST(ParameterSetting, HLGSystemGammaIsHeldInHundredths) {
    const auto stored = [](double value) {
        Gamma gamma;
        gamma.hlgSystemGamma_x(value);
        return gamma.hlgSystemGamma;
    };
    const auto read = [](unsigned int number) {
        return Gamma{"", 0, "", "", number}.hlgSystemGamma_x();
    };
    expectUnsignedFixedPoint(100.0, stored, read);
}

TEST(ParameterSetting, GammaSettersTouchNeitherTypeNorFlagNorAnyOtherMember) {
    for (ParameterSetting record : {ParameterSetting(), filled<ParameterSetting>()}) {
        ParameterSetting expected = record;
        expected.gamma.value.value = 180;
        expected.gamma.value.hlgSystemGamma = 150;
        record.gamma.value.value_x(1.8);
        record.gamma.value.hlgSystemGamma_x(1.5);
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(ParameterSetting, TextIsEscapedAndComesBack) {
    const std::string text = R"(<a> & "b" 'c')";
    ParameterSetting record;
    record.whitePoint.set({"Fixed", 0, text});
    record.gamut.set({text, "", 0});
    const auto back = parsed<ParameterSetting>(compact(record));
    EXPECT_EQ(back.whitePoint.value.fixed, text);
    EXPECT_EQ(back.gamut.value.type, text);
}

}  // namespace
}  // namespace lv::test
