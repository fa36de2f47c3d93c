#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/CorrelationInfo.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

struct Text {
    std::string element;
    property<std::string> CorrelationInfo::*member;
};

const std::array everyText = {Text{"ReferenceSensorID", &CorrelationInfo::referenceSensorID},
                              Text{"ReferenceSensorSerial", &CorrelationInfo::referenceSensorSerial},
                              Text{"CorrelationDate", &CorrelationInfo::correlationDate}};

TEST(CorrelationInfo, DefaultRecordWritesTheRootWithItsVersionAndNoChild) {
    EXPECT_EQ(compact(CorrelationInfo()), R"(<CorrelationInfo Version="1" MinorVersion="0"/>)");
}

TEST(CorrelationInfo, FilledRecordWritesAllTextsInOrder) {
    EXPECT_EQ(compact(filled<CorrelationInfo>()),
              R"(<CorrelationInfo Version="11" MinorVersion="12">)"
              "<ReferenceSensorID>referenceSensorID 13</ReferenceSensorID>"
              "<ReferenceSensorSerial>referenceSensorSerial 14</ReferenceSensorSerial>"
              "<CorrelationDate>correlationDate 15</CorrelationDate>"
              "</CorrelationInfo>");
}

TEST(CorrelationInfo, NoChildrenParseToTrueWithAllThreeMembersUnset) {
    for (const char* text : {"<CorrelationInfo/>", "<CorrelationInfo></CorrelationInfo>"}) {
        EXPECT_EQ(describe(parsed<CorrelationInfo>(text)), describe(CorrelationInfo()));
    }
}

TEST(CorrelationInfo, ElementNamedBasicDataIsRefused) {
    CorrelationInfo record = filled<CorrelationInfo>();
    EXPECT_FALSE(record.parseXMLString("<BasicData><CorrelationDate>now</CorrelationDate></BasicData>"));
    EXPECT_EQ(describe(record), describe(filled<CorrelationInfo>()));
}

TEST(CorrelationInfo, SensorIdentifier0012KeepsItsLeadingZerosAndIsWrittenBackUnchanged) {
    const std::string child = "<ReferenceSensorID>0012</ReferenceSensorID>";
    const auto record = parsedFrom<CorrelationInfo>(child);
    EXPECT_EQ(record.referenceSensorID, (property<std::string>{"0012", true}));
    EXPECT_EQ(compact(record), written<CorrelationInfo>(child));
}

TEST(CorrelationInfo, EachTextIsWrittenAloneUnderItsOwnName) {
    for (const auto& [element, member] : everyText) {
        CorrelationInfo record;
        (record.*member).set(" 2024/3/7 ");
        EXPECT_EQ(compact(record), written<CorrelationInfo>('<' + element + "> 2024/3/7 </" + element + '>'));
        record.version.hasValue = record.minorVersion.hasValue = true;
        EXPECT_EQ(describe(parsed<CorrelationInfo>(compact(record))), describe(record));
    }
}

TEST(CorrelationInfo, SetButEmptyTextWritesAnEmptyElementAndComesBackSet) {
    for (const auto& [element, member] : everyText) {
        CorrelationInfo record;
        (record.*member).hasValue = true;
        EXPECT_EQ(compact(record), written<CorrelationInfo>('<' + element + "></" + element + '>'));
        EXPECT_TRUE((parsed<CorrelationInfo>(compact(record)).*member).hasValue);
    }
}

TEST(CorrelationInfo, UnsetTextIsNotWritten) {
    for (const auto& [element, member] : everyText) {
        CorrelationInfo record;
        (record.*member).value = "text";
        EXPECT_EQ(compact(record), compact(CorrelationInfo()));
    }
}

TEST(CorrelationInfo, MissingTextClearsItsFlagAndKeepsTheEarlierText) {
    for (const auto& [element, member] : everyText) {
        CorrelationInfo expected = filled<CorrelationInfo>();
        for (const auto& other : everyText) {
            (expected.*other.member).hasValue = false;
        }
        (expected.*member).set("new");
        CorrelationInfo record = filled<CorrelationInfo>();
        ASSERT_TRUE(record.parseXMLString(R"(<CorrelationInfo Version="11" MinorVersion="12"><)" + element + ">new</" +
                                          element + "></CorrelationInfo>"));
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(CorrelationInfo, ElementWithoutTextSetsTheFlagAndKeepsTheEarlierText) {
    CorrelationInfo record;
    record.correlationDate.value = "earlier";
    ASSERT_TRUE(record.parseXMLString("<CorrelationInfo><CorrelationDate/></CorrelationInfo>"));
    EXPECT_EQ(record.correlationDate, (property<std::string>{"earlier", true}));
}

}  // namespace
}  // namespace lv::test
