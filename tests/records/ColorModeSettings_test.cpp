#include <tests/support/ParsedDocument.h>
#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/ColorModeSettings.h>

#include <array>
#include <string>
#include <vector>

// The list, its rows and what a row holds by itself. Which nested records belong to which type:
// ColorModeSettings_types.

namespace lv::test {
namespace {

const std::string defaultPolicy = R"(<ProfilePolicy Version="2" MinorVersion="0"/>)";

struct Number {
    std::string element;
    property<unsigned int> ColorModeSettingsObject::*member;
};

const std::array everyNumber = {Number{"Index", &ColorModeSettingsObject::index},
                                Number{"Availability", &ColorModeSettingsObject::availability}};

/// The document of one row without a type, with these children before its policy.
std::string writtenRow(const std::string& children) {
    return written<ColorModeSettings>(R"(<ColorMode Type="">)" + children + defaultPolicy + "</ColorMode>");
}

ColorModeSettings listOf(const std::vector<ColorModeSettingsObject>& rows) {
    ColorModeSettings list;
    list.objects = rows;
    return list;
}

/// The rows of a list with these elements.
std::vector<ColorModeSettingsObject> rowsFrom(const std::string& rows) {
    return parsedFrom<ColorModeSettings>(rows).objects;
}

/// The only row of a list whose only row is this element.
ColorModeSettingsObject rowFrom(const std::string& row) {
    const auto rows = rowsFrom(row);
    EXPECT_EQ(rows.size(), 1U) << row;
    return rows.empty() ? ColorModeSettingsObject() : rows.front();
}

ColorModeSettingsObject rowNamed(const std::string& name) {
    ColorModeSettingsObject row;
    row.name.set(name);
    return row;
}

/// What is inside the sample's element for that row.
std::string numberedChildren(unsigned int first) {
    return element("Index", std::to_string(first)) + element("Name", "name " + std::to_string(first + 1)) +
           element("Availability", std::to_string(first + 2));
}

TEST(ColorModeSettings, EmptyListWritesTheRootWithItsVersionAndNoRow) {
    EXPECT_EQ(compact(ColorModeSettings()), R"(<ColorModeSettings Version="2" MinorVersion="0"/>)");
}

TEST(ColorModeSettings, FilledRecordWritesItsRowsInOrderWithWhatBelongsToTheirTypes) {
    EXPECT_EQ(compact(filled<ColorModeSettings>()),
              R"(<ColorModeSettings Version="11" MinorVersion="12"><ColorMode Type="SyncSignal">)" +
                  numberedChildren(14) + compact(filled<ParameterSetting>()) + compact(filled<ProfilePolicy>()) +
                  R"(</ColorMode><ColorMode Type="Calibration">)" + numberedChildren(18) +
                  R"(<Target Type="Lumivale">)" + compact(filled<TargetSetting>()) + "</Target>" +
                  compact(filled<ProfilePolicy>()) + R"(</ColorMode><ColorMode Type="Standard">)" +
                  numberedChildren(22) + compact(filled<ParameterSetting>()) + compact(filled<ProfilePolicy>()) +
                  "</ColorMode></ColorModeSettings>");
}

TEST(ColorModeSettings, ListWithoutChildrenParsesToNoRowsWithParsedTrueAndWritesTheRootAlone) {
    const auto list = parsed<ColorModeSettings>("<ColorModeSettings/>");
    EXPECT_TRUE(list.objects.empty());
    EXPECT_TRUE(list.parsed);
    EXPECT_EQ(compact(list), R"(<ColorModeSettings Version="2" MinorVersion="0"/>)");
}

TEST(ColorModeSettings, ParsedIsFalseUntilARootElementWasAcceptedAndThenStaysTrue) {
    ColorModeSettings list;
    EXPECT_FALSE(list.parsed);
    EXPECT_FALSE(list.parseXMLString("<colorModeSettings/>"));
    EXPECT_FALSE(list.parseXMLString("<ColorModeSettings>"));
    EXPECT_FALSE(list.parsed);
    EXPECT_TRUE(list.parseXMLString("<ColorModeSettings/>"));
    EXPECT_FALSE(list.parseXMLString("<Other/>"));
    EXPECT_TRUE(list.parsed);
}

TEST(ColorModeSettings, FreshRowWritesAnEmptyTypeAndADefaultPolicy) {
    EXPECT_EQ(compact(listOf({ColorModeSettingsObject()})), writtenRow(""));
}

TEST(ColorModeSettings, EmptyElementMakesARowWithEverythingUnset) {
    EXPECT_EQ(describe(rowFrom("<ColorMode/>")), describe(ColorModeSettingsObject()));
    EXPECT_EQ(describe(rowFrom("<ColorMode>text</ColorMode>")), describe(ColorModeSettingsObject()));
}

TEST(ColorModeSettings, EveryColorModeElementMakesARowInDocumentOrder) {
    const auto rows = rowsFrom("<ColorMode><Name>a</Name></ColorMode><Other/><ColorMode/><colorMode/>"
                               "<ColorMode><Name>b</Name></ColorMode><!-- c --><ColorModes/>");
    const auto expected = listOf({rowNamed("a"), ColorModeSettingsObject(), rowNamed("b")});
    EXPECT_EQ(describe(listOf(rows)), describe(expected));
}

TEST(ColorModeSettings, RowsAreReadDirectlyUnderTheRootOnly) {
    EXPECT_TRUE(rowsFrom("<Other><ColorMode/></Other>").empty());
    const auto row = rowFrom("<ColorMode><ColorMode><Name>inner</Name></ColorMode></ColorMode>");
    EXPECT_EQ(describe(row), describe(ColorModeSettingsObject()));
}

TEST(ColorModeSettings, ChildrenOfARowUnderTheRootAreNotRead) {
    const auto list = parsedFrom<ColorModeSettings>(element("Index", "1") + element("Name", "a") +
                                                    element("Availability", "2") + compact(ProfilePolicy()));
    EXPECT_TRUE(list.objects.empty());
}

TEST(ColorModeSettings, TypeThatIsMissingIsUnsetAndAnEmptyOneIsSet) {
    EXPECT_EQ(rowFrom("<ColorMode/>").type, (property<std::string>{"", false}));
    EXPECT_EQ(rowFrom(R"(<ColorMode Type=""/>)").type, (property<std::string>{"", true}));
    EXPECT_EQ(rowFrom(R"(<ColorMode type="Standard"/>)").type, (property<std::string>{"", false}));
    EXPECT_EQ(rowFrom("<ColorMode><Type>Standard</Type></ColorMode>").type, (property<std::string>{"", false}));
}

TEST(ColorModeSettings, TypeAndNameTakeAnyTextAndComeBack) {
    const std::string text = " <B\u00fcro> & \"1\" 'a' \u6771\u4eac ";
    ColorModeSettingsObject row = rowNamed(text);
    row.type.set(text);
    const auto back = parsed<ColorModeSettings>(compact(listOf({row}))).objects.at(0);
    EXPECT_EQ(back.type, row.type);
    EXPECT_EQ(back.name, row.name);
}

TEST(ColorModeSettings, EntitiesInTypeAndNameAreResolved) {
    const auto row = rowFrom(R"(<ColorMode Type="&lt;&#65;&quot;"><Name>&amp;&#x42;</Name></ColorMode>)");
    EXPECT_EQ(row.type, (property<std::string>{"<A\"", true}));
    EXPECT_EQ(row.name, (property<std::string>{"&B", true}));
}

TEST(ColorModeSettings, IndexNameAndAvailabilityAreWrittenEachByItsOwnFlag) {
    for (unsigned int flags = 0; flags < 8; ++flags) {
        ColorModeSettingsObject row;
        row.index = {5, (flags & 1U) != 0};
        row.name = {"six", (flags & 2U) != 0};
        row.availability = {7, (flags & 4U) != 0};
        EXPECT_EQ(compact(listOf({row})),
                  writtenRow((row.index.hasValue ? "<Index>5</Index>" : std::string()) +
                             (row.name.hasValue ? "<Name>six</Name>" : "") +
                             (row.availability.hasValue ? "<Availability>7</Availability>" : "")));
    }
}

TEST(ColorModeSettings, EachChildIsReadAloneAndSetsNothingElse) {
    for (const auto& [name, member] : everyNumber) {
        ColorModeSettingsObject expected;
        (expected.*member).set(77);
        EXPECT_EQ(describe(rowFrom(element("ColorMode", element(name, "77")))), describe(expected));
    }
    EXPECT_EQ(describe(rowFrom("<ColorMode><Name>a</Name></ColorMode>")), describe(rowNamed("a")));
}

TEST(ColorModeSettings, ChildWhoseNameDiffersInCaseIsNotRead) {
    const auto row = rowFrom("<ColorMode><index>1</index><NAME>a</NAME><availability>2</availability></ColorMode>");
    EXPECT_EQ(describe(row), describe(ColorModeSettingsObject()));
}

TEST(ColorModeSettings, FirstOfRepeatedChildrenWins) {
    const auto row = rowFrom("<ColorMode><Index>1</Index><Index>2</Index><Name>a</Name><Name>b</Name></ColorMode>");
    EXPECT_EQ(row.index, (property<unsigned int>{1, true}));
    EXPECT_EQ(row.name, (property<std::string>{"a", true}));
}

TEST(ColorModeSettings, NumbersReadAsUnsignedWithoutEverFailing) {
    for (const auto& [name, member] : everyNumber) {
        const auto read = [&, &name = name, &member = member](const std::string& text) {
            return rowFrom(element("ColorMode", element(name, text))).*member;
        };
        EXPECT_EQ(read("-1"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read("99999999999"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read(" 12.9"), (property<unsigned int>{12, true})) << name;
        EXPECT_EQ(read("abc"), (property<unsigned int>{0, true})) << name;
        EXPECT_EQ(read(""), (property<unsigned int>{0, false})) << name;
    }
}

TEST(ColorModeSettings, EmptyNameIsSetAndIsWrittenBack) {
    const auto list = parsedFrom<ColorModeSettings>("<ColorMode><Name/></ColorMode>");
    EXPECT_EQ(list.objects.at(0).name, (property<std::string>{"", true}));
    EXPECT_EQ(compact(list), writtenRow("<Name></Name>"));
}

TEST(ColorModeSettings, ParsingReplacesTheRowsAndNeverMerges) {
    auto list = filled<ColorModeSettings>();
    ASSERT_TRUE(list.parseXMLString(documentOf<ColorModeSettings>("<ColorMode><Name>new</Name></ColorMode>")));
    EXPECT_EQ(describe(listOf(list.objects)), describe(listOf({rowNamed("new")})));
    ASSERT_TRUE(list.parseXMLString("<ColorModeSettings/>"));
    EXPECT_TRUE(list.objects.empty());
}

TEST(ColorModeSettings, RootThatDiffersInCaseLeavesTheRowsInPlace) {
    for (const char* text : {"<colorModeSettings/>", "<COLORMODESETTINGS/>", "<ColorModeSetting/>", "<ColorMode/>"}) {
        auto list = filled<ColorModeSettings>();
        EXPECT_FALSE(list.parseXMLString(text));
        EXPECT_EQ(describe(list), describe(filled<ColorModeSettings>())) << text;
    }
}

TEST(ColorModeSettings, RowThatBreaksTheDocumentLeavesTheRowsInPlace) {
    auto list = filled<ColorModeSettings>();
    EXPECT_FALSE(list.parseXMLString(documentOf<ColorModeSettings>("<ColorMode/><ColorMode><Name>a</ColorMode>")));
    EXPECT_EQ(describe(list), describe(filled<ColorModeSettings>()));
}

TEST(ColorModeSettings, ParsedRowsStartFromAFreshRowEachTime) {
    const auto rows =
        rowsFrom(R"(<ColorMode Type="Standard">)" + numberedChildren(1) + compact(filled<ParameterSetting>()) +
                 compact(filled<ProfilePolicy>()) + "</ColorMode><ColorMode/>");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(describe(rows[1]), describe(ColorModeSettingsObject()));
}

TEST(ColorModeSettings, CopiedRowsShareNothing) {
    const auto original = filled<ColorModeSettings>();
    ColorModeSettings copy = original;
    for (ColorModeSettingsObject& row : copy.objects) {
        row.parameterSetting.value.gamma.value.fixed = "changed";
        row.targetSetting.value.gamma.value.red.lut.push_back(9);
        row.profilePolicy.value.content.set("changed");
    }
    copy.objects.push_back(copy.objects.front());
    copy.objects.front().name.set("changed");
    EXPECT_EQ(copy.objects.back().name, original.objects.front().name);
    EXPECT_EQ(describe(original), describe(filled<ColorModeSettings>()));
}

TEST(ColorModeSettings, ManyRowsComeBackInOrder) {
    ColorModeSettings list;
    for (unsigned int number = 0; number < 500; ++number) {
        list.objects.emplace_back().index.set(number);
    }
    const auto rows = parsed<ColorModeSettings>(compact(list)).objects;
    ASSERT_EQ(rows.size(), 500U);
    for (unsigned int number = 0; number < 500; ++number) {
        EXPECT_EQ(rows[number].index, (property<unsigned int>{number, true}));
    }
}

TEST(ColorModeSettings, AppendReturnsTheRootAmongTheChildrenOfTheParent) {
    const ParsedDocument document("<Outer><First/></Outer>");
    XMLElement outer = document.root();
    const XMLElement root = listOf({rowNamed("a")}).appendXMLElement(outer);
    EXPECT_EQ(root.elementName(), "ColorModeSettings");
    EXPECT_EQ(document.text(), "<Outer><First/>" + writtenRow("<Name>a</Name>") + "</Outer>");
}

}  // namespace
}  // namespace lv::test
