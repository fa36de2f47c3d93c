#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/CandelaMap.h>

#include <ostream>
#include <string>
#include <vector>

namespace lv::test {
namespace {

using Values = std::vector<unsigned int>;

struct Map {
    std::string element;
    CandelaMapEntry CandelaMap::*member;
    std::string before;  // what stands around it when the other map is not valid
    std::string after;
};

void PrintTo(const Map& map, std::ostream* out) {
    *out << map.element;
}

class CandelaMapTest : public ::testing::TestWithParam<Map> {
protected:
    /// A document whose element for this map holds `content`.
    [[nodiscard]] static std::string documentWith(const std::string& content) {
        const std::string& name = GetParam().element;
        return documentOf<CandelaMap>('<' + name + '>' + content + "</" + name + '>');
    }

    /// The record with this map and nothing else.
    [[nodiscard]] static CandelaMap with(const CandelaMapEntry& entry) {
        CandelaMap record;
        record.*GetParam().member = entry;
        return record;
    }

    [[nodiscard]] static CandelaMap readOver(const CandelaMapEntry& earlier, const std::string& content) {
        CandelaMap record = with(earlier);
        EXPECT_TRUE(record.parseXMLString(documentWith(content)));
        return record;
    }

    [[nodiscard]] static std::string written(const std::string& content) {
        const std::string& name = GetParam().element;
        return R"(<CandelaMap Version="1" MinorVersion="0">)" + GetParam().before + '<' + name + '>' + content + "</" +
               name + '>' + GetParam().after + "</CandelaMap>";
    }
};

INSTANTIATE_TEST_SUITE_P(CandelaMap, CandelaMapTest,
                         ::testing::Values(Map{"Uniformity", &CandelaMap::uniformity, "", "<Brightness/>"},
                                           Map{"Brightness", &CandelaMap::brightness, "<Uniformity/>", ""}),
                         [](const auto& tested) { return tested.param.element; });

TEST(CandelaMap, DefaultRecordWritesBothMapsEmpty) {
    EXPECT_EQ(compact(CandelaMap()),
              R"(<CandelaMap Version="1" MinorVersion="0"><Uniformity/><Brightness/></CandelaMap>)");
}

TEST(CandelaMap, FilledRecordWritesAllElementsInOrder) {
    EXPECT_EQ(compact(filled<CandelaMap>()),
              R"(<CandelaMap Version="11" MinorVersion="12">)"
              "<Uniformity><Values>13|14</Values><UpdatedAt>updatedAt 15</UpdatedAt></Uniformity>"
              "<Brightness><Values>16|17|18</Values><UpdatedAt>updatedAt 19</UpdatedAt></Brightness>"
              "</CandelaMap>");
}

TEST(CandelaMap, UniformityOfThreeValuesWithoutUpdatedAtIsValidAndGainsAnEmptyOne) {
    const auto record =
        parsed<CandelaMap>("<CandelaMap><Uniformity><Values>10|20|30</Values></Uniformity></CandelaMap>");
    CandelaMap expected;
    expected.uniformity = {{10, 20, 30}, "", true};
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), R"(<CandelaMap Version="1" MinorVersion="0"><Uniformity><Values>10|20|30</Values>)"
                               "<UpdatedAt></UpdatedAt></Uniformity><Brightness/></CandelaMap>");
}

TEST(CandelaMap, BrightnessWithOnlyUpdatedAtIsNotValidAndWritingDropsIt) {
    const auto record =
        parsed<CandelaMap>("<CandelaMap><Brightness><UpdatedAt>now</UpdatedAt></Brightness></CandelaMap>");
    CandelaMap expected;
    expected.brightness = {{}, "now", false};
    EXPECT_EQ(describe(record), describe(expected));
    EXPECT_EQ(compact(record), compact(CandelaMap()));
}

TEST(CandelaMap, MapsAreIndependentOfEachOther) {
    const auto record = parsed<CandelaMap>("<CandelaMap><Brightness><Values>1</Values><UpdatedAt>b</UpdatedAt>"
                                           "</Brightness><Uniformity><UpdatedAt>u</UpdatedAt></Uniformity>"
                                           "</CandelaMap>");
    CandelaMap expected;
    expected.uniformity = {{}, "u", false};
    expected.brightness = {{1}, "b", true};
    EXPECT_EQ(describe(record), describe(expected));
}

TEST_P(CandelaMapTest, ValidMapWithoutValuesWritesBothChildrenAndComesBackNotValid) {
    const CandelaMap record = with({{}, "", true});
    EXPECT_EQ(compact(record), written("<Values></Values><UpdatedAt></UpdatedAt>"));
    EXPECT_FALSE((parsed<CandelaMap>(compact(record)).*GetParam().member).valid);
    EXPECT_EQ(compact(parsed<CandelaMap>(compact(record))), compact(CandelaMap()));
}

TEST_P(CandelaMapTest, ValidMapIsWrittenWithItsValuesAndItsTime) {
    EXPECT_EQ(compact(with({{0, 4294967295U}, "a & b", true})),
              written("<Values>0|4294967295</Values><UpdatedAt>a &amp; b</UpdatedAt>"));
    EXPECT_EQ(compact(with({{5}, "", true})), written("<Values>5</Values><UpdatedAt></UpdatedAt>"));
    EXPECT_EQ(compact(with({{}, "now", true})), written("<Values></Values><UpdatedAt>now</UpdatedAt>"));
}

