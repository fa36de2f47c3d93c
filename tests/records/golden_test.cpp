#include <tests/support/golden.h>
#include <tests/support/lines.h>

#include <gtest/gtest.h>

#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

// The documents of golden/<Record>/: what each prints when it was read into a fresh record.

namespace lv::test {
namespace {

/// A document and the text expected of it.
struct Golden {
    std::string record;
    fs::path input;
    fs::path expected;
    bool writeHLGSystemGamma;
};

/// How a failed test names it.
void PrintTo(const Golden& golden, std::ostream* out) {
    *out << golden.expected;
}

constexpr const char* switchEnd = ".hlg";

std::vector<Golden> goldenOf(const std::string& record) {
    std::vector<Golden> found;
    for (const fs::path& entry : goldenFilesOf(record)) {
        std::string name = entry.filename().string();
        if (removeEnd(name, expectedEnd)) {
            const bool withSwitch = removeEnd(name, switchEnd);
            found.push_back({record, entry.parent_path() / (name + documentEnd), entry, withSwitch});
        }
    }
    return found;
}

std::vector<Golden> everyGolden() {
    std::vector<Golden> all;
    for (const RecordClass& each : RecordClasses()) {
        const std::vector<Golden> found = goldenOf(each.name);
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

class GoldenDocument : public ::testing::TestWithParam<Golden> {
protected:
    /// A fresh record that has read the text; a refusal fails the test.
    static std::unique_ptr<DataObject> parsedFrom(const std::string& text) {
        std::unique_ptr<DataObject> record = recordClass(GetParam().record)->make();
        record->writeHLGSystemGamma = GetParam().writeHLGSystemGamma;
        EXPECT_TRUE(record->parseXMLString(text)) << text;
        return record;
    }

    static std::string input() { return contentOf(GetParam().input); }
    static std::string expected() { return contentOf(GetParam().expected); }
};

std::string nameOf(const ::testing::TestParamInfo<Golden>& info) {
    std::string name = info.param.expected.filename().string();
    removeEnd(name, expectedEnd);
    std::replace(name.begin(), name.end(), '.', '_');
    return info.param.record + '_' + name;
}

INSTANTIATE_TEST_SUITE_P(Golden, GoldenDocument, ::testing::ValuesIn(everyGolden()), nameOf);

TEST_P(GoldenDocument, IsPrintedAsExpected) {
    EXPECT_EQ(parsedFrom(input())->toXMLString(true, true), expected());
}

TEST_P(GoldenDocument, ExpectedTextIsPrintedUnchanged) {
    EXPECT_EQ(parsedFrom(expected())->toXMLString(true, true), expected());
}

TEST_P(GoldenDocument, CompactTextReadsAsTheSameRecord) {
    const std::string compactText = parsedFrom(input())->toXMLString(false, false);
    EXPECT_EQ(parsedFrom(compactText)->toXMLString(true, true), expected());
}

TEST(GoldenFolders, EveryRecordHasDocuments) {
    for (const RecordClass& each : RecordClasses()) {
        EXPECT_FALSE(goldenOf(each.name).empty()) << each.name;
    }
}

TEST(GoldenFolders, EveryFolderBelongsToARecord) {
    for (const fs::path& folder : goldenFilesOf("")) {
        EXPECT_NE(recordClass(folder.filename().string()), nullptr) << folder;
    }
}

TEST(GoldenFolders, EveryDocumentHasItsExpectedText) {
    for (const RecordClass& each : RecordClasses()) {
        for (const fs::path& file : goldenFilesOf(each.name)) {
            std::string name = file.filename().string();
            if (!removeEnd(name, expectedEnd)) {
                EXPECT_TRUE(removeEnd(name, documentEnd)) << file;
                EXPECT_TRUE(fs::exists(file.parent_path() / (name + expectedEnd))) << file;
            }
        }
    }
}

}  // namespace
}  // namespace lv::test
