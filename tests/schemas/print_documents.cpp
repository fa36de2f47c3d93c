#include <tests/analysis/schemas/schema_documents.h>

#include <lvdata/analysis/json/JSON.h>
#include <lvdata/core/ParsedDocument.h>

#include <iostream>

// Prints JSON forms of what records print, each on a line: {"record": ..., "name": ..., "document": ...}.

namespace {

using lv::analysis::Catalogue;

std::string jsonOf(const std::string& document, const Catalogue::Entry& entry) {
    const auto record = entry.recordClass->make();
    record->writeHLGSystemGamma = document.find("HLGSystemGamma") != std::string::npos;
    const bool isRead = record->parseXMLString(document);
    const auto json = lv::analysis::toJSON(*record, lv::test::catalogue(), {true});
    return isRead && json ? json.text : "null";
}

void print(const std::string& name, const std::string& document, const Catalogue::Entry& entry) {
    std::cout << R"({"record": ")" << entry.facts->name << R"(", "name": ")" << name << R"(", "document": )"
              << jsonOf(document, entry) << "}\n";
}

}  // namespace

int main() {
    for (const Catalogue::Entry& entry : lv::test::catalogue().entries()) {
        for (const lv::test::NamedDocument& document : lv::test::storedDocuments(entry.facts->name)) {
            print(document.name, document.text, entry);
        }
        for (const lv::test::DescribedNode& node : lv::test::ownNodes(*entry.facts)) {
            print(node.name(), lv::test::printedWith(node, entry), entry);
        }
    }
    return std::cout.flush() ? 0 : 1;
}