TEST_P(CandelaMapTest, MapThatIsNotValidIsWrittenEmptyRegardlessOfItsContent) {
    for (const CandelaMapEntry& entry : {CandelaMapEntry{{}, "", false}, CandelaMapEntry{{1, 2}, "", false},
                                         CandelaMapEntry{{}, "now", false}, CandelaMapEntry{{1, 2}, "now", false}}) {
        EXPECT_EQ(compact(with(entry)), compact(CandelaMap()));
    }
}

TEST_P(CandelaMapTest, BothChildrenAreReadAndTheOtherMapStaysAsItIs) {
    EXPECT_EQ(describe(readOver({}, "<Values>3|1|2</Values><UpdatedAt>a &lt; b</UpdatedAt>")),
              describe(with({{3, 1, 2}, "a < b", true})));
}

TEST_P(CandelaMapTest, ValuesWithoutATextKeepTheEarlierOnesAndTheMapIsValidByThem) {
    for (const bool valid : {false, true}) {
        for (const char* content : {"", "<Values/>", "<Values></Values>", "<values>1</values>", "<Other>1</Other>",
                                    "<Other><Values>1</Values></Other>"}) {
            EXPECT_EQ(describe(readOver({{7, 8}, "then", valid}, content)), describe(with({{7, 8}, "then", true})))
                << content;
            EXPECT_EQ(describe(readOver({{}, "then", valid}, content)), describe(with({{}, "then", false}))) << content;
        }
    }
}

TEST_P(CandelaMapTest, MissingMapKeepsItsValuesAndIsValidByThem) {
    for (const bool valid : {false, true}) {
        CandelaMap record = with({{7, 8}, "then", valid});
        ASSERT_TRUE(record.parseXMLString("<CandelaMap/>"));
        EXPECT_EQ(describe(record), describe(with({{7, 8}, "then", true})));
        record = with({{}, "then", valid});
        ASSERT_TRUE(record.parseXMLString("<CandelaMap/>"));
        EXPECT_EQ(describe(record), describe(with({{}, "then", false})));
    }
}

TEST_P(CandelaMapTest, UpdatedAtWithoutATextKeepsTheEarlierOne) {
    for (const char* updatedAt : {"", "<UpdatedAt/>", "<UpdatedAt></UpdatedAt>", "<updatedAt>now</updatedAt>"}) {
        EXPECT_EQ(describe(readOver({{7}, "then", false}, std::string("<Values>9</Values>") + updatedAt)),
                  describe(with({{9}, "then", true})));
    }
}

TEST_P(CandelaMapTest, UpdatedAtIsReadOverEarlierValuesAndTheMapStaysValid) {
    EXPECT_EQ(describe(readOver({{7, 8}, "then", false}, "<UpdatedAt>now</UpdatedAt>")),
              describe(with({{7, 8}, "now", true})));
}

TEST_P(CandelaMapTest, SeparatorsAloneEmptyTheMapAndItIsNotValid) {
    EXPECT_EQ(describe(readOver({{7, 8}, "then", true}, "<Values>||</Values>")), describe(with({{}, "then", false})));
}

TEST_P(CandelaMapTest, ValuesAreUnsignedNumbersReadWithoutEverFailing) {
    EXPECT_EQ(describe(readOver({}, "<Values>|-1|99999999999||x| 7 8|3.9</Values>")),
              describe(with({{4294967295U, 4294967295U, 0, 7, 3}, "", true})));
}

TEST_P(CandelaMapTest, FirstMapAndFirstChildrenCount) {
    const std::string& name = GetParam().element;
    const std::string first = "<Values>1</Values><Values>2</Values><UpdatedAt>a</UpdatedAt><UpdatedAt>b</UpdatedAt>";
    const std::string second = '<' + name + "><Values>3</Values></" + name + '>';
    CandelaMap record;
    ASSERT_TRUE(record.parseXMLString(documentOf<CandelaMap>('<' + name + '>' + first + "</" + name + '>' + second)));
    EXPECT_EQ(describe(record), describe(with({{1}, "a", true})));
    record = CandelaMap();
    ASSERT_TRUE(record.parseXMLString(documentOf<CandelaMap>('<' + name + "/>" + second)));
    EXPECT_EQ(describe(record), describe(CandelaMap()));
}

TEST_P(CandelaMapTest, ChildrenOutsideTheMapAreNotRead) {
    CandelaMap record;
    ASSERT_TRUE(record.parseXMLString("<CandelaMap><Values>1</Values><UpdatedAt>a</UpdatedAt><uniformity>"
                                      "<Values>2</Values></uniformity><brightness><Values>3</Values></brightness>"
                                      "<Other>" +
                                      documentWith("<Values>4</Values>") + "</Other></CandelaMap>"));
    EXPECT_EQ(describe(record), describe(CandelaMap()));
}

TEST_P(CandelaMapTest, LongMapComesBack) {
    const CandelaMap record = with({Values(10000, 350), "now", true});
    auto back = parsed<CandelaMap>(compact(record));
    EXPECT_EQ((back.*GetParam().member).values, Values(10000, 350));
    EXPECT_EQ(compact(back), compact(record));
}

TEST(CandelaMap, FailedParseLeavesAMapThatTheCallerMarkedNotValid) {
    CandelaMap record;
    record.uniformity = {{1, 2}, "then", false};
    record.brightness = {{}, "", true};
    const std::string before = describe(record);
    EXPECT_FALSE(record.parseXMLString("<Candelamap/>"));
    EXPECT_FALSE(record.parseXMLString("<CandelaMap><Uniformity></CandelaMap>"));
    EXPECT_EQ(describe(record), before);
}

}  // namespace
}  // namespace lv::test
