#include <lvdata/analysis/check/check.h>

#include <lvdata/analysis/check/Comparison.h>
#include <lvdata/analysis/utf8.h>
#include <lvdata/analysis/wording.h>

#include <algorithm>
#include <cctype>
#include <string>

namespace lv::analysis {
namespace {

std::string_view ruleOf(Refusal::Kind kind) {
    switch (kind) {
    case Refusal::Kind::nulCharacter:
        return "003";
    case Refusal::Kind::notXML:
        return "001";
    case Refusal::Kind::unknownRoot:
        break;
    }
    return "002";
}

std::string messageOf(const Refusal& refusal) {
    return refusal.kind == Refusal::Kind::unknownRoot ? unknownRootElement(refusal.reason) : refusal.reason;
}

void checkBytes(std::string_view text, Collector& collector) {
    const std::size_t position = findInvalidUTF8(text);
    if (position != std::string_view::npos) {
        collector.add("003", lineAt(text, position), "", "a byte that is not UTF-8");
    }
}

std::string canonical(const DataObject& record) {
    std::string text = record.toXMLString(true, true);
    text += text.empty() || text.back() != '\n' ? "\n" : "";
    return text;
}

void checkRoundtrip(std::string_view text, const DataObject& record, Collector& collector) {
    const std::string expected = canonical(record);
    const auto differ = std::mismatch(text.begin(), text.end(), expected.begin(), expected.end());
    if (differ.first != text.end() || differ.second != expected.end()) {
        const auto position = static_cast<std::size_t>(differ.first - text.begin());
        collector.add("320", lineAt(text, position), "",
                      "from here on, the text differs from what lvdata format prints");
    }
}

bool isUTF8Name(std::string encoding) {
    std::transform(encoding.begin(), encoding.end(), encoding.begin(),
                   [](unsigned char character) { return static_cast<char>(std::toupper(character)); });
    return encoding.empty() || encoding == "UTF-8" || encoding == "UTF8" || encoding == "US-ASCII";
}

/// Errors that the library's parser accepts, but a strict parser reports.
void checkXML(const XMLVerdict& verdict, Collector& collector) {
    if (!isUTF8Name(verdict.declaredEncoding)) {
        collector.add("003", 1, "",
                      "declares the encoding " + inQuotes(verdict.declaredEncoding) + ", but is read as UTF-8");
    }
    if (verdict.fault) {
        collector.add("004", verdict.fault->line, "",
                      "not well-formed XML: " + verdict.fault->reason + "; the record may hold less than the document");
    }
}

void compare(const Tree& source, const Shape& root, const DataObject& record, Collector& collector) {
    const Tree printed = Tree::ofPrinted(record.toXMLString(false, false));
    Comparison(source, root, printed, {record.writeHLGSystemGamma}, collector).run();
}

}  // namespace

CheckOptions lossOptions() {
    CheckOptions options;
    options.ignored.insert("003");
    for (const Rule& rule : rules()) {
        if (rule.id.front() == '4') {
            options.ignored.emplace(rule.id);
        }
    }
    return options;
}

CheckOptions pureLossOptions() {
    CheckOptions options = lossOptions();
    options.ignored.insert({"105", "310", "312"});
    return options;
}

Findings check(const std::string& text, const Catalogue& catalogue, const CheckOptions& options) {
    Collector collector(options);
    checkBytes(text, collector);
    const Document document(text, catalogue);
    if (const Refusal* const refusal = document.refusal()) {
        collector.add(ruleOf(refusal->kind), refusal->line, "", messageOf(*refusal));
        return collector.take();
    }
    checkXML(document.verdict(), collector);
    compare(document.source(), *document.entry().shape, document.record(), collector);
    if (options.roundtrip) {
        checkRoundtrip(text, document.record(), collector);
    }
    return collector.take();
}

Findings checkDocument(const Document& document, const CheckOptions& options) {
    Collector collector(options);
    checkXML(document.verdict(), collector);
    compare(document.source(), *document.entry().shape, document.record(), collector);
    return collector.take();
}

Findings checkTree(const Tree& source, const Catalogue::Entry& entry, const DataObject& record,
                   const CheckOptions& options) {
    Collector collector(options);
    compare(source, *entry.shape, record, collector);
    return collector.take();
}

}  // namespace lv::analysis
