#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MeasurementData.h>
#include <lvdata/xml/XMLDocument.h>

#include <array>
#include <string>
#include <vector>

namespace lv::test {
namespace {

using Codes = std::vector<unsigned int>;
using Numbers = std::vector<int>;

struct Notation {
    std::string element;
    std::size_t length;
};

const std::array everyNotation = {Notation{"RGB", 3}, Notation{"CMYK", 4}, Notation{"XYZ", 3}, Notation{"CIELAB", 3},
                                  Notation{"PQR", 3}};

/// "1|2|3" for three numbers.
std::string numbersText(std::size_t count) {
    std::string text;
    for (std::size_t number = 1; number <= count; ++number) {
        text += (number == 1 ? "" : "|") + std::to_string(number);
    }
    return text;
}

std::string rowElement(const std::string& children) {
    return element("Measurements", children);
}

/// A row whose notation of that name holds the numbers 1 to `count`, its others nothing.
MeasurementDataObject rowWith(const std::string& notation, std::size_t count) {
    MeasurementDataObject row;
    for (std::size_t number = 1; number <= count; ++number) {
        const auto value = static_cast<int>(number);
        const auto code = static_cast<unsigned int>(number);
        notation == "RGB"      ? row.RGB.push_back(code)
        : notation == "CMYK"   ? row.CMYK.push_back(code)
        : notation == "XYZ"    ? row.XYZ.push_back(value)
        : notation == "CIELAB" ? row.CIELAB.push_back(value)
                               : row.PQR.push_back(value);
    }
    return row;
}

MeasurementData dataOf(const std::vector<MeasurementDataObject>& rows) {
    MeasurementData data;
    data.objects = rows;
    return data;
}

std::vector<MeasurementDataObject> rowsFrom(const std::string& rows) {
    return parsedFrom<MeasurementData>(rows).objects;
}

std::string describeRows(const std::vector<MeasurementDataObject>& rows) {
    return describe(dataOf(rows));
}

TEST(MeasurementData, EmptyListWritesTheRootWithItsVersionAndNoRow) {
    EXPECT_EQ(compact(MeasurementData()), R"(<MeasurementData Version="2" MinorVersion="0"/>)");
    EXPECT_EQ(MeasurementData().getRootElementName(), "MeasurementData");
}

TEST(MeasurementData, FilledRecordWritesAllNotationsOfItsRowsInOrder) {
    EXPECT_EQ(compact(filled<MeasurementData>()),
              R"(<MeasurementData Version="11" MinorVersion="12">)"
              "<Measurements><RGB>13|14|15</RGB><CMYK>16|17|18|19</CMYK><XYZ>-20|21|-22</XYZ>"
              "<CIELAB>23|-24|25</CIELAB><PQR>-26|27|-28</PQR></Measurements>"
              "<Measurements><RGB>29|30|31</RGB><CMYK>32|33|34|35</CMYK><XYZ>-36|37|-38</XYZ>"
              "<CIELAB>39|-40|41</CIELAB><PQR>-42|43|-44</PQR></Measurements>"
              "</MeasurementData>");
}

TEST(MeasurementData, RootWithoutRowsParsesToTrueWithAnEmptyListAndParsedTrue) {
    for (const char* text : {"<MeasurementData/>", "<MeasurementData><RGB>1|2|3</RGB></MeasurementData>"}) {
        const auto data = parsed<MeasurementData>(text);
        EXPECT_TRUE(data.objects.empty());
        EXPECT_TRUE(data.parsed);
    }
}

TEST(MeasurementData, ParsedIsFalseUntilARootElementWasAccepted) {
    MeasurementData data;
    EXPECT_FALSE(data.parsed);
    EXPECT_FALSE(data.parseXMLString("<measurementData/>"));
    EXPECT_FALSE(data.parseXMLString("<MeasurementData>"));
    EXPECT_FALSE(data.parsed);
    EXPECT_TRUE(data.parseXMLString("<MeasurementData/>"));
    EXPECT_FALSE(data.parseXMLString("<Other/>"));
    EXPECT_TRUE(data.parsed);
}

TEST(MeasurementData, RootWhoseNameDiffersOnlyInCaseIsRefusedAndTheRowsSurvive) {
    for (const char* name : {"measurementdata", "MEASUREMENTDATA", "MeasurementdatA"}) {
        MeasurementData data = filled<MeasurementData>();
        EXPECT_FALSE(data.parseXMLString(element(name, rowElement("<RGB>7|8|9</RGB>"))));
        EXPECT_EQ(describe(data), describe(filled<MeasurementData>()));
    }
}

TEST(MeasurementData, ElementNamedMeasurementDataSecondaryIsRefused) {
    MeasurementData data = filled<MeasurementData>();
    EXPECT_FALSE(data.parseXMLString(element("MeasurementDataSecondary", rowElement("<RGB>7|8|9</RGB>"))));
    EXPECT_EQ(describe(data), describe(filled<MeasurementData>()));
}

TEST(MeasurementData, SecondParseLeavesOnlyTheRowsOfTheSecondDocument) {
    MeasurementData data;
    ASSERT_TRUE(
        data.parseXMLString(written<MeasurementData>(rowElement("<RGB>1|2|3</RGB>") + rowElement("<RGB>4|5|6</RGB>"))));
    ASSERT_TRUE(data.parseXMLString(written<MeasurementData>(rowElement("<XYZ>7|8|9</XYZ>"))));
    ASSERT_EQ(data.objects.size(), 1U);
    EXPECT_TRUE(data.objects[0].RGB.empty());
    EXPECT_EQ(data.objects[0].XYZ, (Numbers{7, 8, 9}));
}

TEST(MeasurementData, RowsKeepTheOrderOfTheDocumentAcrossOtherElements) {
    const auto rows = rowsFrom(rowElement("<RGB>1|1|1</RGB>") + "<measurements><RGB>9|9|9</RGB></measurements>" +
                               rowElement("<RGB>2|2|2</RGB>") + "<Other/>" + rowElement("<RGB>3|3|3</RGB>"));
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].RGB, (Codes{1, 1, 1}));
    EXPECT_EQ(rows[1].RGB, (Codes{2, 2, 2}));
    EXPECT_EQ(rows[2].RGB, (Codes{3, 3, 3}));
}

