#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/StandardModeResult.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

/// A nested record: its flag, its text in `filled`, and how it reads another one.
struct Nested {
    std::string name;
    bool StandardModeResult::*flag;
    std::string text;
    DataObject& (*of)(StandardModeResult&);
};

const auto& everyNested() {
    static const std::array all = {Nested{"MeasurementData", &StandardModeResult::hasMeasurementData,
                                          compact(filled<MeasurementData>()),
                                          [](StandardModeResult& record) -> DataObject& {
                                              return record.measurementData;
                                          }},
                                   Nested{"MeasurementDataSecondary", &StandardModeResult::hasMeasurementDataSecondary,
                                          compact(filled<MeasurementDataSecondary>()),
                                          [](StandardModeResult& record) -> DataObject& {
                                              return record.measurementDataSecondary;
                                          }},
                                   Nested{"BasicData", &StandardModeResult::hasBasicData, compact(filled<BasicData>()),
                                          [](StandardModeResult& record) -> DataObject& {
                                              return record.basicData;
                                          }}};
    return all;
}

std::string maxWhiteElement(const std::string& text) {
    return "<MaxWhite>" + text + "</MaxWhite>";
}

StandardModeResult readOver(StandardModeResult record, const std::string& children) {
    EXPECT_TRUE(record.parseXMLString(R"(<StandardModeResult Version="11" MinorVersion="12">)" + children +
                                      "</StandardModeResult>"));
    return record;
}

/// `filled` with every flag of its own clear.
StandardModeResult filledWithoutFlags() {
    StandardModeResult record = filled<StandardModeResult>();
    for (const Nested& nested : everyNested()) {
        record.*nested.flag = false;
    }
    record.maxWhite.hasValue = false;
    return record;
}

TEST(StandardModeResult, DefaultRecordWritesOnlyTheRootWithVersion3AndMinorVersion1) {
    EXPECT_EQ(compact(StandardModeResult()), R"(<StandardModeResult Version="3" MinorVersion="1"/>)");
}

TEST(StandardModeResult, DefaultRecordHoldsDefaultRecordsAndNoFlag) {
    const StandardModeResult record;
    EXPECT_EQ(describe(record.measurementData), describe(MeasurementData()));
    EXPECT_EQ(describe(record.measurementDataSecondary), describe(MeasurementDataSecondary()));
    EXPECT_EQ(describe(record.basicData), describe(BasicData()));
    EXPECT_FALSE(record.hasMeasurementData || record.hasMeasurementDataSecondary || record.hasBasicData);
}

TEST(StandardModeResult, FilledRecordWritesItsRecordsInOrderAndMaxWhiteAsTheThird) {
    EXPECT_EQ(compact(filled<StandardModeResult>()),
              R"(<StandardModeResult Version="11" MinorVersion="12">)" + everyNested()[0].text + everyNested()[1].text +
                  "<MaxWhite>13</MaxWhite>" + everyNested()[2].text + "</StandardModeResult>");
}

TEST(StandardModeResult, EachCombinationOfFlagsDecidesWhatIsWrittenAndWhatComesBack) {
    for (unsigned int flags = 0; flags < 16; ++flags) {
        StandardModeResult record = filled<StandardModeResult>();
        record.hasMeasurementData = (flags & 1U) != 0;
        record.hasMeasurementDataSecondary = (flags & 2U) != 0;
        record.maxWhite.hasValue = (flags & 4U) != 0;
        record.hasBasicData = (flags & 8U) != 0;
        const std::string text = compact(record);
        EXPECT_EQ(text.find(everyNested()[0].text) != std::string::npos, record.hasMeasurementData) << flags;
        EXPECT_EQ(text.find(everyNested()[1].text) != std::string::npos, record.hasMeasurementDataSecondary) << flags;
        EXPECT_EQ(text.find("MaxWhite") != std::string::npos, record.maxWhite.hasValue) << flags;
        EXPECT_EQ(text.find(everyNested()[2].text) != std::string::npos, record.hasBasicData) << flags;
        StandardModeResult back = filledWithoutFlags();
        ASSERT_TRUE(back.parseXMLString(text));
        EXPECT_EQ(describe(back), describe(record)) << flags;
    }
}

TEST(StandardModeResult, OnlyMeasurementDataSecondarySetsItsFlagAloneAndIsWrittenBackAlone) {
    const std::string child = compact(filledAndParsedBack<MeasurementDataSecondary>());
    const auto record = parsedFrom<StandardModeResult>(child);
    StandardModeResult expected;
    expected.measurementDataSecondary = filledAndParsedBack<MeasurementDataSecondary>();
    expected.hasMeasurementDataSecondary = true;
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), written<StandardModeResult>(child));
}

TEST(StandardModeResult, FlagsAloneWriteDefaultRecords) {
    StandardModeResult record;
    record.hasMeasurementData = record.hasMeasurementDataSecondary = record.hasBasicData = true;
    EXPECT_EQ(compact(record), written<StandardModeResult>(R"(<MeasurementData Version="2" MinorVersion="0"/>)"
                                                           R"(<MeasurementDataSecondary Version="2" MinorVersion="0"/>)"
                                                           R"(<BasicData Version="3" MinorVersion="0"/>)"));
}

TEST(StandardModeResult, EmptyNestedRecordCountsAsFound) {
    for (const Nested& nested : everyNested()) {
        EXPECT_TRUE(readOver(StandardModeResult(), '<' + nested.name + "/>").*nested.flag) << nested.name;
    }
}

