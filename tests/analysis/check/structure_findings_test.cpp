#include "checked.h"

#include <tests/support/repeated.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using lv::analysis::check;
using lv::analysis::CheckOptions;
using lv::analysis::Findings;
using lv::analysis::Severity;
using lv::test::catalogue;
using lv::test::findingsIn;
using lv::test::repeated;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(StructureFindings, NameUnknownElementsAndASimilarName) {
    const auto findings = [](const std::string& name) {
        return findingsIn("<BasicData>\n<" + name + "/></BasicData>");
    };
    EXPECT_THAT(findings("Frob"), ElementsAre("301 line 2 /BasicData/Frob: unknown element \"Frob\" is dropped"));
    for (const std::string name : {"usagehours", "UsageHour", "UsageHoursss", "UsagHurs", "UsageHoues"}) {
        EXPECT_THAT(findings(name), ElementsAre("301 line 2 /BasicData/" + name + ": unknown element \"" + name +
                                                "\" is dropped; did you mean \"UsageHours\"?"));
    }
    EXPECT_THAT(findings("UsageHoursxxxxx"), ElementsAre(testing::Not(HasSubstr("did you mean"))));
}

TEST(StructureFindings, NameUnknownAttributes) {
    EXPECT_THAT(findingsIn("<AssetInfo version='1'>\n<Asset1 lang='en'/></AssetInfo>"),
                ElementsAre("302 line 1 /AssetInfo/@version: unknown attribute \"version\" is dropped; did you mean "
                            "\"Version\"?",
                            "302 line 2 /AssetInfo/Asset1/@lang: unknown attribute \"lang\" is dropped"));
}

TEST(StructureFindings, NameElementsInTheWrongPlace) {
    EXPECT_THAT(
        findingsIn("<MonitorInfo>\n<Asset1/></MonitorInfo>"),
        ElementsAre("309 line 2 /MonitorInfo/Asset1: element \"Asset1\" is in the wrong place and is dropped; it "
                    "belongs in MonitorInfo/AssetInfo"));
}

TEST(StructureFindings, NameRepeatedElements) {
    EXPECT_THAT(findingsIn("<AssetInfo>\n<Asset1>a</Asset1>\n<Asset1>b</Asset1></AssetInfo>\n<AssetInfo/>"),
                ElementsAre("303 line 3 /AssetInfo/Asset1: element \"Asset1\" is repeated: this one is dropped",
                            "004 line 4 : not well-formed XML: something follows the root element; the record may hold "
                            "less than the document",
                            "303 line 4 /AssetInfo: a second root element \"AssetInfo\" is dropped"));
}

TEST(StructureFindings, NameFaultyKeyedElements) {
    const auto measured = [](const std::string& key) {
        return "\n<MeasuredXYZ" + key + ">1|2|3</MeasuredXYZ>";
    };
    EXPECT_THAT(
        findingsIn("<ProfileData>" + measured(" Color='Red'") + measured(" Color='Red'") + measured(" Color='Rod'") +
                       measured("") + "</ProfileData>",
                   CheckOptions{{"305", "310"}}),
        ElementsAre("303 line 2 /ProfileData/MeasuredXYZ: element \"MeasuredXYZ\" is repeated: this one is dropped",
                    "301 line 4 /ProfileData/MeasuredXYZ: element \"MeasuredXYZ\" has an unknown Color, \"Rod\", "
                    "and is dropped",
                    "301 line 5 /ProfileData/MeasuredXYZ: element \"MeasuredXYZ\" has no attribute Color, and is "
                    "dropped"));
}

TEST(StructureFindings, NameArraysThatAreValidOnlyTogether) {
    std::string document = "<ProfileData>";
    for (const std::string color : {"Red", "Green", "Blue", "White", "Black"}) {
        document += "\n<MeasuredXYZ Color='" + color + "'>1|2" + (color == "Blue" ? "" : "|3") + "</MeasuredXYZ>";
    }
    const std::vector<std::string> findings = findingsIn(document + "</ProfileData>");
    ASSERT_EQ(findings.size(), 5U);
    EXPECT_EQ(findings[2],
              "201 line 4 /ProfileData/MeasuredXYZ[@Color='Blue']: the text has 2 entries and needs 3: the whole "
              "array is dropped");
    for (const std::size_t other : {0U, 1U, 3U, 4U}) {
        EXPECT_THAT(findings[other], StartsWith("305 line " + std::to_string(other + 2) + ' '));
        EXPECT_THAT(findings[other], testing::EndsWith(", but ../../MeasuredXYZ[@Color='Blue']/text() has 2 entries"));
    }
}

