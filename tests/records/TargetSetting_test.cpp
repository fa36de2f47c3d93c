#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/TargetSetting.h>

#include <array>
#include <string>
#include <vector>

namespace lv::test {
namespace {

struct Text {
    std::string element;
    property<std::string> TargetSetting::*member;
};

const std::array everyText = {Text{"LumivaleVersion", &TargetSetting::lumivaleVersion},
                              Text{"FineContrast", &TargetSetting::fineContrast},
                              Text{"CreationType", &TargetSetting::creationType},
                              Text{"OptimizeForLimited109", &TargetSetting::optimizeForLimited109}};

/// A member of the record and the text that it has when it alone is set and holds nothing but defaults.
struct Member {
    std::string text;
    bool& (*flag)(TargetSetting&);
};

template <auto member>
bool& flagOf(TargetSetting& record) {
    return (record.*member).hasValue;
}

const std::vector<Member> everyMember = {
    {"<LumivaleVersion></LumivaleVersion>", flagOf<&TargetSetting::lumivaleVersion>},
    {"<FineContrast></FineContrast>", flagOf<&TargetSetting::fineContrast>},
    {R"(<Brightness Type=""/>)", flagOf<&TargetSetting::brightness>},
    {R"(<BlackLevel Type=""/>)", flagOf<&TargetSetting::blackLevel>},
    {R"(<WhitePoint Type=""/>)", flagOf<&TargetSetting::whitePoint>},
    {R"(<WhitePointV7 Type=""/>)", flagOf<&TargetSetting::whitePointV7>},
    {R"(<Gamma><Red Type=""/><Green Type=""/><Blue Type=""/></Gamma>)", flagOf<&TargetSetting::gamma>},
    {R"(<GammaV7 Type=""/>)", flagOf<&TargetSetting::gammaV7>},
    {"<Gamut><GamutClipping><Value>0</Value></GamutClipping></Gamut>", flagOf<&TargetSetting::gamut>},
    {R"(<GamutV7 Type=""/>)", flagOf<&TargetSetting::gamutV7>},
    {"<GrayBalance><Type>0</Type></GrayBalance>", flagOf<&TargetSetting::grayBalance>},
    {"<CreationType></CreationType>", flagOf<&TargetSetting::creationType>},
    {"<AdvancedSettings/>", flagOf<&TargetSetting::advancedSettings>},
    {"<OptimizeForLimited109></OptimizeForLimited109>", flagOf<&TargetSetting::optimizeForLimited109>}};

/// `filled` as it looks when it has read a document without any child.
TargetSetting filledWithClearFlags() {
    TargetSetting record = withClearFlags(filled<TargetSetting>());
    record.advancedSettings.value = withClearFlags(record.advancedSettings.value);
    return record;
}

TEST(TargetSetting, FreshRecordWritesTheRootWithVersion32AndNoChild) {
    EXPECT_EQ(compact(TargetSetting()), R"(<TargetSetting Version="3" MinorVersion="2"/>)");
}

TEST(TargetSetting, FreshRecordWithTheSwitchWritesNoChildEither) {
    TargetSetting record;
    record.writeHLGSystemGamma = true;
    EXPECT_EQ(compact(record), compact(TargetSetting()));
}

TEST(TargetSetting, FilledRecordWritesAllElementsOfItsTypesInOrder) {
    const std::string expected =
        R"(<TargetSetting Version="11" MinorVersion="12">)"
        "<LumivaleVersion>lumivaleVersion 13</LumivaleVersion><FineContrast>fineContrast 14</FineContrast>"
        R"(<Brightness Type="Value"><Value>16</Value></Brightness>)"
        R"(<BlackLevel Type="Value"><Value>18</Value></BlackLevel>)"
        R"(<WhitePoint Type="Coordinate"><x>21</x><y>22</y></WhitePoint>)"
        R"(<WhitePointV7 Type="Standard"><Standard>standard 24</Standard></WhitePointV7>)"
        R"(<Gamma><Red Type="Lut24"><Lut24>29|30|31</Lut24></Red>)"
        R"(<Green Type="Lut"><Lut>34|35</Lut></Green>)"
        R"(<Blue Type="Formula"><Formula>40</Formula></Blue><HLGSystemGamma>47</HLGSystemGamma>)"
        "<ImportedLutFile><FileName>fileName 48</FileName></ImportedLutFile></Gamma>"
        R"(<GammaV7 Type="Standard"><Standard>standard 50</Standard></GammaV7>)"
        R"(<Gamut><Red Type="Coordinate"><x>51</x><y>52</y></Red>)"
        R"(<Green Type="Coordinate"><x>53</x><y>54</y></Green>)"
        R"(<Blue Type="Coordinate"><x>55</x><y>56</y></Blue>)"
        "<ProfileName>profileName 57</ProfileName><GamutClipping><Value>58</Value></GamutClipping></Gamut>"
        R"(<GamutV7 Type="Standard"><Standard>standard 60</Standard></GamutV7>)"
        "<GrayBalance><Type>61</Type></GrayBalance><CreationType>creationType 62</CreationType>"
        "<AdvancedSettings><hue>63</hue><saturation>-64</saturation>"
        "<blackLevel><red>65</red><green>-66</green><blue>67</blue></blackLevel><sixColors>"
        "<hue><red>-68</red><green>69</green><blue>-70</blue>"
        "<cyan>71</cyan><magenta>-72</magenta><yellow>73</yellow></hue>"
        "<saturation><red>-74</red><green>75</green><blue>-76</blue>"
        "<cyan>77</cyan><magenta>-78</magenta><yellow>79</yellow></saturation>"
        "<lightness><red>-80</red><green>81</green><blue>-82</blue>"
        "<cyan>83</cyan><magenta>-84</magenta><yellow>85</yellow></lightness></sixColors></AdvancedSettings>"
        "<OptimizeForLimited109>optimizeForLimited109 86</OptimizeForLimited109></TargetSetting>";
    EXPECT_EQ(compact(filled<TargetSetting>()), expected);
}

TEST(TargetSetting, EachMemberIsWrittenAloneAndOnlyWhenSet) {
    for (const auto& [text, flag] : everyMember) {
        TargetSetting record;
        flag(record) = true;
        EXPECT_EQ(compact(record), written<TargetSetting>(text));
    }
}

TEST(TargetSetting, MembersWithClearFlagsAreNotWritten) {
    TargetSetting record = filledWithClearFlags();
    record.advancedSettings.value = filled<TargetSetting>().advancedSettings.value;
    EXPECT_EQ(compact(record), R"(<TargetSetting Version="11" MinorVersion="12"/>)");
}

TEST(TargetSetting, EachMemberLeftOutChangesNoOther) {
    for (const auto& [text, flag] : everyMember) {
        TargetSetting record = filled<TargetSetting>();
        record.writeHLGSystemGamma = true;
        flag(record) = false;
        TargetSetting back = parsed<TargetSetting>(compact(record));
        EXPECT_FALSE(flag(back)) << text;
        back.writeHLGSystemGamma = true;
        for (const auto& [otherText, otherFlag] : everyMember) {
            EXPECT_EQ(otherFlag(back), text != otherText) << otherText;
        }
        EXPECT_EQ(compact(back), compact(record));
    }
}

TEST(TargetSetting, DocumentWithoutChildrenClearsEveryFlagAndKeepsEveryValue) {
    TargetSetting record = filled<TargetSetting>();
    ASSERT_TRUE(record.parseXMLString("<TargetSetting/>"));
    EXPECT_EQ(describe(record), describe(filledWithClearFlags()));
}

TEST(TargetSetting, EachTextIsReadAloneIntoARecordThatHoldsOthers) {
    for (const auto& [name, member] : everyText) {
        TargetSetting record = filled<TargetSetting>();
        ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>(element(name, "new"))));
        TargetSetting expected = filledWithClearFlags();
        (expected.*member).set("new");
        EXPECT_EQ(describe(record), describe(expected)) << name;
    }
}