TEST(StandardModeResult, MalformedBasicDataCannotFailTheOuterParse) {
    for (const char* child :
         {"<BasicData>words</BasicData>", "<BasicData><UsageHours>abc</UsageHours><BasicData/></BasicData>",
          R"(<BasicData Version="x" MinorVersion="">7</BasicData>)", "<basicData/>", "<BASICDATA/>",
          "<BasicData><Executor><Type/></Executor><CorrelationTargetWhite>|x|</CorrelationTargetWhite></BasicData>"}) {
        StandardModeResult record;
        EXPECT_TRUE(record.parseXMLString(documentOf<StandardModeResult>(child))) << child;
        EXPECT_EQ(record.hasBasicData, std::string(child).rfind("<BasicData", 0) == 0) << child;
    }
}

TEST(StandardModeResult, DocumentThatIsNotWellFormedInsideANestedRecordFailsAsAWhole) {
    StandardModeResult record = filled<StandardModeResult>();
    EXPECT_FALSE(record.parseXMLString("<StandardModeResult><MaxWhite>1</MaxWhite><BasicData><UsageHours>9"
                                       "</BasicData></StandardModeResult>"));
    EXPECT_EQ(describe(record), describe(filled<StandardModeResult>()));
}

TEST(StandardModeResult, MissingRecordClearsItsFlagAndKeepsItsMembers) {
    for (const Nested& present : everyNested()) {
        StandardModeResult expected = filledWithoutFlags();
        expected.*present.flag = true;
        EXPECT_EQ(describe(readOver(filled<StandardModeResult>(), present.text)), describe(expected)) << present.name;
    }
    StandardModeResult expected = filledWithoutFlags();
    expected.maxWhite.set(77);
    EXPECT_EQ(describe(readOver(filled<StandardModeResult>(), maxWhiteElement("77"))), describe(expected));
}

TEST(StandardModeResult, SecondParseReadsEachElementIntoTheExistingRecord) {
    for (const Nested& nested : everyNested()) {
        const std::string child = '<' + nested.name +
                                  R"( MinorVersion="5"><UsageMinutes>9</UsageMinutes><Measurements>)"
                                  "<RGB>7|8|9</RGB></Measurements></" +
                                  nested.name + '>';
        StandardModeResult expected = filledWithoutFlags();
        ASSERT_TRUE(nested.of(expected).parseXMLString(child));
        expected.*nested.flag = true;
        EXPECT_EQ(describe(readOver(filled<StandardModeResult>(), child)), describe(expected)) << nested.name;
    }
}

TEST(StandardModeResult, NamesOfNestedRecordsAreComparedWithTheirCase) {
    const auto record = readOver(filled<StandardModeResult>(),
                                 "<measurementData/><MeasurementDatasecondary/><Measurementdata/><basicdata/>"
                                 "<maxWhite>5</maxWhite><MAXWHITE>5</MAXWHITE>");
    EXPECT_EQ(describe(record), describe(filledWithoutFlags()));
}

TEST(StandardModeResult, MisplacedRecordsAreNotRead) {
    for (const Nested& nested : everyNested()) {
        const std::string other = nested.name == "BasicData" ? "MeasurementData" : "BasicData";
        const auto record = readOver(StandardModeResult(), '<' + other + '>' + nested.text + "</" + other + '>');
        EXPECT_FALSE(record.*nested.flag) << nested.name;
    }
}

TEST(StandardModeResult, FirstOfRepeatedRecordsCounts) {
    for (const Nested& nested : everyNested()) {
        const auto record = readOver(StandardModeResult(), '<' + nested.name + "/>" + nested.text);
        EXPECT_EQ(describe(record), describe(readOver(StandardModeResult(), '<' + nested.name + "/>"))) << nested.name;
    }
}

TEST(StandardModeResult, MaxWhiteReadsAsUnsignedWithoutEverFailing) {
    const auto read = [](const std::string& text) {
        return readOver(StandardModeResult(), maxWhiteElement(text)).maxWhite;
    };
    EXPECT_EQ(read("350"), (property<unsigned int>{350, true}));
    EXPECT_EQ(read("-1"), (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(read("99999999999"), (property<unsigned int>{4294967295U, true}));
    EXPECT_EQ(read("abc"), (property<unsigned int>{0, true}));
    EXPECT_EQ(read(""), (property<unsigned int>{0, false}));
}

TEST(StandardModeResult, EmptyMaxWhiteKeepsTheEarlierNumberAndIsNotWritten) {
    const auto record = readOver(filled<StandardModeResult>(), "<MaxWhite/>");
    EXPECT_EQ(record.maxWhite, (property<unsigned int>{13, false}));
    EXPECT_EQ(compact(record).find("MaxWhite"), std::string::npos);
}

TEST(StandardModeResult, MaxWhiteOfZeroIsWrittenWhenItIsSet) {
    StandardModeResult record;
    record.maxWhite.hasValue = true;
    EXPECT_EQ(compact(record), written<StandardModeResult>("<MaxWhite>0</MaxWhite>"));
}

TEST(StandardModeResult, CopiesAreDeep) {
    const auto original = filled<StandardModeResult>();
    StandardModeResult copy = original;
    copy.measurementData.objects[0].RGB[0] = 99;
    copy.measurementDataSecondary.objects.pop_back();
    copy.basicData.correlationTargetWhite.value.clear();
    EXPECT_EQ(describe(original), describe(filled<StandardModeResult>()));
}

}  // namespace
}  // namespace lv::test
