#include "schema_documents.h"

#include <tests/support/CompleteDocument.h>
#include <tests/support/golden.h>

#include <lvdata/core/ParsedDocument.h>

namespace lv::test {
namespace {

std::vector<fs::path> samplesOf(const std::string& record) {
    std::vector<fs::path> samples;
    for (const fs::directory_entry& entry : fs::directory_iterator(LVDATA_SAMPLES_DIR)) {
        const bool isXML = entry.path().extension() == documentEnd;
        if (isXML && ParsedDocument(contentOf(entry.path())).rootElementName() == record) {
            samples.push_back(entry.path());
        }
    }
    return samples;
}

}  // namespace

std::vector<NamedDocument> storedDocuments(const std::string& record) {
    std::vector<fs::path> paths = samplesOf(record);
    for (const fs::path& path : goldenFilesOf(record)) {
        if (path.filename().string().find(expectedEnd) != std::string::npos) {
            paths.push_back(path);
        }
    }
    std::vector<NamedDocument> documents;
    documents.reserve(paths.size());
    for (const fs::path& path : paths) {
        documents.push_back({path.filename().string(), contentOf(path)});
    }
    return documents;
}

std::string printedWith(const DescribedNode& node, const analysis::Catalogue::Entry& entry) {
    CompleteDocument document(*entry.facts);
    document.makeWritten(node);
    const auto record = entry.recordClass->make();
    EXPECT_TRUE(record->parseXMLString(document.text()));
    record->writeHLGSystemGamma = document.hlgSwitch();
    return record->toXMLString(false, false);
}

}  // namespace lv::test
