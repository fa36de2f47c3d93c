#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/wording.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <limits>
#include <string>

namespace lv::analysis {
namespace {

using Outcome = LoadResult::Outcome;

/// Refuses texts that the XML library would misread, or that exceed the limits.
LoadResult checkedText(const std::string& text, const Limits& limits) {
    const std::size_t nul = text.find('\0');
    if (nul != std::string::npos && text.size() <= limits.bytes) {  // where the XML library would stop reading
        return {Outcome::notXML, "NUL character", lineAt(text, nul), {}, {}};
    }
    if (const auto excess = findExcess(text, limits)) {
        return {Outcome::beyondLimit, excess->toString(), excess->line, {}, excess};
    }
    return {};
}

LoadResult resultOf(const ParseResult& parsed) {
    switch (parsed.outcome) {
    case ParseResult::Outcome::done:
        return {};
    case ParseResult::Outcome::notXML:
        return {Outcome::notXML, parsed.reason, parsed.line, {}, {}};
    case ParseResult::Outcome::nothingThere:
        return {Outcome::nothingThere, parsed.reason, parsed.line, {}, {}};
    default:
        return {Outcome::rootElementRefused, "unexpected root element " + inQuotes(parsed.reason), 0, {}, {}};
    }
}

/// Whether the document has an element that the switch governs. Without a catalogue, the description is made for it.
bool hasGoverned(ParsedDocument& document, const RecordClass& recordClass, const Catalogue* catalogue) {
    const Catalogue::Entry* const entry = catalogue == nullptr ? nullptr : catalogue->find(recordClass.name);
    if (entry != nullptr) {
        return hasHLGSystemGamma(document.view(), *entry->shape);
    }
    const Description facts = recordClass.describe();
    return hasHLGSystemGamma(document.view(), Shape(facts));
}

/// Sets the switch so that saving the record keeps the elements of the document.
void keepHLGSystemGamma(const std::string& text, ParsedDocument& document, DataObject& record,
                        const Catalogue* catalogue) {
    const bool isNamed = text.find("HLGSystemGamma") != std::string::npos;  // most documents do not have it
    const RecordClass* const found = isNamed ? recordClass(document.rootElementName()) : nullptr;
    if (found != nullptr) {
        record.writeHLGSystemGamma = hasGoverned(document, *found, catalogue);
    }
}

LoadResult readInto(DataObject& record, const std::string& text, ParsedDocument& document, const Catalogue* catalogue) {
    LoadResult result = resultOf(document.read(record));
    if (result) {
        keepHLGSystemGamma(text, document, record, catalogue);
    }
    return result;
}

LoadedRecord loaded(const std::string& text, const Catalogue* catalogue) {
    ParsedDocument document(text);
    if (!document.parseResult()) {
        return {nullptr, resultOf(document.parseResult())};
    }
    const std::string root = document.rootElementName();
    const RecordClass* const found = recordClass(root);
    if (found == nullptr) {
        return {nullptr, {Outcome::rootElementRefused, unknownRootElement(root), 0, {}, {}}};
    }
    LoadedRecord loaded{found->make(), {}, found};
    loaded.result = readInto(*loaded.record, text, document, catalogue);
    return loaded;
}

/// One byte more than the limit is read to see whether there is more.
FileContent readWithin(const std::filesystem::path& path, const Limits& limits) {
    constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();
    return readFile(path, limits.bytes == largest ? largest : limits.bytes + 1);
}

LoadResult notReadable(const std::error_code& error) {
    return {Outcome::notReadable, error.message(), 0, error, {}};
}

}  // namespace

std::string LoadResult::message() const {
    return line == 0 ? reason : "line " + std::to_string(line) + ": " + reason;
}

LoadedRecord load(const std::filesystem::path& path, const Limits& limits) {
    const FileContent content = readWithin(path, limits);
    return content ? loadText(content.text, limits) : LoadedRecord{nullptr, notReadable(content.error)};
}

LoadResult load(const std::filesystem::path& path, DataObject& record, const Limits& limits) {
    const FileContent content = readWithin(path, limits);
    return content ? loadText(content.text, record, limits) : notReadable(content.error);
}

LoadedRecord load(const std::filesystem::path& path, const Catalogue& catalogue, const Limits& limits) {
    const FileContent content = readWithin(path, limits);
    return content ? loadText(content.text, catalogue, limits) : LoadedRecord{nullptr, notReadable(content.error)};
}

LoadedRecord loadText(const std::string& text, const Limits& limits) {
    LoadResult result = checkedText(text, limits);
    return result ? loaded(text, nullptr) : LoadedRecord{nullptr, std::move(result)};
}

LoadedRecord loadText(const std::string& text, const Catalogue& catalogue, const Limits& limits) {
    LoadResult result = checkedText(text, limits);
    return result ? loaded(text, &catalogue) : LoadedRecord{nullptr, std::move(result)};
}

LoadResult loadText(const std::string& text, DataObject& record, const Limits& limits) {
    LoadResult result = checkedText(text, limits);
    if (!result) {
        return result;
    }
    ParsedDocument document(text);
    return readInto(record, text, document, nullptr);
}

}  // namespace lv::analysis
