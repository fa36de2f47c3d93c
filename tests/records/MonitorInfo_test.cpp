#include <tests/support/documents.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/MonitorInfo.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

/// What is done with each of the nested records alike.
struct Nested {
    std::string element;
    std::string filledText;
    bool writtenAlways;

    /// Sets its flag; sets it to what reading the sample gives; prints it alone.
    void (*setFlag)(MonitorInfo& info, bool value);
    void (*fill)(MonitorInfo& info);
    std::string (*text)(const MonitorInfo& info);
};

template <auto member, class Record>
Nested nested(bool writtenAlways) {
    return {Record::rootElementName,
            compact(filled<Record>()),
            writtenAlways,
            [](MonitorInfo& info, bool value) { (info.*member).hasValue = value; },
            [](MonitorInfo& info) { (info.*member).set(filledAndParsedBack<Record>()); },
            [](const MonitorInfo& info) {
                return compact((info.*member).value);
            }};
}

/// In the order of writing.
const std::array<Nested, 6>& everyNested() {
    static const std::array<Nested, 6> all = {nested<&MonitorInfo::monitorConfiguration, MonitorConfiguration>(true),
                                              nested<&MonitorInfo::calibrationModeResult, CalibrationModeResult>(true),
                                              nested<&MonitorInfo::standardModeResult, StandardModeResult>(true),
                                              nested<&MonitorInfo::assetInfo, AssetInfo>(true),
                                              nested<&MonitorInfo::correlationInfo, CorrelationInfo>(true),
                                              nested<&MonitorInfo::candelaMap, CandelaMap>(false)};
    return all;
}

constexpr unsigned int subsets = 1U << 6U;

bool isIn(unsigned int bits, std::size_t index) {
    return (bits >> index & 1U) != 0;
}

const std::string defaultConfiguration = R"(<MonitorConfiguration Version="2" MinorVersion="0">)"
                                         R"(<ColorModeSettings Version="2" MinorVersion="0"/>)"
                                         R"(<SelfCalibrationSchedule Version="1" MinorVersion="0"/>)"
                                         R"(</MonitorConfiguration>)";
const std::string defaultResults = R"(<CalibrationModeResult Version="2" MinorVersion="0"/>)"
                                   R"(<StandardModeResult Version="3" MinorVersion="1"/>)";
const std::string defaultAsset = R"(<AssetInfo Version="1" MinorVersion="0"/>)";
const std::string defaultCorrelation = R"(<CorrelationInfo Version="1" MinorVersion="0"/>)";
const std::string defaultRecords = defaultConfiguration + defaultResults + defaultAsset + defaultCorrelation;

TEST(MonitorInfo, DefaultRecordWritesFiveNestedRecordsWithoutUUIDAndCandelaMap) {
    EXPECT_EQ(compact(MonitorInfo()),
              R"(<MonitorInfo Version="2" MinorVersion="2">)" + defaultRecords + "</MonitorInfo>");
}

TEST(MonitorInfo, FilledRecordWritesUUIDAndAllNestedRecordsInOrder) {
    std::string expected = R"(<MonitorInfo Version="11" MinorVersion="12">)"
                           "<UUID>uuid 13</UUID>";
    for (const Nested& nested : everyNested()) {
        expected += nested.filledText;
    }
    EXPECT_EQ(compact(filled<MonitorInfo>()), expected + "</MonitorInfo>");
}

TEST(MonitorInfo, NestedRecordsExceptTheCandelaMapAreWrittenRegardlessOfTheirFlags) {
    for (unsigned int flags = 0; flags < subsets; ++flags) {
        auto record = filled<MonitorInfo>();
        std::string expected;
        for (std::size_t index = 0; index < everyNested().size(); ++index) {
            const Nested& nested = everyNested()[index];
            nested.setFlag(record, isIn(flags, index));
            expected += isIn(flags, index) || nested.writtenAlways ? nested.filledText : "";
        }
        const std::string text = compact(record);
        EXPECT_EQ(text.substr(text.find("</UUID>")), "</UUID>" + expected + "</MonitorInfo>") << flags;
    }
}

TEST(MonitorInfo, UUIDIsWrittenByItsFlagAlone) {
    MonitorInfo record;
    record.uuid.value = "stale";
    EXPECT_EQ(compact(record), written<MonitorInfo>(defaultRecords));
    record.uuid.hasValue = true;
    EXPECT_EQ(compact(record), written<MonitorInfo>("<UUID>stale</UUID>" + defaultRecords));
    record.uuid.value.clear();
    EXPECT_EQ(compact(record), written<MonitorInfo>("<UUID></UUID>" + defaultRecords));
}

