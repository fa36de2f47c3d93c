#include <lvdata/analysis/files/files.h>

#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/RecordClass.h>
#include <tests/analysis/files/Folder.h>

#include <gtest/gtest.h>

namespace {

using lv::AssetInfo;
using lv::Limits;
using lv::analysis::load;
using lv::analysis::LoadedRecord;
using lv::analysis::LoadResult;
using lv::analysis::loadText;
using Outcome = lv::analysis::LoadResult::Outcome;

const std::string document = "<AssetInfo><Asset1>one</Asset1></AssetInfo>";

Limits bytes(std::size_t limit) {
    Limits limits;
    limits.bytes = limit;
    return limits;
}

/// The refusal of the text, which must be the same for a record at hand.
LoadResult refusal(const std::string& text, const Limits& limits = {}) {
    const LoadedRecord loaded = loadText(text, limits);
    EXPECT_FALSE(loaded);
    EXPECT_EQ(loaded.record, nullptr);
    EXPECT_EQ(loaded.recordClass, nullptr);
    AssetInfo record;
    record.asset1 = {"before", true};
    const LoadResult result = loadText(text, record, limits);
    EXPECT_EQ(result.outcome, loaded.result.outcome);
    EXPECT_EQ(result.line, loaded.result.line);
    EXPECT_EQ(record.asset1.value, "before");
    return loaded.result;
}

TEST(Load, MakesTheRecordThatTheRootElementNames) {
    const lv::test::Folder folder;
    folder.write("in", document);
    const LoadedRecord loaded = load(folder.path("in"));
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(loaded.result);
    const auto* const record = dynamic_cast<const AssetInfo*>(loaded.record.get());
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->asset1.value, "one");
    EXPECT_EQ(loaded.recordClass, lv::recordClass("AssetInfo"));
}

TEST(Load, ReadsIntoARecord) {
    const lv::test::Folder folder;
    folder.write("in", document);
    AssetInfo record;
    EXPECT_TRUE(load(folder.path("in"), record));
    EXPECT_EQ(record.asset1.value, "one");
}

TEST(Load, ReportsAFileThatCannotBeRead) {
    const lv::test::Folder folder;
    AssetInfo record;
    for (const LoadResult& result : {load(folder.path("in")).result, load(folder.path("in"), record)}) {
        EXPECT_EQ(result.outcome, Outcome::notReadable);
        EXPECT_EQ(result.error, std::errc::no_such_file_or_directory);
        EXPECT_EQ(result.reason, result.error.message());  // in the language of the user
        EXPECT_EQ(result.line, 0);
    }
}

TEST(Load, ReportsAFileBeyondTheLimit) {
    const lv::test::Folder folder;
    folder.write("in", document);
    AssetInfo record;
    EXPECT_TRUE(load(folder.path("in"), bytes(document.size())));
    EXPECT_TRUE(load(folder.path("in"), record, bytes(document.size())));
    EXPECT_TRUE(load(folder.path("in"), bytes(static_cast<std::size_t>(-1))));
    const Limits small = bytes(document.size() - 1);
    for (const LoadResult& result : {load(folder.path("in"), small).result, load(folder.path("in"), record, small)}) {
        EXPECT_EQ(result.outcome, Outcome::beyondLimit);
        EXPECT_EQ(result.reason, "more than 42 bytes");
        EXPECT_TRUE(result.excess && result.excess->what == lv::Excess::What::bytes);
    }
}

TEST(Load, ReportsADocumentBeyondTheLimits) {
    Limits limits;
    limits.elements = 1;
    const LoadResult result = refusal("<AssetInfo>\n<Asset1/></AssetInfo>", limits);
    EXPECT_EQ(result.outcome, Outcome::beyondLimit);
    EXPECT_EQ(result.reason, "more than 1 element");
    EXPECT_EQ(result.line, 2);
    EXPECT_TRUE(result.excess && result.excess->limit == 1);
}

TEST(Load, ReportsWhatIsNotXML) {
    const LoadResult result = refusal("\n<AssetInfo></Asset>");
    EXPECT_EQ(result.outcome, Outcome::notXML);
    EXPECT_EQ(result.reason, "mismatched element");
    EXPECT_EQ(result.line, 2);
    const LoadResult nul = refusal(document + "\n" + std::string(1, '\0'));
    EXPECT_EQ(nul.outcome, Outcome::notXML);
    EXPECT_EQ(nul.reason, "NUL character");
    EXPECT_EQ(nul.line, 2);
}

TEST(Load, ReportsThatNothingIsThere) {
    EXPECT_EQ(refusal("").outcome, Outcome::nothingThere);
    EXPECT_EQ(refusal("").reason, "empty document");
    EXPECT_EQ(refusal("<!-- none -->").reason, "no root element");
}

TEST(Load, ReportsAnotherRootElement) {
    const LoadResult unknown = loadText("<Asset/>").result;
    EXPECT_EQ(unknown.outcome, Outcome::rootElementRefused);
    EXPECT_EQ(unknown.reason.rfind(R"(unknown root element "Asset"; known: AssetInfo, BasicData, )", 0), 0U);
    AssetInfo record;
    const LoadResult other = loadText("\n<CorrelationInfo/>", record);
    EXPECT_EQ(other.outcome, Outcome::rootElementRefused);
    EXPECT_EQ(other.reason, R"(unexpected root element "CorrelationInfo")");
    EXPECT_EQ(loadText("<" + std::string(200, 'x') + "/>", record).reason,
              "unexpected root element \"" + std::string(60, 'x') + "...\"");
}

TEST(Load, HasAMessageWithTheLineIfThereIsOne) {
    EXPECT_EQ(refusal("\n<AssetInfo></Asset>").message(), "line 2: mismatched element");
    EXPECT_EQ(refusal("").message(), "empty document");
    EXPECT_EQ(loadText(document).result.message(), "");
}

TEST(Load, KeepsTheHLGSystemGammaOfADocumentThatHasIt) {
    const std::string with = "<ParameterSetting><Gamma><HLGSystemGamma>120</HLGSystemGamma></Gamma></ParameterSetting>";
    EXPECT_TRUE(loadText(with).record->writeHLGSystemGamma);
    EXPECT_FALSE(loadText("<ParameterSetting><Gamma/></ParameterSetting>").record->writeHLGSystemGamma);
    EXPECT_FALSE(loadText("<AssetInfo><HLGSystemGamma/></AssetInfo>").record->writeHLGSystemGamma);
    lv::ParameterSetting record;
    EXPECT_TRUE(loadText(with, record));
    EXPECT_NE(record.toXMLString(false, false).find("<HLGSystemGamma>120<"), std::string::npos);
}

TEST(Load, WithACatalogueGivesTheSame) {
    const lv::analysis::Catalogue catalogue;
    const std::string with = "<!-- --><ParameterSetting><Gamma><HLGSystemGamma/></Gamma></ParameterSetting>";
    EXPECT_TRUE(loadText(with, catalogue).record->writeHLGSystemGamma);
    EXPECT_FALSE(loadText("<AssetInfo><HLGSystemGamma/></AssetInfo>", catalogue).record->writeHLGSystemGamma);
    EXPECT_EQ(loadText("<a>", catalogue).result.message(), loadText("<a>").result.message());
    EXPECT_EQ(lv::analysis::load("missing.xml", catalogue).result.outcome, Outcome::notReadable);
}

}  // namespace
