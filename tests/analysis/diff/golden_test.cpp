#include <tests/analysis/diff/differences.h>
#include <tests/support/golden.h>

#include <lvdata/records/EveryRecord.h>

using lv::analysis::Document;
using lv::test::catalogue;

// Over the golden documents: there are no differences exactly when the records are equal.

namespace {

struct Golden {
    std::string file;
    std::string text;
};

std::vector<Golden> goldenOf(const std::string& record) {
    std::vector<Golden> all;
    for (const auto& path : lv::test::goldenFilesOf(record)) {
        if (path.extension() == lv::test::documentEnd) {
            all.push_back({path.filename().string(), lv::test::contentOf(path)});
        }
    }
    return all;
}

/// A fresh record that has read what the record of the text prints, so that it holds nothing that is not printed.
template <class Record>
Record canonical(const std::string& text) {
    Record read;
    EXPECT_TRUE(read.parseXMLString(text));
    read.writeHLGSystemGamma = true;
    Record again;
    EXPECT_TRUE(again.parseXMLString(read.toXMLString(false, false)));
    again.writeHLGSystemGamma = true;
    return again;
}

template <class Record>
void expectAgreement() {
    const std::vector<Golden> all = goldenOf(Record::rootElementName);
    EXPECT_FALSE(all.empty()) << Record::rootElementName;
    for (const Golden& left : all) {
        const Record before = canonical<Record>(left.text);
        for (const Golden& right : all) {
            const Record after = canonical<Record>(right.text);
            const auto result = std::get<lv::analysis::Diff>(diff(before, after, catalogue()));
            EXPECT_EQ(result.differences.empty(), before == after) << left.file << " and " << right.file;
        }
    }
}

template <class... Records>
void expectAgreementOf(lv::RecordTypes<Records...> /*all*/) {
    (expectAgreement<Records>(), ...);
}

}  // namespace

TEST(DiffOfGoldenDocuments, IsEmptyExactlyWhenTheRecordsAreEqual) {
    expectAgreementOf(lv::EveryRecord());
}
