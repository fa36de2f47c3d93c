#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/BasicData.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

struct Number {
    std::string element;
    property<unsigned int> BasicData::*member;
};

const std::array everyNumber = {Number{"UsageHours", &BasicData::usageHours},
                                Number{"UsageMinutes", &BasicData::usageMinutes},
                                Number{"ColorSensorID", &BasicData::colorSensorID},
                                Number{"ColorSensorCorrection", &BasicData::colorSensorCorrection},
                                Number{"ReferenceColorSensorID", &BasicData::referenceColorSensorID},
                                Number{"ColorSensorCorrelationID", &BasicData::colorSensorCorrelationID},
                                Number{"ColorSensorCorrelationMatrixID", &BasicData::colorSensorCorrelationMatrixID},
                                Number{"ExCorrectionID", &BasicData::exCorrectionID},
                                Number{"BackLightLightingTime", &BasicData::backLightLightingTime},
                                Number{"DUEPriority", &BasicData::DUEPriority}};

struct Text {
    std::string element;
    property<std::string> BasicData::*member;
};

const std::array everyText = {Text{"ColorSensorName", &BasicData::colorSensorName},
                              Text{"ColorSensorSerial", &BasicData::colorSensorSerial},
                              Text{"ReferenceColorSensorName", &BasicData::referenceColorSensorName},
                              Text{"ReferenceColorSensorSerial", &BasicData::referenceColorSensorSerial},
                              Text{"ColorSensorCorrelationDate", &BasicData::colorSensorCorrelationDate},
                              Text{"UseColorSensorCorrelationMatrix", &BasicData::useColorSensorCorrelationMatrix},
                              Text{"ExCorrectionName", &BasicData::exCorrectionName},
                              Text{"Software", &BasicData::software},
                              Text{"executedDate", &BasicData::executedDate}};

/// How `filled` looks when it has read a document with one child alone; `change` makes what that child sets.
template <class Change>
std::string filledAfterOneChild(Change change) {
    BasicData record = filled<BasicData>();
    change(record);
    return describe(record);
}

void clearFlags(BasicData& record) {
    for (const auto& number : everyNumber) {
        (record.*number.member).hasValue = false;
    }
    for (const auto& text : everyText) {
        (record.*text.member).hasValue = false;
    }
    record.correlationTargetWhite.hasValue = false;
    record.justCalibratedWhite.hasValue = false;
}

TEST(BasicData, DefaultRecordWritesTheRootWithItsVersionAndNoChild) {
    EXPECT_EQ(compact(BasicData()), R"(<BasicData Version="3" MinorVersion="0"/>)");
}

TEST(BasicData, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(
        compact(filled<BasicData>()),
        R"(<BasicData Version="11" MinorVersion="12">)"
        "<UsageHours>13</UsageHours><UsageMinutes>14</UsageMinutes>"
        "<ColorSensorID>15</ColorSensorID><ColorSensorName>colorSensorName 16</ColorSensorName>"
        "<ColorSensorSerial>colorSensorSerial 17</ColorSensorSerial><ColorSensorCorrection>18</ColorSensorCorrection>"
        "<ReferenceColorSensorID>19</ReferenceColorSensorID>"
        "<ReferenceColorSensorName>referenceColorSensorName 20</ReferenceColorSensorName>"
        "<ReferenceColorSensorSerial>referenceColorSensorSerial 21</ReferenceColorSensorSerial>"
        "<ColorSensorCorrelationID>22</ColorSensorCorrelationID>"
        "<ColorSensorCorrelationDate>colorSensorCorrelationDate 23</ColorSensorCorrelationDate>"
        "<ColorSensorCorrelationMatrixID>24</ColorSensorCorrelationMatrixID>"
        "<UseColorSensorCorrelationMatrix>useColorSensorCorrelationMatrix 25</UseColorSensorCorrelationMatrix>"
        "<CorrelationTargetWhite>26|27|28</CorrelationTargetWhite>"
        "<JustCalibratedWhite>29|30|31</JustCalibratedWhite>"
        "<ExCorrectionID>32</ExCorrectionID><ExCorrectionName>exCorrectionName 33</ExCorrectionName>"
        "<BackLightLightingTime>34</BackLightLightingTime><Software>software 35</Software>"
        "<executedDate>executedDate 36</executedDate><DUEPriority>37</DUEPriority>"
        "<Executor><Type>executorType 38</Type></Executor>"
        "</BasicData>");
}

TEST(BasicData, ElementWhoseNameDiffersOnlyInCaseIsRefused) {
    for (const char* name : {"basicData", "Basicdata", "BASICDATA"}) {
        BasicData record = filled<BasicData>();
        EXPECT_FALSE(record.parseXMLString(element(name, "<UsageHours>9</UsageHours>")));
        EXPECT_EQ(describe(record), describe(filled<BasicData>())) << name;
    }
}

TEST(BasicData, UseColorSensorCorrelationMatrixWithTrueIsKeptAndWrittenBackAsText) {
    for (const char* text : {"true", "TRUE", "True", "0", "yes"}) {
        const std::string child = element("UseColorSensorCorrelationMatrix", text);
        const BasicData record = parsedFrom<BasicData>(child);
        EXPECT_EQ(record.useColorSensorCorrelationMatrix, (property<std::string>{text, true}));
        EXPECT_EQ(compact(record), written<BasicData>(child));
    }
}

TEST(BasicData, EachNumberIsWrittenAloneUnderItsOwnNameAndReadBackAlone) {
    for (const auto& [name, member] : everyNumber) {
        BasicData record;
        (record.*member).set(4294967295U);
        EXPECT_EQ(compact(record), written<BasicData>(element(name, "4294967295")));
        EXPECT_EQ(describe(parsedFrom<BasicData>(element(name, "4294967295"))), describe(record));
    }
}

