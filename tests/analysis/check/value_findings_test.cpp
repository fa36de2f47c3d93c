#include "checked.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using lv::test::findingsIn;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string usageHours(const std::string& text) {
    return "<BasicData>\n    <UsageHours>" + text + "</UsageHours>\n</BasicData>";
}

const std::string usageHoursPath = " line 2 /BasicData/UsageHours: ";

std::string maps(const std::string& text) {
    return "<CandelaMap>\n    <Uniformity>\n        <Values>" + text + "</Values>\n    </Uniformity>\n</CandelaMap>";
}

const std::string mapsPath = " line 3 /CandelaMap/Uniformity/Values: ";

}  // namespace

TEST(ValueFindings, NameFaultyNumbersInElements) {
    EXPECT_THAT(findingsIn(usageHours("7")), IsEmpty());
    EXPECT_THAT(findingsIn(usageHours("x7")),
                ElementsAre("101" + usageHoursPath + "\"x7\" is not a number, reads as 0"));
    EXPECT_THAT(findingsIn(usageHours("4294967296")),
                ElementsAre("102" + usageHoursPath +
                            "\"4294967296\" is outside the range 0 to 4294967295, reads as 4294967295"));
    EXPECT_THAT(
        findingsIn(usageHours("-7")),
        ElementsAre("103" + usageHoursPath + "\"-7\" is negative, but the number is unsigned: reads as 4294967289"));
    EXPECT_THAT(findingsIn(usageHours("7,5")),
                ElementsAre("104" + usageHoursPath + "the text after the number in \"7,5\" is ignored, reads as 7"));
    EXPECT_THAT(findingsIn(usageHours("07")), ElementsAre("105" + usageHoursPath + "\"07\" is written back as 7"));
}

TEST(ValueFindings, NameFaultyNumbersInAttributes) {
    EXPECT_THAT(findingsIn("<AssetInfo\n Version='one'/>"),
                ElementsAre("101 line 2 /AssetInfo/@Version: \"one\" is not a number, reads as 0"));
    EXPECT_THAT(findingsIn("<AssetInfo Version=''/>"),
                ElementsAre("107 line 1 /AssetInfo/@Version: attribute \"Version\" is empty, so it counts as missing; "
                            "\"1\" is written"));
}

TEST(ValueFindings, NameFaultySwitches) {
    const auto findings = [](const std::string& text) {
        return findingsIn("<ProfilePolicy>\n<Create3DLut>" + text + "</Create3DLut></ProfilePolicy>");
    };
    const std::string path = " line 2 /ProfilePolicy/Create3DLut: ";
    EXPECT_THAT(findings("true"), IsEmpty());
    EXPECT_THAT(findings("false"), IsEmpty());
    EXPECT_THAT(findings("TRUE"), ElementsAre("105" + path + R"("TRUE" is written back as "true")"));
    EXPECT_THAT(findings("True"),
                ElementsAre("106" + path + R"("True" is neither "true" nor "false", reads as false)"));
    EXPECT_THAT(findings("1"), ElementsAre("106" + path + R"("1" is neither "true" nor "false", reads as false)"));
}

TEST(ValueFindings, AreOneForEachKindOfFaultInAnArray) {
    EXPECT_THAT(findingsIn(maps("1|2|3")), IsEmpty());
    EXPECT_THAT(
        findingsIn(maps("1|x|y|-2|99999999999|4.5|06|")),
        ElementsAre("105" + mapsPath + "entry 7: \"06\" is written back as 6",
                    "108" + mapsPath + "entry 8 is empty: it is dropped, and later entries move up",
                    "101" + mapsPath + "entry 2 (and 1 more): \"x\" is not a number, reads as 0",
                    "102" + mapsPath +
                        "entry 5: \"99999999999\" is outside the range 0 to 4294967295, reads as 4294967295",
                    "103" + mapsPath + "entry 4: \"-2\" is negative, but the number is unsigned: reads as 4294967294",
                    "104" + mapsPath + "entry 6: the text after the number in \"4.5\" is ignored, reads as 4"));
}

TEST(ValueFindings, NameEmptyEntriesAnywhereInAnArray) {
    EXPECT_THAT(findingsIn(maps("|1")), ElementsAre(HasSubstr("108" + mapsPath + "entry 1 is empty")));
    EXPECT_THAT(findingsIn(maps("1||2||3")),
                ElementsAre(HasSubstr("108" + mapsPath + "entry 2 (and 1 more) is empty")));
}

TEST(ValueFindings, NameArraysInRows) {
    EXPECT_THAT(findingsIn("<MeasurementData>\n<Measurements><RGB>1|2|3</RGB></Measurements>\n"
                           "<Measurements><XYZ>1|-2|3,5</XYZ></Measurements></MeasurementData>"),
                ElementsAre("104 line 3 /MeasurementData/Measurements[2]/XYZ: entry 3: the text after the number in "
                            "\"3,5\" is ignored, reads as 3"));
}

TEST(ValueFindings, NameTextThatIsNotKept) {
    EXPECT_THAT(findingsIn("<AssetInfo><Asset1>a&#13;b</Asset1></AssetInfo>"),
                ElementsAre("109 line 1 /AssetInfo/Asset1: \"a\rb\" is written back as \"a\rb\""));
    EXPECT_THAT(findingsIn("<AssetInfo><Asset1>&#32;</Asset1></AssetInfo>"), ElementsAre(HasSubstr("109 line 1")));
    EXPECT_THAT(findingsIn("<AssetInfo><Asset1>  a\nb </Asset1></AssetInfo>"), IsEmpty());
    EXPECT_THAT(findingsIn("<AssetInfo><Asset1><![CDATA[<a>]]></Asset1></AssetInfo>"), IsEmpty());
    EXPECT_THAT(findingsIn("<AssetInfo><Asset1></Asset1></AssetInfo>"), IsEmpty());
}

TEST(ValueFindings, ShowLongTextsCut) {
    const std::string sixty(60, 'x');
    EXPECT_THAT(findingsIn(usageHours(sixty)), ElementsAre(HasSubstr('"' + sixty + "\" is not a number")));
    EXPECT_THAT(findingsIn(usageHours(sixty + 'x')), ElementsAre(HasSubstr('"' + sixty + "...\" is not a number")));
    EXPECT_THAT(findingsIn(usageHours(std::string(59, 'x') + "\u20AC")),
                ElementsAre(HasSubstr('"' + std::string(59, 'x') + "...\" is not a number")));
}
