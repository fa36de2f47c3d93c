#include <fuzz/support/checks.h>
#include <fuzz/support/picked_record.h>

// Two documents into one record, one after the other. They stand on either side of the first NUL: where a document
// would end anyway.

namespace lv::fuzz {
namespace {

struct Documents {
    std::string first;
    std::string second;
};

Documents documentsIn(const std::string& text) {
    const std::size_t end = text.find('\0');
    return {text.substr(0, end), end == std::string::npos ? "" : text.substr(end + 1)};
}

template <class Record>
void checkDocuments(Record& record, const Documents& documents) {
    Record fresh = record;
    checkReading(record, documents.first);  // either way is a state to go on from
    const bool isAccepted = checkReading(record, documents.second);
    check(fresh.parseXMLString(documents.second) == isAccepted,
          "whether a document is accepted is up to the document alone");
    const Record both = record;
    check(record.parseXMLString(documents.second) == isAccepted, "what was accepted is accepted again");
    checkSame(record, both, "the same document again changes nothing");
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) {
        const auto input = lv::fuzz::recordInput(lv::fuzz::textOf(data, size));
        const auto documents = lv::fuzz::documentsIn(input.text);
        lv::fuzz::withPickedRecord(input, [&documents](auto& record) { lv::fuzz::checkDocuments(record, documents); });
    }
    return 0;
}
