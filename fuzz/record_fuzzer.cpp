#include <fuzz/support/harness.h>
#include <fuzz/support/lossy_text.h>
#include <fuzz/support/members.h>
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

/// The members of a fresh row of any list; those of one name are alike in all of them.
Members freshRow() {
    return Members(describe(CalibrationModeResultObject()) + describe(ColorModeSettingsObject()) +
                   describe(MeasurementDataObject()));
}

template <class Record>
const std::string& freshValue(const Member& member) {
    static const Members record(describe(Record()));
    static const Members row = freshRow();
    return isInRow(member) ? row.named(nameInRow(member)).value : record.named(member.name).value;
}

/// Of measurements, rows without anything to print are left out.
bool hasFewerRows(const Members& printed, const Members& original, const Member& member) {
    return original.has(member.name + "[0].RGB") && printed.rowsIn(member.name) < original.rowsIn(member.name);
}

/// What is printed may leave members out, which are then those of a fresh record or row; it does not change any. Where
/// it leaves out rows, nothing tells which the others are.
template <class Record>
void checkValues(const Record& readBack, const Record& record) {
    const Members original(describe(record));
    const Members printed(describe(readBack));
    for (const Member& member : printed.all()) {
        if (tellsOfReading(member) || !printed.hasRowsOf(original, member)) {
            continue;
        }
        const bool kept = member.value == original.named(member.name).value ||
                          member.value == freshValue<Record>(member) || hasFewerRows(printed, original, member);
        check(kept, "a member is printed as it is or not at all: " + member.name);
    }
}

template <class Record>
void checkPrinting(const Record& record, bool lossless) {
    const std::string before = describe(record);
    const Record once = readBack(record, true, true);
    checkEqual(describe(record), before, "printing leaves the record as it is");
    checkEqual(describe(readBack(record, false, false)), describe(once), "compact and indented text say the same");

    const Record twice = readBack(once, true, true);
    checkEqual(indented(twice), indented(once), "what was printed and read back is printed as the same text");
    checkEqual(describe(readBack(twice, false, false)), describe(twice), "and stays the same in every member");
    if (lossless) {
        checkValues(once, record);
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
    const std::string fresh = describe(record);
    if (record.parseXMLString(text)) {
        checkTheLongWay(record, text);
        checkPrinting(record, !mayHoldLossyText(text));
    } else {
        checkEqual(describe(record), fresh, "a refused document leaves the record as it was");
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