TEST(MonitorInfo, DefaultCandelaMapIsWrittenWhenItsFlagIsSet) {
    MonitorInfo record;
    record.candelaMap.hasValue = true;
    EXPECT_EQ(compact(record),
              written<MonitorInfo>(defaultRecords + R"(<CandelaMap Version="1" MinorVersion="0"><Uniformity/>)"
                                                    R"(<Brightness/></CandelaMap>)"));
}

TEST(MonitorInfo, EverySubsetOfNestedRecordsSetsTheFlagsOfThatSubsetAlone) {
    for (unsigned int present = 0; present < subsets; ++present) {
        MonitorInfo expected;
        std::string children;
        for (std::size_t index = 0; index < everyNested().size(); ++index) {
            if (isIn(present, index)) {
                children += everyNested()[index].filledText;
                everyNested()[index].fill(expected);
            }
        }
        EXPECT_EQ(describe(parsedFrom<MonitorInfo>(children)), describe(expected)) << present;
    }
}

TEST(MonitorInfo, NestedRecordThatIsMissingClearsItsOwnFlagAndKeepsItsValue) {
    EXPECT_EQ(describe(afterReading(filled<MonitorInfo>(), "")), describe(withClearFlags(filled<MonitorInfo>())));
    auto withAsset = withClearFlags(filled<MonitorInfo>());
    withAsset.assetInfo.hasValue = true;
    EXPECT_EQ(describe(afterReading(filled<MonitorInfo>(), compact(filled<AssetInfo>()))), describe(withAsset));
    auto withMap = withClearFlags(filled<MonitorInfo>());
    withMap.candelaMap.hasValue = true;
    EXPECT_EQ(describe(afterReading(filled<MonitorInfo>(), compact(filled<CandelaMap>()))), describe(withMap));
}

TEST(MonitorInfo, NestedRecordsThatWereMissingExceptTheCandelaMapAreWrittenWithTheirEarlierValues) {
    const auto record = afterReading(filled<MonitorInfo>(), "");
    std::string expected;
    for (const Nested& nested : everyNested()) {
        expected += nested.writtenAlways ? nested.filledText : "";
    }
    EXPECT_EQ(compact(record), R"(<MonitorInfo Version="11" MinorVersion="12">)" + expected + "</MonitorInfo>");
}

TEST(MonitorInfo, DocumentWithoutCandelaMapPrintsWithoutIt) {
    const auto record = parsedFrom<MonitorInfo>("<AssetInfo/>");
    EXPECT_FALSE(record.candelaMap.hasValue);
    EXPECT_EQ(compact(record), written<MonitorInfo>(defaultRecords));
}

TEST(MonitorInfo, DocumentWithoutAssetInfoPrintsADefaultOne) {
    const auto record = parsedFrom<MonitorInfo>("<CandelaMap/>");
    EXPECT_FALSE(record.assetInfo.hasValue);
    EXPECT_NE(compact(record).find(defaultAsset), std::string::npos);
}

TEST(MonitorInfo, NestedRecordsAddedByARoundTripAreSet) {
    const auto back = parsed<MonitorInfo>(compact(parsedFrom<MonitorInfo>("")));
    EXPECT_TRUE(back.monitorConfiguration.hasValue);
    EXPECT_TRUE(back.monitorConfiguration.value.colorModeSettings.hasValue);
    EXPECT_TRUE(back.monitorConfiguration.value.selfCalibrationSchedule.hasValue);
    EXPECT_TRUE(back.calibrationModeResult.hasValue);
    EXPECT_TRUE(back.standardModeResult.hasValue);
    EXPECT_TRUE(back.assetInfo.hasValue);
    EXPECT_TRUE(back.correlationInfo.hasValue);
    EXPECT_FALSE(back.candelaMap.hasValue);
    EXPECT_FALSE(back.uuid.hasValue);
}

TEST(MonitorInfo, UUIDIsSetWhenItsElementExistsEvenWithoutText) {
    EXPECT_EQ(parsedFrom<MonitorInfo>("").uuid, (property<std::string>{"", false}));
    EXPECT_EQ(parsedFrom<MonitorInfo>("<UUID/>").uuid, (property<std::string>{"", true}));
    EXPECT_EQ(parsedFrom<MonitorInfo>("<UUID></UUID>").uuid, (property<std::string>{"", true}));
    EXPECT_EQ(parsedFrom<MonitorInfo>("<UUID>a</UUID>").uuid, (property<std::string>{"a", true}));
    EXPECT_EQ(parsedFrom<MonitorInfo>("<uuid>a</uuid><Uuid>b</Uuid>").uuid, (property<std::string>{"", false}));
    EXPECT_EQ(parsedFrom<MonitorInfo>("<AssetInfo><UUID>a</UUID></AssetInfo>").uuid,
              (property<std::string>{"", false}));
}