TEST(TargetSetting, EmptyTextElementIsSetAndLeavesTheText) {
    for (const auto& [name, member] : everyText) {
        TargetSetting record = filled<TargetSetting>();
        ASSERT_TRUE(record.parseXMLString(documentOf<TargetSetting>('<' + name + "/>")));
        TargetSetting expected = filledWithClearFlags();
        (expected.*member).hasValue = true;
        EXPECT_EQ(describe(record), describe(expected)) << name;
    }
}

TEST(TargetSetting, TextIsEscapedAndComesBack) {
    for (const auto& [name, member] : everyText) {
        TargetSetting record;
        (record.*member).set(R"(<a> & "b" 'c')");
        EXPECT_EQ(parsed<TargetSetting>(compact(record)).*member, record.*member) << name;
    }
}

TEST(TargetSetting, GrayBalanceIsTheTextOfTheTypeInsideIt) {
    TargetSetting record;
    record.grayBalance.set(4294967295U);
    EXPECT_EQ(compact(record), written<TargetSetting>("<GrayBalance><Type>4294967295</Type></GrayBalance>"));
    TargetSetting expected;
    expected.grayBalance.set(7);
    EXPECT_EQ(describe(parsedFrom<TargetSetting>("<GrayBalance><Type>7</Type></GrayBalance>")), describe(expected));
}