TEST(MeasurementData, RowWithASingleNotationIsKeptWithThatOneOnly) {
    for (const auto& [name, length] : everyNotation) {
        const auto rows = rowsFrom(rowElement(element(name, numbersText(length))));
        EXPECT_EQ(describeRows(rows), describeRows({rowWith(name, length)})) << name;
    }
}

TEST(MeasurementData, RowWithOnlyAPQRChildIsKeptWithOnlyPQRFilled) {
    const auto rows = rowsFrom(rowElement("<PQR>-1|2|3</PQR>"));
    MeasurementDataObject expected;
    expected.PQR = {-1, 2, 3};
    EXPECT_EQ(describeRows(rows), describeRows({expected}));
}

TEST(MeasurementData, RowWithoutAKnownChildIsDropped) {
    EXPECT_TRUE(rowsFrom("<Measurements/>").empty());
    EXPECT_TRUE(rowsFrom(rowElement("<Lab>1|2|3</Lab><rgb>1|2|3</rgb>") + rowElement("text")).empty());
}

TEST(MeasurementData, RowWhoseNotationsAreOneLevelDeeperIsDropped) {
    EXPECT_TRUE(rowsFrom(rowElement("<Colour><RGB>1|2|3</RGB></Colour>")).empty());
}

TEST(MeasurementData, RowOfOnlyEmptyNotationsIsDropped) {
    for (const auto& [name, length] : everyNotation) {
        EXPECT_TRUE(rowsFrom(rowElement('<' + name + "/>")).empty()) << name;
        EXPECT_TRUE(rowsFrom(rowElement(element(name, ""))).empty()) << name;
    }
}

TEST(MeasurementData, EmptyNotationBesideAFilledOneIsLeftEmpty) {
    const auto rows = rowsFrom(rowElement("<RGB/><CMYK>1|2|3|4</CMYK>"));
    EXPECT_EQ(describeRows(rows), describeRows({rowWith("CMYK", 4)}));
}

TEST(MeasurementData, NotationOfSeparatorsAloneCountsAsFoundAndHoldsNoNumber) {
    EXPECT_EQ(describeRows(rowsFrom(rowElement("<RGB>||</RGB>"))), describeRows({MeasurementDataObject()}));
}

TEST(MeasurementData, ParsingKeepsAnyNumberOfEntries) {
    for (const auto& [name, length] : everyNotation) {
        for (std::size_t count = 1; count <= 6; ++count) {
            const auto rows = rowsFrom(rowElement(element(name, numbersText(count))));
            EXPECT_EQ(describeRows(rows), describeRows({rowWith(name, count)})) << name << ' ' << count;
        }
    }
}

TEST(MeasurementData, OnlyANotationOfItsExactLengthIsWritten) {
    for (const auto& [name, length] : everyNotation) {
        for (std::size_t count = 0; count <= 6; ++count) {
            const MeasurementData data = dataOf({rowWith(name, count)});
            const std::string row = rowElement(element(name, numbersText(count)));
            const std::string expected = count == length ? written<MeasurementData>(row) : compact(MeasurementData());
            EXPECT_EQ(compact(data), expected) << name << ' ' << count;
        }
    }
}

