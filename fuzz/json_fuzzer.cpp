#include <fuzz/support/harness.h>

#include <lvdata/analysis/json/JSON.h>

#include <string>

// Any text as JSON. It is refused with a reason and a line, or it is accepted: then the record prints JSON that gives
// the same record again, and the record's document says the same.

namespace lv::fuzz {
namespace {

using analysis::Catalogue;
using analysis::FromJSON;
using analysis::JSONForm;
using analysis::JSONResult;

const Catalogue& catalogue() {
    static const Catalogue all;
    return all;
}

std::string jsonOf(const DataObject& record, JSONForm form = {}) {
    const JSONResult json = analysis::toJSON(record, catalogue(), form);
    check(!json.error, "what came from JSON goes to JSON");
    return json.text;
}

FromJSON readBack(const std::string& json) {
    FromJSON result = analysis::fromJSON(json, catalogue());
    check(!result.error, "what was printed is accepted, not refused with " +
                             (result.error ? result.error->toString() : std::string()));
    return result;
}

void checkAccepted(const FromJSON& accepted) {
    const DataObject& record = *accepted.record;
    const std::string json = jsonOf(record);
    checkEqual(jsonOf(*readBack(json).record), json, "what was printed is printed again");
    checkEqual(jsonOf(*readBack(jsonOf(record, {true})).record), json, "compact and indented text say the same");

    const std::string xml = record.toXMLString(true, true);
    const auto fromXML = accepted.entry->recordClass->make();
    fromXML->writeHLGSystemGamma = record.writeHLGSystemGamma;
    check(fromXML->parseXMLString(xml), "the document is accepted");
    checkEqual(fromXML->toXMLString(true, true), xml, "XML carries everything that was accepted");
    checkEqual(jsonOf(*fromXML), json, "the document gives the same JSON");
}

void checkText(const std::string& text) {
    const FromJSON result = analysis::fromJSON(text, catalogue());
    check((result.record == nullptr) == result.error.has_value(), "there is a record or an error");
    if (result) {
        checkAccepted(result);
    } else {
        check(!result.error->reason.empty() && result.error->line > 0, "the error has a reason and a line");
    }
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lv::fuzz::checkText(lv::fuzz::textOf(data, size));
    return 0;
}
