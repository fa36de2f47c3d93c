#include <lvdata/analysis/files.h>

#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <limits>

namespace lv::analysis {
namespace {

using Outcome = LoadResult::Outcome;

int lineOf(const std::string& text, std::size_t position) {
    const auto end = text.begin() + static_cast<std::string::difference_type>(position);
    return 1 + static_cast<int>(std::count(text.begin(), end, '\n'));
}

/// Refuses what the XML library would misread or choke on.
LoadResult checkedText(const std::string& text, const Limits& limits) {
    const std::size_t nul = text.find('\0');
    if (nul != std::string::npos && text.size() <= limits.bytes) {  // where the XML library would stop reading
        return {Outcome::notXML, "NUL character", lineOf(text, nul), {}, {}};
    }
    if (const auto excess = findExcess(text, limits)) {
        return {Outcome::beyondLimit, excess->toString(), excess->line, {}, excess};
    }
    return {};
}

/// As much of a name as a message should hold: it can be as long as the document.
std::string excerpt(const std::string& name) {
    constexpr std::size_t longest = 100;
    if (name.size() <= longest) {
        return name;
    }
    std::size_t length = longest;  // or up to 3 less, so that it does not end amid a character of UTF-8
    while (length > longest - 3 && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    return name.substr(0, length) + "...";
}

/// "AssetInfo, BasicData, ..."
std::string knownRootElements() {
    std::string list;
    for (const RecordClass& known : RecordClasses()) {
        list += list.empty() ? "" : ", ";
        list += known.name;
    }
    return list;
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
        return {Outcome::rootElementRefused, "unexpected root element '" + excerpt(parsed.reason) + "'", 0, {}, {}};
    }
}

LoadResult unknown(const std::string& root) {
    return {Outcome::rootElementRefused,
            "unknown root element '" + excerpt(root) + "', known are: " + knownRootElements(),
            0,
            {},
            {}};
}

LoadedRecord loaded(const std::string& text) {
    ParsedDocument document(text);
    if (!document.parseResult()) {
        return {nullptr, resultOf(document.parseResult())};
    }
    const std::string root = document.rootElementName();
    const RecordClass* const found = recordClass(root);
    auto record = found == nullptr ? nullptr : found->make();
    if (!record || !document.read(*record)) {
        return {nullptr, unknown(root)};
    }
    return {std::move(record), {}};
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

LoadedRecord load(const std::filesystem::path& path, const Limits& limits) {
    const FileContent content = readWithin(path, limits);
    return content ? loadText(content.text, limits) : LoadedRecord{nullptr, notReadable(content.error)};
}

LoadResult load(const std::filesystem::path& path, DataObject& record, const Limits& limits) {
    const FileContent content = readWithin(path, limits);
    return content ? loadText(content.text, record, limits) : notReadable(content.error);
}

LoadedRecord loadText(const std::string& text, const Limits& limits) {
    LoadResult result = checkedText(text, limits);
    return result ? loaded(text) : LoadedRecord{nullptr, std::move(result)};
}

LoadResult loadText(const std::string& text, DataObject& record, const Limits& limits) {
    LoadResult result = checkedText(text, limits);
    return result ? resultOf(record.parseXML(text)) : result;
}

}  // namespace lv::analysis
