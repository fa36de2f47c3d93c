#include "format.h"

#include "Failure.h"
#include "files.h"
#include "limit_options.h"

#include <lvdata/analysis/files.h>

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

std::unique_ptr<lv::DataObject> readRecord(const std::string& file, const lv::Limits& limits) {
    auto loaded = lv::analysis::loadText(readInput(file, limits.bytes), limits);
    if (!loaded) {
        const lv::analysis::LoadResult& result = loaded.result;
        throw Failure(inputName(file), result.excess ? excessReason(*result.excess) : result.reason, result.line);
    }
    return std::move(loaded.record);
}

void format(const FormatOptions& options) {
    const auto record = readRecord(options.input, options.limits);
    record->writeHLGSystemGamma = options.hlgSystemGamma;
    std::string text = record->toXMLString(!options.noDeclaration, !options.compact);
    if (text.empty() || text.back() != '\n') {
        text += '\n';
    }
    writeOutput(options.output, text);
}

std::string complaintIfEmpty(const std::string& name) {
    return name.empty() ? "is empty" : "";
}

}  // namespace

void addFormat(CLI::App& application) {
    CLI::App* const command =
        application.add_subcommand("format", "Read a record from an XML document and print it anew");
    const auto options = std::make_shared<FormatOptions>();
    command->add_flag("--compact", options->compact, "No indentation, no line breaks between elements");
    command->add_flag("--no-declaration", options->noDeclaration, "No XML declaration in front");
    command->add_flag("--hlg-system-gamma", options->hlgSystemGamma,
                      "Write the HLG system gamma of colour modes, which records leave out unless told to write it");
    command->add_option("-o,--output", options->output, "Write to FILE instead of standard output")
        ->type_name("FILE")
        ->check(complaintIfEmpty);
    command->add_option("FILE", options->input, "An XML document with a record as root element; - for standard input")
        ->type_name("")
        ->required()
        ->check(complaintIfEmpty);
    addLimitOptions(*command, options->limits);
    command->callback([options] { format(*options); });
}

}  // namespace tool