TEST(MonitorInfo, UUIDWithoutTextKeepsTheEarlierOneAndSetsTheFlag) {
    auto expected = withClearFlags(filled<MonitorInfo>());
    expected.uuid.hasValue = true;
    EXPECT_EQ(describe(afterReading(filled<MonitorInfo>(), "<UUID/>")), describe(expected));
}

TEST(MonitorInfo, UUIDTakesAnyText) {
    EXPECT_EQ(parsedFrom<MonitorInfo>("<UUID>&lt;&#65;&amp;</UUID><UUID>second</UUID>").uuid,
              (property<std::string>{"<A&", true}));
    MonitorInfo record;
    record.uuid.set(" <\u00fc> & \"1\" ");
    EXPECT_EQ(parsed<MonitorInfo>(compact(record)).uuid, record.uuid);
}

TEST(MonitorInfo, NestedRecordWithOtherCaseOrPlaceCountsAsMissing) {
    for (const Nested& nested : everyNested()) {
        std::string missing = "<Other>" + nested.filledText + "</Other>";
        missing += withRootNamed(nested.filledText, 'x' + nested.element.substr(1));
        missing += withRootNamed(nested.filledText, nested.element + 's');
        const std::string inItsOwnName = "<UUID>" + nested.filledText + "</UUID>";
        EXPECT_EQ(describe(parsedFrom<MonitorInfo>(missing)), describe(MonitorInfo())) << nested.element;
        EXPECT_EQ(nested.text(parsedFrom<MonitorInfo>(inItsOwnName)), nested.text(MonitorInfo())) << nested.element;
    }
}

TEST(MonitorInfo, FirstOfRepeatedNestedRecordsIsTheOneThatIsRead) {
    for (const Nested& nested : everyNested()) {
        const std::string empty = '<' + nested.element + "/>";
        EXPECT_EQ(describe(parsedFrom<MonitorInfo>(empty + nested.filledText)),
                  describe(parsedFrom<MonitorInfo>(empty)))
            << nested.element;
        EXPECT_EQ(describe(parsedFrom<MonitorInfo>(nested.filledText + empty)),
                  describe(parsedFrom<MonitorInfo>(nested.filledText)))
            << nested.element;
    }
}

TEST(MonitorInfo, MalformedNestedRecordFailsTheWholeDocumentAndChangesNothing) {
    for (const Nested& nested : everyNested()) {
        auto record = filled<MonitorInfo>();
        EXPECT_FALSE(record.parseXMLString("<MonitorInfo><UUID>new</UUID><" + nested.element + "></MonitorInfo>"));
        EXPECT_EQ(describe(record), describe(filled<MonitorInfo>())) << nested.element;
    }
}

TEST(MonitorInfo, VersionsOfTheNestedRecordsAreTheirOwn) {
    const auto record = parsedFrom<MonitorInfo>(R"(<AssetInfo Version="7"/><CorrelationInfo MinorVersion="8"/>)");
    EXPECT_EQ(compact(record), written<MonitorInfo>(defaultConfiguration + defaultResults +
                                                    R"(<AssetInfo Version="7" MinorVersion="0"/>)"
                                                    R"(<CorrelationInfo Version="1" MinorVersion="8"/>)"));
}

TEST(MonitorInfo, WholeMonitorComesBackMemberByMember) {
    const auto back = parsed<MonitorInfo>(compact(filled<MonitorInfo>()));
    EXPECT_EQ(describe(back), describe(filledAndParsedBack<MonitorInfo>()));
}

TEST(MonitorInfo, SecondDocumentReplacesTheFirst) {
    const std::string document = withOtherTexts(compact(filled<MonitorInfo>()));
    auto record = filledAndParsedBack<MonitorInfo>();
    ASSERT_TRUE(record.parseXMLString(document));
    EXPECT_EQ(describe(record), describe(parsed<MonitorInfo>(document)));
}

TEST(MonitorInfo, CopyOfItsNestedRecordsSharesNothing) {
    const auto original = filled<MonitorInfo>();
    MonitorInfo copy = original;
    copy.monitorConfiguration.value.colorModeSettings.value.objects.clear();
    copy.calibrationModeResult.value.objects.at(0).measurementData.objects.clear();
    copy.standardModeResult.value.measurementData.objects.at(0).RGB.push_back(1);
    copy.assetInfo.value.asset1.value = "changed";
    copy.correlationInfo.value.correlationDate.value = "changed";
    copy.candelaMap.value.uniformity.values.push_back(1);
    EXPECT_EQ(describe(original), describe(filled<MonitorInfo>()));
}

}  // namespace
}  // namespace lv::test
