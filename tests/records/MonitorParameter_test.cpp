#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorParameter.h>

#include <array>
#include <numeric>
#include <string>
#include <vector>

namespace lv::test {
namespace {

struct Scalar {
    std::string element;
    property<unsigned int> MonitorParameter::*member;
};

const std::array everyScalar = {Scalar{"Brightness", &MonitorParameter::brightness},
                                Scalar{"Contrast", &MonitorParameter::contrast},
                                Scalar{"isHDRLUT", &MonitorParameter::isHDRLUT},
                                Scalar{"HLGSystemGamma", &MonitorParameter::hlgSystemGamma},
                                Scalar{"HLGClipping", &MonitorParameter::hlgClipping},
                                Scalar{"RedGain", &MonitorParameter::redGain},
                                Scalar{"GreenGain", &MonitorParameter::greenGain},
                                Scalar{"BlueGain", &MonitorParameter::blueGain},
                                Scalar{"Limited109Setting", &MonitorParameter::limited109Setting}};

struct Table {
    std::string element;
    property<std::vector<unsigned int>> MonitorParameter::*member;
};

const std::array everyTable = {Table{"RedLUT", &MonitorParameter::redLUT},
                               Table{"GreenLUT", &MonitorParameter::greenLUT},
                               Table{"BlueLUT", &MonitorParameter::blueLUT}};

const std::array<std::size_t, 10> everyLength = {1, 2, 255, 256, 257, 512, 1023, 1024, 1025, 2048};

bool isTableLength(std::size_t length) {
    return length == 256 || length == 1024;
}

template <class Number>
std::vector<Number> numbersFrom(Number first, std::size_t count) {
    std::vector<Number> numbers(count);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

TEST(MonitorParameter, DefaultRecordWritesTheRootWithItsVersionAndNoChild) {
    EXPECT_EQ(compact(MonitorParameter()), R"(<MonitorParameter Version="4" MinorVersion="0"/>)");
}

TEST(MonitorParameter, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(compact(filled<MonitorParameter>()),
              R"(<MonitorParameter Version="11" MinorVersion="12">)"
              "<Brightness>13</Brightness><Contrast>14</Contrast><isHDRLUT>15</isHDRLUT>" +
                  element("RedLUT", arrayText(numbersFrom(16, 256))) +
                  element("GreenLUT", arrayText(numbersFrom(272, 1024))) +
                  element("BlueLUT", arrayText(numbersFrom(1296, 256))) +
                  "<HLGSystemGamma>1552</HLGSystemGamma><HLGClipping>1553</HLGClipping>"
                  "<RedHue>-1554</RedHue><GreenHue>1555</GreenHue><BlueHue>-1556</BlueHue>"
                  "<CyanHue>1557</CyanHue><MagentaHue>-1558</MagentaHue><YellowHue>1559</YellowHue>"
                  "<RedSaturation>-1560</RedSaturation><GreenSaturation>1561</GreenSaturation>"
                  "<BlueSaturation>-1562</BlueSaturation><CyanSaturation>1563</CyanSaturation>"
                  "<MagentaSaturation>-1564</MagentaSaturation><YellowSaturation>1565</YellowSaturation>"
                  "<RedLightness>-1566</RedLightness><GreenLightness>1567</GreenLightness>"
                  "<BlueLightness>-1568</BlueLightness><CyanLightness>1569</CyanLightness>"
                  "<MagentaLightness>-1570</MagentaLightness><YellowLightness>1571</YellowLightness>"
                  "<RedGain>1572</RedGain><GreenGain>1573</GreenGain><BlueGain>1574</BlueGain>"
                  "<EmulationMatrix>1575|-1576|1577|-1578|1579|-1580|1581|-1582|1583</EmulationMatrix>"
                  "<Limited109Setting>1584</Limited109Setting>"
                  "</MonitorParameter>");
}

TEST(MonitorParameter, EachNumberIsWrittenAloneUnderItsOwnName) {
    for (const auto& [name, member] : everyScalar) {
        MonitorParameter record;
        (record.*member).set(4294967295U);
        EXPECT_EQ(compact(record), written<MonitorParameter>(element(name, "4294967295")));
    }
}

TEST(MonitorParameter, EachNumberIsReadAloneAndSetsNothingElse) {
    for (const auto& [name, member] : everyScalar) {
        MonitorParameter expected;
        (expected.*member).set(77);
        const std::string document = documentOf<MonitorParameter>(element(name, "77"));
        EXPECT_EQ(describe(parsed<MonitorParameter>(document)), describe(expected));
    }
}

TEST(MonitorParameter, NumbersThatAreUnsetAreNotWritten) {
    for (const auto& [name, member] : everyScalar) {
        MonitorParameter record;
        (record.*member).value = 5;
        EXPECT_EQ(compact(record), compact(MonitorParameter())) << name;
    }
}

TEST(MonitorParameter, EmptyNumberCountsAsMissing) {
    for (const auto& [name, member] : everyScalar) {
        MonitorParameter record;
        (record.*member).set(5);
        ASSERT_TRUE(record.parseXMLString(documentOf<MonitorParameter>('<' + name + "/>")));
        EXPECT_EQ(record.*member, (property<unsigned int>{5, false})) << name;
    }
}

TEST(MonitorParameter, NumbersReadAsUnsignedWithoutEverFailing) {
    for (const auto& [name, member] : everyScalar) {
        const auto read = [&, &name = name, &member = member](const std::string& text) {
            return parsedFrom<MonitorParameter>(element(name, text)).*member;
        };
        EXPECT_EQ(read("-1"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read("99999999999"), (property<unsigned int>{4294967295U, true})) << name;
        EXPECT_EQ(read(" 12.9"), (property<unsigned int>{12, true})) << name;
        EXPECT_EQ(read("abc"), (property<unsigned int>{0, true})) << name;
    }
}

TEST(MonitorParameter, IsHDRLUTWithTheTextTrueReadsAsZero) {
    const auto record = parsed<MonitorParameter>("<MonitorParameter><isHDRLUT>true</isHDRLUT></MonitorParameter>");
    EXPECT_EQ(record.isHDRLUT, (property<unsigned int>{0, true}));
}

TEST(MonitorParameter, HLGSystemGammaFollowsItsFlagAndNotTheSwitch) {
    for (const bool value : {false, true}) {
        MonitorParameter record;
        record.writeHLGSystemGamma = value;
        EXPECT_EQ(compact(record), compact(MonitorParameter()));
        record.hlgSystemGamma.set(120);
        EXPECT_EQ(compact(record), written<MonitorParameter>("<HLGSystemGamma>120</HLGSystemGamma>"));
    }
}

TEST(MonitorParameter, RedLUTOf255EntriesParsesWithItsFlagClearedAndIsNotWrittenBack) {
    const std::string text = element("RedLUT", arrayText(numbersFrom(1, 255)));
    const auto record = parsedFrom<MonitorParameter>(text);
    EXPECT_FALSE(record.redLUT.hasValue);
    EXPECT_EQ(record.redLUT.value, numbersFrom(1U, 255));
    EXPECT_EQ(compact(record), compact(MonitorParameter()));
}

TEST(MonitorParameter, RedLUTOf1024EntriesComesBack) {
    const std::string text = element("RedLUT", arrayText(numbersFrom(1, 1024)));
    const auto record = parsedFrom<MonitorParameter>(text);
    EXPECT_EQ(record.redLUT, (property<std::vector<unsigned int>>{numbersFrom(1U, 1024), true}));
    EXPECT_EQ(compact(record), written<MonitorParameter>(text));
}

TEST(MonitorParameter, TableIsWrittenOnlyWith256Or1024Entries) {
    for (const auto& [name, member] : everyTable) {
        for (const std::size_t length : everyLength) {
            MonitorParameter record;
            (record.*member).set(numbersFrom(5U, length));
            const std::string text = element(name, arrayText(numbersFrom(5, length)));
            EXPECT_EQ(compact(record),
                      isTableLength(length) ? written<MonitorParameter>(text) : compact(MonitorParameter()));
            EXPECT_EQ(record.*member, (property<std::vector<unsigned int>>{numbersFrom(5U, length), true}));
        }
    }
}

TEST(MonitorParameter, EmptyTableIsNotWritten) {
    for (const auto& [name, member] : everyTable) {
        MonitorParameter record;
        (record.*member).set({});
        EXPECT_EQ(compact(record), compact(MonitorParameter())) << name;
    }
}

TEST(MonitorParameter, UnsetTableOfAGoodLengthIsNotWritten) {
    for (const auto& [name, member] : everyTable) {
        MonitorParameter record;
        (record.*member).value = numbersFrom(5U, 256);
        EXPECT_EQ(compact(record), compact(MonitorParameter())) << name;
    }
}

TEST(MonitorParameter, ParsedTableIsSetOnlyWith256Or1024EntriesAndKeepsAllOfThem) {
    for (const auto& [name, member] : everyTable) {
        for (const std::size_t length : everyLength) {
            const std::string text = element(name, arrayText(numbersFrom(5, length)));
            MonitorParameter expected;
            expected.*member = {numbersFrom(5U, length), isTableLength(length)};
            const auto record = parsedFrom<MonitorParameter>(text);
            EXPECT_EQ(describe(record), describe(expected));
        }
    }
}

TEST(MonitorParameter, TableWithoutTextKeepsItsEntriesAndOneOfSeparatorsAloneLosesThem) {
    for (const auto& [name, member] : everyTable) {
        MonitorParameter record = filled<MonitorParameter>();
        const auto earlier = (record.*member).value;
        ASSERT_TRUE(record.parseXMLString(documentOf<MonitorParameter>('<' + name + "/>")));
        EXPECT_EQ(record.*member, (property<std::vector<unsigned int>>{earlier, false}));
        ASSERT_TRUE(record.parseXMLString(documentOf<MonitorParameter>(element(name, "||"))));
        EXPECT_EQ(record.*member, (property<std::vector<unsigned int>>{{}, false}));
    }
}

TEST(MonitorParameter, EmptyPiecesOfATableAreNotCounted) {
    const std::string text = "||" + arrayText(numbersFrom(5, 256)) + "||";
    const auto record = parsedFrom<MonitorParameter>(element("GreenLUT", text));
    EXPECT_EQ(record.greenLUT, (property<std::vector<unsigned int>>{numbersFrom(5U, 256), true}));
}

TEST(MonitorParameter, EmulationMatrixCountsOnlyWith9Entries) {
    for (const std::size_t length : {1U, 8U, 9U, 10U, 256U}) {
        const std::string text = element("EmulationMatrix", arrayText(numbersFrom(-7, length)));
        MonitorParameter record;
        record.emulationMatrix.set(numbersFrom(-7, length));
        EXPECT_EQ(compact(record), length == 9 ? written<MonitorParameter>(text) : compact(MonitorParameter()));
        const auto back = parsedFrom<MonitorParameter>(text);
        EXPECT_EQ(back.emulationMatrix, (property<std::vector<int>>{numbersFrom(-7, length), length == 9}));
    }
}

TEST(MonitorParameter, EmulationMatrixThatIsEmptyOrUnsetIsNotWritten) {
    MonitorParameter record;
    record.emulationMatrix.set({});
    EXPECT_EQ(compact(record), compact(MonitorParameter()));
    record.emulationMatrix = {numbersFrom(1, 9), false};
    EXPECT_EQ(compact(record), compact(MonitorParameter()));
}

}  // namespace
}  // namespace lv::test