TEST(TargetSetting, GrayBalanceIsSetOnlyByATypeWithText) {
    const auto read = [](const std::string& children) {
        TargetSetting record;
        record.grayBalance.set(5);
        return afterReading(record, children).grayBalance;
    };
    EXPECT_EQ(read("<GrayBalance><Type>abc</Type></GrayBalance>"), (property<unsigned int>{0, true}));
    EXPECT_EQ(read("<GrayBalance><Type>-1</Type></GrayBalance>"), (property<unsigned int>{4294967295U, true}));
    for (const char* text :
         {"", "<GrayBalance/>", "<GrayBalance>6</GrayBalance>", R"(<GrayBalance Type="6"/>)",
          "<GrayBalance><Type/></GrayBalance>", "<Type>6</Type>", "<GrayBalance><type>6</type></GrayBalance>"}) {
        EXPECT_EQ(read(text), (property<unsigned int>{5, false})) << text;
    }
}

TEST(TargetSetting, ElementsOfBothGenerationsAreReadAndWrittenTogether) {
    const std::string both = R"(<WhitePoint Type="Temperature"><Temperature>6500</Temperature></WhitePoint>)"
                             R"(<WhitePointV7 Type="Standard"><Standard>D65</Standard></WhitePointV7>)"
                             R"(<Gamma><Red Type="PQ"/><Green Type="PQ"/><Blue Type="PQ"/>)"
                             R"(<PQHLGClipping>Hard</PQHLGClipping></Gamma>)"
                             R"(<GammaV7 Type="Standard"><Standard>PQ</Standard></GammaV7>)"
                             "<Gamut><GamutClipping><Value>1</Value></GamutClipping></Gamut>"
                             R"(<GamutV7 Type="Standard"><Standard>Wide</Standard></GamutV7>)";
    const auto record = parsedFrom<TargetSetting>(both);
    TargetSetting expected;
    expected.whitePoint.set({"Temperature", 6500, 0, 0});
    expected.whitePointV7.set({"Standard", "D65"});
    const TargetSetting::gamma_t::gamma_color curve = {"PQ", 0, {}, {}};
    expected.gamma.set({curve, curve, curve, "Hard", 0, {}});
    expected.gammaV7.set({"Standard", "PQ"});
    expected.gamut.value.gamutClipping = 1;
    expected.gamut.hasValue = true;
    expected.gamutV7.set({"Standard", "Wide"});
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), written<TargetSetting>(both));
}

TEST(TargetSetting, ElementsOfOneGenerationDoNotSetThoseOfTheOther) {
    const auto newer = parsedFrom<TargetSetting>(R"(<WhitePointV7 Type=""/><GammaV7 Type=""/><GamutV7 Type=""/>)");
    EXPECT_FALSE(newer.whitePoint.hasValue || newer.gamma.hasValue || newer.gamut.hasValue);
    EXPECT_TRUE(newer.whitePointV7.hasValue && newer.gammaV7.hasValue && newer.gamutV7.hasValue);
    const auto older = parsedFrom<TargetSetting>(R"(<WhitePoint Type=""/><Gamma><Red/></Gamma><Gamut/>)");
    EXPECT_TRUE(older.whitePoint.hasValue && older.gamma.hasValue && older.gamut.hasValue);
    EXPECT_FALSE(older.whitePointV7.hasValue || older.gammaV7.hasValue || older.gamutV7.hasValue);
}

TEST(TargetSetting, CopyOwnsItsCurvesAndSettings) {
    const auto original = filled<TargetSetting>();
    TargetSetting copy = original;
    copy.gamma.value.red.lut.at(0) = 9;
    copy.gamma.value.green.lut24.clear();
    copy.gamma.value.importedLutFile.fileName = "other";
    copy.advancedSettings.value.sixColorsHue.value.cyan = 9;
    copy.gamut.value.profileName += '!';
    EXPECT_EQ(describe(original), describe(filled<TargetSetting>()));
    const TargetSetting::gamma_t gamma = original.gamma.value;
    EXPECT_EQ(describe(gamma), describe(original.gamma.value));
}

}  // namespace
}  // namespace lv::test
