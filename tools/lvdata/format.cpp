#include "format.h"

#include "Failure.h"
#include "Output.h"
#include "files.h"
#include "limit_options.h"

#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <memory>
#include <string>

namespace tool {
namespace {

struct FormatOptions {
    std::string input;
    std::string output{standardStream};
    bool compact = false;
    bool noDeclaration = false;
    bool hlgSystemGamma = false;
    lv::Limits limits;
};

int lineOf(const std::string& text, std::size_t position) {
    const auto end = text.begin() + static_cast<std::string::difference_type>(position);
    return 1 + static_cast<int>(std::count(text.begin(), end, '\n'));
}

/// Refuses what the XML library would misread or choke on.
void checkText(const std::string& text, const lv::Limits& limits, const std::string& name) {
    const std::size_t nul = text.find('\0');
    if (nul != std::string::npos) {  // where the XML library would stop reading
        throw Failure(name, "NUL character", lineOf(text, nul));
    }
    if (const auto excess = lv::findExcess(text, limits)) {
        throw Failure(name, excessReason(*excess), excess->line);
    }
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
    for (const lv::RecordClass& known : lv::RecordClasses()) {
        list += list.empty() ? "" : ", ";
        list += known.name;
    }
    return list;
}

std::unique_ptr<lv::DataObject> readRecord(const std::string& file, const lv::Limits& limits) {
    const std::string name = inputName(file);
    const std::string text = readInput(file, limits.bytes);
    checkText(text, limits, name);
    lv::ParsedDocument document(text);
    if (const lv::ParseResult& parsed = document.parseResult(); !parsed) {
        throw Failure(name, parsed.reason, parsed.line);
    }
    const std::string root = document.rootElementName();
    const lv::RecordClass* const found = lv::recordClass(root);
    auto record = found == nullptr ? nullptr : found->make();
    if (!record || !document.read(*record)) {
        throw Failure(name, "unknown root element '" + excerpt(root) + "', known are: " + knownRootElements());
    }
    return record;
}

ExitStatus format(const FormatOptions& options) {
    const auto record = readRecord(options.input, options.limits);
    record->writeHLGSystemGamma = options.hlgSystemGamma;
    std::string text = record->toXMLString(!options.noDeclaration, !options.compact);
    if (text.empty() || text.back() != '\n') {
        text += '\n';
    }
    writeResult(options.output, text);
    return ExitStatus::done;
}

std::string complaintIfEmpty(const std::string& name) {
    return name.empty() ? "is empty" : "";
}

}  // namespace

Subcommand addFormat(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("format", "Print a record in canonical form");
    const auto options = std::make_shared<FormatOptions>();
    command->add_flag("--compact", options->compact, "Omit indentation and line breaks");
    command->add_flag("--no-declaration", options->noDeclaration, "Omit the XML declaration");
    command->add_flag("--hlg-system-gamma", options->hlgSystemGamma,
                      "Write the HLG system gamma of colour modes (omitted by default)");
    command->add_option("-o,--output", options->output, "Write to FILE instead of standard output")
        ->type_name("FILE")
        ->check(complaintIfEmpty);
    command->add_option("FILE", options->input, "XML document with a record as root element; - for standard input")
        ->type_name("")
        ->required()
        ->check(complaintIfEmpty);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return format(*options);
            }};
}

}  // namespace tool