TEST(MeasurementData, RowWithRGBOf4EntriesAndNothingElseIsNotWritten) {
    EXPECT_EQ(compact(dataOf({rowWith("RGB", 4)})), compact(MeasurementData()));
}

TEST(MeasurementData, RowWithRGBOf3AndCMYKOf3WritesRGBOnly) {
    MeasurementDataObject row = rowWith("RGB", 3);
    row.CMYK = {1, 2, 3};
    EXPECT_EQ(compact(dataOf({row})), written<MeasurementData>(rowElement("<RGB>1|2|3</RGB>")));
}

TEST(MeasurementData, RowsWithNothingToWriteAreMissingFromTheTextButNotFromTheRecord) {
    const MeasurementData data =
        dataOf({rowWith("RGB", 3), rowWith("RGB", 4), MeasurementDataObject(), rowWith("PQR", 3)});
    EXPECT_EQ(compact(data), written<MeasurementData>(rowElement("<RGB>1|2|3</RGB>") + rowElement("<PQR>1|2|3</PQR>")));
    EXPECT_EQ(data.objects.size(), 4U);
    EXPECT_EQ(parsed<MeasurementData>(compact(data)).objects.size(), 2U);
}

TEST(MeasurementData, RGBAndCMYKAreUnsignedAndTheOthersSigned) {
    const std::string text = "-1|0|99999999999|abc";
    const auto rows = rowsFrom(rowElement(element("RGB", text) + element("CMYK", text) + element("XYZ", text) +
                                          element("CIELAB", text) + element("PQR", text)));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].RGB, (Codes{4294967295U, 0, 4294967295U, 0}));
    EXPECT_EQ(rows[0].CMYK, rows[0].RGB);
    EXPECT_EQ(rows[0].XYZ, (Numbers{-1, 0, 2147483647, 0}));
    EXPECT_EQ(rows[0].CIELAB, rows[0].XYZ);
    EXPECT_EQ(rows[0].PQR, rows[0].XYZ);
}

TEST(MeasurementData, LimitsOfTheNumbersComeBack) {
    MeasurementDataObject row;
    row.RGB = {0, 4294967295U, 1};
    row.XYZ = {-2147483647 - 1, 2147483647, 0};
    const MeasurementData data = dataOf({row});
    EXPECT_EQ(compact(data),
              written<MeasurementData>(rowElement("<RGB>0|4294967295|1</RGB><XYZ>-2147483648|2147483647|0</XYZ>")));
    EXPECT_EQ(describeRows(parsed<MeasurementData>(compact(data)).objects), describeRows({row}));
}

TEST(MeasurementData, EmptyPiecesAreIgnoredAndWhiteSpaceBetweenSeparatorsIsZero) {
    const auto rows = rowsFrom(rowElement("<RGB>|1|| 2|\n3|</RGB><XYZ>1,2|3.9| </XYZ>"));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].RGB, (Codes{1, 2, 3}));
    EXPECT_EQ(rows[0].XYZ, (Numbers{1, 3, 0}));
}

TEST(MeasurementData, ChangingARowOfACopyLeavesTheOriginal) {
    const MeasurementData original = filled<MeasurementData>();
    MeasurementData copy = original;
    copy.objects[0].RGB[0] = 99;
    copy.objects.pop_back();
    copy.parsed = false;
    EXPECT_EQ(describe(original), describe(filled<MeasurementData>()));
}

TEST(MeasurementData, ThousandRowsComeBackInOrder) {
    MeasurementData data;
    for (int index = 0; index < 1000; ++index) {
        data.objects.emplace_back().XYZ = {index, -index, index * 2};
    }
    EXPECT_EQ(describeRows(parsed<MeasurementData>(compact(data)).objects), describe(data));
}

/// An application's record that looks at what it inherits once more, and adds to it.
class CountedMeasurements : public MeasurementData {
public:
    XMLElement appendXMLElement(XMLNode& parent) const override {
        XMLElement root = MeasurementData::appendXMLElement(parent);
        return root.setAttributeInt("Count", static_cast<int>(root.getElements("Measurements").size()));
    }
};

TEST(MeasurementData, AnApplicationsOwnRecordFindsTheRowsThatItInherits) {
    CountedMeasurements data;
    data.objects.resize(3);
    for (auto& row : data.objects) {
        row.RGB = {1, 2, 3};
    }
    for (const bool pretty : {false, true}) {
        XMLDocument document;
        ASSERT_TRUE(document.parseXMLString(data.toXMLString(false, pretty)));
        int count = 0;
        EXPECT_TRUE(document.rootElement().getAttributeInt("Count", count).isValid());
        EXPECT_EQ(count, 3);
        EXPECT_EQ(document.rootElement().getElements("Measurements").size(), 3U);
    }
}

}  // namespace
}  // namespace lv::test