TEST(BasicData, EachTextIsWrittenAloneUnderItsOwnNameAndReadBackAlone) {
    for (const auto& [name, member] : everyText) {
        BasicData record;
        (record.*member).set(" 007 & <x>");
        EXPECT_EQ(compact(record), written<BasicData>(element(name, " 007 &amp; &lt;x&gt;")));
        EXPECT_EQ(describe(parsedFrom<BasicData>(element(name, " 007 &#38; &lt;x&gt;"))), describe(record));
    }
}

TEST(BasicData, NumbersThatAreUnsetAreNotWritten) {
    for (const auto& [name, member] : everyNumber) {
        BasicData record;
        (record.*member).value = 5;
        EXPECT_EQ(compact(record), compact(BasicData())) << name;
    }
}

TEST(BasicData, TextsThatAreUnsetAreNotWritten) {
    for (const auto& [name, member] : everyText) {
        BasicData record;
        (record.*member).value = "text";
        EXPECT_EQ(compact(record), compact(BasicData())) << name;
    }
}

TEST(BasicData, ZeroIsWrittenWhenItIsSet) {
    for (const auto& [name, member] : everyNumber) {
        BasicData record;
        (record.*member).hasValue = true;
        EXPECT_EQ(compact(record), written<BasicData>(element(name, "0")));
    }
}

TEST(BasicData, EmptyTextIsWrittenWhenItIsSetAndComesBackSet) {
    for (const auto& [name, member] : everyText) {
        BasicData record;
        (record.*member).hasValue = true;
        EXPECT_EQ(compact(record), written<BasicData>(element(name, "")));
        EXPECT_EQ(describe(parsedFrom<BasicData>(element(name, ""))), describe(record));
    }
}

TEST(BasicData, EmptyNumberCountsAsMissingAndKeepsTheEarlierOne) {
    for (const auto& [name, member] : everyNumber) {
        BasicData record;
        (record.*member).set(5);
        ASSERT_TRUE(record.parseXMLString(documentOf<BasicData>('<' + name + "/>")));
        EXPECT_EQ(record.*member, (property<unsigned int>{5, false})) << name;
    }
}

TEST(BasicData, ElementWithoutTextSetsTheFlagAndKeepsTheEarlierText) {
    for (const auto& [name, member] : everyText) {
        BasicData record;
        (record.*member).value = "earlier";
        ASSERT_TRUE(record.parseXMLString(documentOf<BasicData>('<' + name + "/>")));
        EXPECT_EQ(record.*member, (property<std::string>{"earlier", true})) << name;
    }
}

TEST(BasicData, NumbersReadAsUnsignedWithoutEverFailing) {
    for (const auto& [name, member] : everyNumber) {
        const auto read = [&name = name, &member = member](const std::string& text) {
            return parsedFrom<BasicData>(element(name, text)).*member;
        };
        EXPECT_EQ(read("-1"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read("99999999999"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read(" 12.9"), (property<unsigned int>{12, true})) << name;
        EXPECT_EQ(read("abc"), (property<unsigned int>{0, true})) << name;
    }
}

TEST(BasicData, OneNumberAloneClearsTheFlagsOfAllOthersAndKeepsTheirValues) {
    for (const auto& [name, member] : everyNumber) {
        BasicData record = filled<BasicData>();
        ASSERT_TRUE(record.parseXMLString(R"(<BasicData Version="11" MinorVersion="12">)" + element(name, "77") +
                                          "</BasicData>"));
        EXPECT_EQ(describe(record), filledAfterOneChild([&member = member](BasicData& expected) {
                      clearFlags(expected);
                      (expected.*member).set(77);
                  }));
    }
}

TEST(BasicData, OneTextAloneClearsTheFlagsOfAllOthersAndKeepsTheirValues) {
    for (const auto& [name, member] : everyText) {
        BasicData record = filled<BasicData>();
        ASSERT_TRUE(record.parseXMLString(R"(<BasicData Version="11" MinorVersion="12">)" + element(name, "new") +
                                          "</BasicData>"));
        EXPECT_EQ(describe(record), filledAfterOneChild([&member = member](BasicData& expected) {
                      clearFlags(expected);
                      (expected.*member).set("new");
                  }));
    }
}

TEST(BasicData, ExecutedDateHasASmallInitialUnlikeItsNeighbours) {
    const BasicData record = parsedFrom<BasicData>("<ExecutedDate>2024</ExecutedDate><software>s</software>");
    EXPECT_EQ(describe(record), describe(BasicData()));
    EXPECT_EQ(parsedFrom<BasicData>("<executedDate>2024</executedDate>").executedDate,
              (property<std::string>{"2024", true}));
}

TEST(BasicData, NamesOfElementsAreComparedWithTheirCase) {
    for (const char* child :
         {"<usageHours>1</usageHours>", "<UsageHOURS>1</UsageHOURS>", "<DuePriority>1</DuePriority>",
          "<ColorSensorId>1</ColorSensorId>", "<backLightLightingTime>1</backLightLightingTime>",
          "<correlationTargetWhite>1|2|3</correlationTargetWhite>", "<ColourSensorName>a</ColourSensorName>"}) {
        EXPECT_EQ(describe(parsedFrom<BasicData>(child)), describe(BasicData())) << child;
    }
}

TEST(BasicData, MisplacedElementsAreNotRead) {
    const BasicData record =
        parsedFrom<BasicData>("<Executor><UsageHours>1</UsageHours><Software>s</Software></Executor>"
                              "<BasicData><UsageMinutes>2</UsageMinutes></BasicData>");
    EXPECT_EQ(describe(record), describe(BasicData()));
}

}  // namespace
}  // namespace lv::test