TEST(StructureFindings, NameRowsByTheirNumber) {
    EXPECT_THAT(
        findingsIn("<MeasurementData>\n<Measurements><RGB>1|2|3</RGB></Measurements>\n<Measurements/>\n"
                   "<Measurements><RGB>1|2</RGB></Measurements>\n</MeasurementData>"),
        ElementsAre("304 line 3 /MeasurementData/Measurements[2]: the row has no content and is dropped",
                    "201 line 4 /MeasurementData/Measurements[3]/RGB: \"RGB\" has 2 entries and needs 3: the whole "
                    "array is dropped"));
}

TEST(StructureFindings, NameTheConditionThatIsNotMet) {
    EXPECT_THAT(
        findingsIn("<ParameterSetting><WhitePoint Type='Temprature'>\n<Temperature>6500</Temperature>"
                   "</WhitePoint></ParameterSetting>"),
        ElementsAre("305 line 2 /ParameterSetting/WhitePoint/Temperature: \"Temperature\" is dropped: it is only "
                    "written when ../@Type is \"Temperature\", but that is \"Temprature\"; did you mean "
                    "\"Temperature\"?"));
    EXPECT_THAT(
        findingsIn("<ParameterSetting><Gamma Type='SyncSignal'>\n<Value>220</Value></Gamma></ParameterSetting>"),
        ElementsAre(
            StartsWith("306 line 2 /ParameterSetting/Gamma/Value: \"Value\" is dropped: it is only read when ")));
}

TEST(StructureFindings, NameCommentsAndTextsThatAreLost) {
    EXPECT_THAT(
        findingsIn("<!--1--><!DOCTYPE x>\n<AssetInfo>\n<!--2-->\n<Asset1>a<!--3-->b</Asset1>\n<Asset2>c</Asset2>d"
                   "</AssetInfo>\n<!--4-->"),
        ElementsAre("307 line 1 : a comment is dropped: \"1\"", "307 line 1 : markup is dropped: \"DOCTYPE x\"",
                    "307 line 3 /AssetInfo: a comment is dropped: \"2\"",
                    "307 line 4 /AssetInfo/Asset1: a comment is dropped: \"3\"",
                    "307 line 4 /AssetInfo/Asset1: further text, \"b\", is dropped",
                    "308 line 5 /AssetInfo: text where only elements belong, \"d\", is dropped",
                    "307 line 6 : a comment is dropped: \"4\""));
}

TEST(StructureFindings, NameWhatARoundTripAdds) {
    EXPECT_THAT(findingsIn("<AssetInfo Version='1'/>", CheckOptions{}),
                ElementsAre("310 line 1 /AssetInfo: attribute \"MinorVersion\" is missing and is added as \"0\""));
    EXPECT_THAT(findingsIn("<AssetInfo Version='7' MinorVersion='2'/>", CheckOptions{}),
                ElementsAre("312 line 1 /AssetInfo/@Version: Version is 7, and this library's is 1",
                            "312 line 1 /AssetInfo/@MinorVersion: MinorVersion is 2, and this library's is 0"));
}

TEST(StructureFindings, AreListedUpToALimitForEachSeverity) {
    CheckOptions options;
    options.mostListed = 3;
    const std::string remarks = repeated("<Measurements><RGB>01|2|3</RGB></Measurements>", 10);
    const std::string warnings = repeated("<Frob/>", 5);
    const Findings findings = check("<MeasurementData>" + remarks + warnings +
                                        "<Measurements><RGB>x|2|3</RGB></Measurements></MeasurementData>",
                                    catalogue(), options);
    EXPECT_EQ(findings.listed.size(), 3U + 3U + 1U);
    EXPECT_EQ(findings.infos, 12U);
    EXPECT_EQ(findings.warnings, 5U);
    EXPECT_EQ(findings.errors, 1U);
    EXPECT_EQ(findings.count(), 18U);
    EXPECT_EQ(findings.countFrom(Severity::warning), 6U);
    for (const auto& finding : findings.listed) {
        EXPECT_FALSE(finding.message.empty());
        EXPECT_FALSE(finding.path.empty());
    }
}

