#include <fuzz/support/checks.h>
#include <fuzz/support/lossy_text.h>
#include <fuzz/support/picked_record.h>

#include <lvdata/xml/XMLDocument.h>

// Any text into a fresh record: it is refused and nothing changed, or it is accepted and what is then printed is
// stable.

namespace lv::fuzz {
namespace {

using test::describe;

/// A fresh record that has read what `record` prints.
template <class Record>
Record readBack(const Record& record, bool declaration, bool pretty) {
    Record copy;
    copy.writeHLGSystemGamma = record.writeHLGSystemGamma;
    check(copy.parseXMLString(record.toXMLString(declaration, pretty)), "what was printed is accepted");
    return copy;
}

template <class Record>
std::string indented(const Record& record) {
    return record.toXMLString(true, true);
}

/// What is printed, and what of it is read back, is what the rules of the format say.
template <class Record>
void checkRules(const Record& record) {
    for (const test::PrintForm& form : test::everyPrintForm) {
        checkEqual(record.toXMLString(form.declaration, form.pretty), test::writtenByTheRules(record, form),
                   "the text is what the rules say");
    }
    Record expected = test::readBackByTheRules(record);
    expected.writeHLGSystemGamma = record.writeHLGSystemGamma;
    checkSame(readBack(record, true, true), expected, "what is read back is what the rules say");
}

template <class Record>
void checkPrinting(const Record& record, bool lossless) {
    const std::string before = describe(record);
    const Record once = readBack(record, true, true);
    checkRules(record);
    checkEqual(describe(record), before, "printing leaves the record as it is");
    checkEqual(describe(readBack(record, false, false)), describe(once), "compact and indented text say the same");

    const Record twice = readBack(once, true, true);
    checkEqual(indented(twice), indented(once), "what was printed and read back is printed as the same text");
    checkEqual(describe(readBack(twice, false, false)), describe(twice), "and stays the same in every member");
    if (lossless) {
        checkEqual(indented(once), indented(record), "what was printed first is printed again");
        checkEqual(describe(twice), describe(once), "what was printed is read back as the same members");
    }
}

/// Arrays that are read where they were parsed, and elements that are printed directly, are those of an ordinary
/// document.
template <class Record>
void checkTheLongWay(const Record& record, const std::string& text) {
    Record again;
    again.writeHLGSystemGamma = record.writeHLGSystemGamma;
    XMLDocument document;
    check(document.parseXMLString(text) && again.parseXMLElement(document.rootElement()), "the nodes are accepted");
    checkEqual(describe(again), describe(record), "the nodes have the same members");
    XMLDocument printed;
    record.appendXMLElement(printed);
    checkEqual(printed.toXMLString(true, true), indented(record), "the nodes are printed as the same text");
}

template <class Record>
void checkParsing(Record& record, const std::string& text) {
    if (checkReading(record, text)) {
        checkTheLongWay(record, text);
        checkPrinting(record, !mayHoldLossyText(text));
    }
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) {
        const auto input = lv::fuzz::recordInput(lv::fuzz::textOf(data, size));
        lv::fuzz::withPickedRecord(input, [&input](auto& record) { lv::fuzz::checkParsing(record, input.text); });
    }
    return 0;
}
