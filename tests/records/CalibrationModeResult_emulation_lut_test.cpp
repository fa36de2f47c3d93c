#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/CalibrationModeResult.h>

#include <string>
#include <type_traits>

namespace lv::test {
namespace {

using Row = CalibrationModeResultObject;
using Table = Row::EmulationLUT;
static_assert(std::is_same_v<lv::EmulationLUT, Table>, "the type goes by both names");

/// A document of one row with these children.
std::string documentWith(const std::string& children) {
    return documentOf<CalibrationModeResult>("<ColorMode>" + children + "</ColorMode>");
}

Row rowFrom(const std::string& children) {
    return parsed<CalibrationModeResult>(documentWith(children)).objects.at(0);
}

/// What a row with this table has after its profile.
std::string writtenAfterTheProfile(const Table& table) {
    CalibrationModeResult record;
    record.objects.resize(1);
    record.objects[0].emulationLUT = table;
    const std::string text = compact(record);
    const std::string before =
        R"(<CalibrationModeResult Version="2" MinorVersion="0"><ColorMode Type="">)" + compact(ProfileData());
    EXPECT_EQ(text.rfind(before, 0), 0U) << text;
    const std::string after = "</ColorMode></CalibrationModeResult>";
    return text.substr(before.size(), text.size() - before.size() - after.size());
}

void expectRead(const std::string& children, const Table& table) {
    Row expected;
    expected.emulationLUT = table;
    EXPECT_EQ(describe(rowFrom(children)), describe(expected)) << children;
}

TEST(EmulationLUT, FreshTableIsZeroEmptyAndNotPresent) {
    EXPECT_EQ(describe(Table()), "availability = 0\nindex = 0\nname = \"\"\npresent = false\n");
}

TEST(EmulationLUT, PresentTableIsWrittenWithBothNumbersAndItsName) {
    EXPECT_EQ(writtenAfterTheProfile({2, 4294967295U, "a & b", true}),
              "<EmulationLUT><Availability>2</Availability><Index>4294967295</Index><Name>a &amp; b</Name>"
              "</EmulationLUT>");
}

TEST(EmulationLUT, EmptyNameIsNotWrittenAndTheNumbersAreAlsoWhenTheyAreZero) {
    EXPECT_EQ(writtenAfterTheProfile({0, 0, "", true}),
              "<EmulationLUT><Availability>0</Availability><Index>0</Index></EmulationLUT>");
    EXPECT_EQ(writtenAfterTheProfile({1, 0, " ", true}),
              "<EmulationLUT><Availability>1</Availability><Index>0</Index><Name> </Name></EmulationLUT>");
}

TEST(EmulationLUT, TableThatIsNotPresentIsNotWrittenRegardlessOfItsContent) {
    EXPECT_EQ(writtenAfterTheProfile({}), "");
    EXPECT_EQ(writtenAfterTheProfile({2, 3, "Table", false}), "");
}

TEST(EmulationLUT, OnlyNameReadsWithZerosWhichAreWrittenBack) {
    const Table table = rowFrom("<EmulationLUT><Name>Table</Name></EmulationLUT>").emulationLUT;
    EXPECT_EQ(describe(table), describe(Table{0, 0, "Table", true}));
    EXPECT_EQ(writtenAfterTheProfile(table),
              "<EmulationLUT><Availability>0</Availability><Index>0</Index><Name>Table</Name></EmulationLUT>");
}

TEST(EmulationLUT, EachChildIsReadAlone) {
    expectRead("<EmulationLUT><Availability>5</Availability></EmulationLUT>", {5, 0, "", true});
    expectRead("<EmulationLUT><Index>6</Index></EmulationLUT>", {0, 6, "", true});
    expectRead("<EmulationLUT><Name>&lt;7&gt;</Name></EmulationLUT>", {0, 0, "<7>", true});
    expectRead("<EmulationLUT><Name>7</Name><Index>6</Index><Availability>5</Availability></EmulationLUT>",
               {5, 6, "7", true});
}

TEST(EmulationLUT, ElementAloneMakesItPresent) {
    for (const char* element : {"<EmulationLUT/>", "<EmulationLUT></EmulationLUT>", "<EmulationLUT>7</EmulationLUT>",
                                "<EmulationLUT><Availability/><Index></Index><Name/></EmulationLUT>",
                                "<EmulationLUT><availability>1</availability><INDEX>2</INDEX></EmulationLUT>"}) {
        expectRead(element, {0, 0, "", true});
    }
}

TEST(EmulationLUT, ElementsOfOtherNamesAndInOtherPlacesDoNotMakeItPresent) {
    for (const char* element : {"", "<emulationLUT/>", "<EmulationLut><Index>1</Index></EmulationLut>",
                                "<Availability>1</Availability>", "<Other><EmulationLUT/></Other>"}) {
        expectRead(element, {});
    }
    EXPECT_FALSE(rowFrom("<BasicData><EmulationLUT/></BasicData>").emulationLUT.present);
}

TEST(EmulationLUT, IndexAndNameOfTheTableAreNotThoseOfTheRow) {
    const Row inTable = rowFrom("<EmulationLUT><Index>6</Index><Name>table</Name></EmulationLUT>");
    EXPECT_FALSE(inTable.index.hasValue || inTable.name.hasValue);
    const Row inRow = rowFrom("<Index>1</Index><Name>row</Name><EmulationLUT/>");
    EXPECT_EQ(inRow.index.value, 1U);
    EXPECT_EQ(describe(inRow.emulationLUT), describe(Table{0, 0, "", true}));
}

TEST(EmulationLUT, NumbersReadAsUnsignedWithoutEverFailing) {
    expectRead("<EmulationLUT><Availability>-1</Availability><Index>99999999999</Index></EmulationLUT>",
               {4294967295U, 4294967295U, "", true});
    expectRead("<EmulationLUT><Availability>abc</Availability><Index> 7.9</Index></EmulationLUT>", {0, 7, "", true});
}

TEST(EmulationLUT, FirstElementCounts) {
    expectRead("<EmulationLUT/><EmulationLUT><Index>6</Index></EmulationLUT>", {0, 0, "", true});
    expectRead("<EmulationLUT><Index>1</Index><Index>2</Index></EmulationLUT>", {0, 1, "", true});
}

TEST(EmulationLUT, SecondParseStartsFromAFreshTable) {
    CalibrationModeResult record = filled<CalibrationModeResult>();
    ASSERT_TRUE(record.parseXMLString(documentWith("<EmulationLUT><Index>9</Index></EmulationLUT>")));
    EXPECT_EQ(describe(record.objects.at(0).emulationLUT), describe(Table{0, 9, "", true}));
    ASSERT_TRUE(record.parseXMLString(documentWith("")));
    EXPECT_EQ(describe(record.objects.at(0).emulationLUT), describe(Table()));
}

}  // namespace
}  // namespace lv::test
