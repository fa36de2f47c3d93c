#include <tests/analysis/any_record.h>
#include <tests/support/CompleteDocument.h>
#include <tests/support/DescribedNode.h>
#include <tests/support/golden.h>

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/json/JSON.h>

#include <fstream>

#include <nlohmann/json.hpp>

// From a document to JSON and back: what the record prints is the same text, and the members are equal.

namespace lv::test {
namespace {

using analysis::Document;
using analysis::FromJSON;
using analysis::fromJSON;
using analysis::JSONForm;
using analysis::JSONResult;
using analysis::toJSON;

constexpr JSONForm compactForm = {true};

std::string lossesOf(const FromJSON& read) {
    std::string losses;
    for (const analysis::Finding& loss : read.losses.listed) {
        losses += loss.path + ": " + loss.message + '\n';
    }
    return losses;
}

void expectLossless(const DataObject& record) {
    const Document printed(record.toXMLString(false, false), catalogue());
    for (const JSONForm form : {JSONForm{}, compactForm}) {
        const JSONResult json = toJSON(record, catalogue(), form);
        ASSERT_TRUE(json) << json.error->toString();
        EXPECT_TRUE(nlohmann::json::accept(json.text)) << json.text;
        const FromJSON back = fromJSON(json.text, catalogue());
        ASSERT_TRUE(back) << back.error->toString() << '\n' << json.text;
        EXPECT_EQ(back.record->writeHLGSystemGamma, printed.record().writeHLGSystemGamma);
        EXPECT_EQ(back.record->toXMLString(true, true), record.toXMLString(true, true));
        EXPECT_EQ(lossesOf(back), "");
        EXPECT_TRUE(areEqual(*back.record, printed.record())) << json.text;
    }
}

void expectLossless(const std::string& text) {
    SCOPED_TRACE(text);
    const Document document(text, catalogue());
    ASSERT_EQ(document.refusal(), nullptr) << document.refusal()->reason;
    expectLossless(document.record());
}

}  // namespace

TEST(JSONRoundTrip, KeepsEveryGoldenDocument) {
    std::size_t documents = 0;
    for (const auto& entry : catalogue().entries()) {
        for (const fs::path& path : goldenFilesOf(entry.recordClass->name)) {
            SCOPED_TRACE(path.string());
            expectLossless(contentOf(path));
            ++documents;
        }
    }
    EXPECT_GT(documents, 100U);
}

TEST(JSONRoundTrip, KeepsDocumentsWithEveryDescribedElement) {
    for (const auto& entry : catalogue().entries()) {
        expectLossless(CompleteDocument(*entry.facts).text());
        for (const DescribedNode& node : ownNodes(*entry.facts)) {
            CompleteDocument document(*entry.facts);
            document.makeWritten(node);
            expectLossless(document.text());
        }
    }
}

}  // namespace lv::test