TEST(StructureFindings, HaveLinesAfterMarkupOfManyLines) {
    EXPECT_THAT(findingsIn("<?xml version='1.0'?>\r\n<!-- a\n b -->\n<AssetInfo\n Version='1'\n><Asset1>a\nb</Asset1>\n"
                           "<Frob a='\n\n'/></AssetInfo>",
                           CheckOptions{{"307", "310"}}),
                ElementsAre(StartsWith("301 line 8 ")));
}

TEST(StructureFindings, UseFewBytesEach) {
    const std::string name(1'000'000, 'a');
    const std::string text = "<AssetInfo><" + name + ' ' + name + "='" + name + "'/><Asset1 " + name + "=''/>" + name +
                             "<!--" + name + "--></AssetInfo>";
    EXPECT_THAT(findingsIn(text), testing::SizeIs(4));
    for (const std::string& finding : findingsIn(text)) {
        EXPECT_LT(finding.size(), 250U);
    }
}

TEST(StructureFindings, TakeTimeInProportionToTheirNumber) {
    const std::string rows = repeated("<Measurements><RGB>1|2|3</RGB><Frob a='1'/></Measurements>", 50'000);
    const Findings findings = check("<MeasurementData>" + rows + "</MeasurementData>", catalogue());
    EXPECT_EQ(findings.warnings, 50'000U);
    EXPECT_EQ(check("<AssetInfo>" + repeated("<Asset1x/>", 100'000) + "</AssetInfo>", catalogue()).warnings, 100'000U);
    const std::string entries = repeated("1|", 1'000'000) + "1";
    EXPECT_EQ(check("<CandelaMap><Uniformity><Values>" + entries + "</Values></Uniformity></CandelaMap>", catalogue())
                  .countFrom(Severity::warning),
              0U);
}

TEST(StructureFindings, NameTextThatOnlyAStrictParserRefuses) {
    const auto isRefused = [](const std::string& text) {
        const auto findings = findingsIn(text);
        return findings.size() == 1 && findings.front().rfind("004 line 2 ", 0) == 0;
    };
    EXPECT_TRUE(isRefused("<AssetInfo>\n<Asset1>a&#0;b</Asset1></AssetInfo>"));
    EXPECT_TRUE(isRefused("<AssetInfo>\n<Asset1>a&#;</Asset1></AssetInfo>"));
    EXPECT_TRUE(isRefused("<AssetInfo>\n<Asset1>a&#1;</Asset1></AssetInfo>"));
    EXPECT_TRUE(isRefused("<AssetInfo>\n<Asset1>&nbsp;</Asset1></AssetInfo>"));
    EXPECT_TRUE(isRefused("<AssetInfo/>\n</b><AssetInfo/>"));
}

TEST(StructureFindings, NameAnEncodingOtherThanUTF8) {
    EXPECT_THAT(findingsIn("<?xml version='1.0' encoding='ISO-8859-1'?><AssetInfo/>"),
                ElementsAre("003 line 1 : declares the encoding \"ISO-8859-1\", but is read as UTF-8"));
    EXPECT_THAT(findingsIn("<?xml version='1.0' encoding='utf-8'?><AssetInfo/>"), ElementsAre());
}

TEST(StructureFindings, NameTheConditionOnTheTypeAndASimilarType) {
    EXPECT_THAT(
        findingsIn("<ProfileData>\n<RedTargetCurve Type='lut'>1|2</RedTargetCurve></ProfileData>"),
        testing::Contains(testing::HasSubstr("it is only read when ../@Type is \"Formula\" or \"Lut\", but that "
                                             "is \"lut\"; did you mean \"Lut\"?")));
}
