#include "format.h"

#include "Failure.h"
#include "Output.h"
#include "documents.h"
#include "files.h"
#include "limit_options.h"
#include "losses.h"
#include "output_option.h"

#include <lvdata/analysis/check/check.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::CheckOptions;
using lv::analysis::Document;
using lv::analysis::Findings;
using lv::analysis::Severity;

struct FormatOptions {
    std::string input;
    std::string output{standardStream};
    bool compact = false;
    bool noDeclaration = false;
    bool hlgSystemGamma = false;
    bool noHLGSystemGamma = false;
    bool lossy = false;
    lv::Limits limits;
};

/// Unless the user chooses, a document that has elements "HLGSystemGamma" keeps them.
void chooseHLGSystemGamma(lv::DataObject& record, const FormatOptions& options) {
    record.writeHLGSystemGamma = options.hlgSystemGamma || (record.writeHLGSystemGamma && !options.noHLGSystemGamma);
}

/// What writing the record back drops or changes, except what the user asked for.
Findings lossesOf(const Document& document, const FormatOptions& options) {
    CheckOptions check = lv::analysis::pureLossOptions();
    if (options.noHLGSystemGamma) {
        check.ignored.insert("313");
    }
    return checkDocument(document, check);
}

/// Whether the output is the file that the input was read from, under any of its names.
bool isInPlace(const FormatOptions& options) {
    std::error_code ignored;
    const std::filesystem::path output = std::filesystem::u8path(options.output);
    const std::string input = options.input == standardStream ? "/dev/stdin" : options.input;
    return options.output != standardStream && std::filesystem::is_regular_file(output, ignored) &&
           std::filesystem::equivalent(std::filesystem::u8path(input), output, ignored);
}

ExitStatus format(const FormatOptions& options) {
    const Catalogue catalogue;
    Document document = readDocument(options.input, options.limits, catalogue);
    chooseHLGSystemGamma(document.record(), options);
    const Findings losses = lossesOf(document, options);
    const bool isLossy = losses.countFrom(Severity::warning) > 0;
    printLosses(inputName(options.input), losses, ", see lvdata check");
    if (isLossy && !options.lossy && isInPlace(options)) {
        throw Failure(options.output, "not overwritten, since it would lose what is listed above (allow it: --lossy)");
    }
    std::string text = document.record().toXMLString(!options.noDeclaration, !options.compact);
    text += text.empty() || text.back() != '\n' ? "\n" : "";
    writeResult(options.output, text);
    return isLossy && !options.lossy ? ExitStatus::found : ExitStatus::done;
}

std::string complaintIfEmpty(const std::string& name) {
    return name.empty() ? "is empty" : "";
}

void addLayoutOptions(CLI::App& command, FormatOptions& options) {
    command.add_flag("--compact", options.compact, "Omit indentation and line breaks");
    command.add_flag("--no-declaration", options.noDeclaration, "Omit the XML declaration");
    auto* const with = command.add_flag("--hlg-system-gamma", options.hlgSystemGamma,
                                        "Write the HLG system gamma of all colour modes (default: only if the document "
                                        "has one)");
    auto* const without =
        command.add_flag("--no-hlg-system-gamma", options.noHLGSystemGamma, "Omit the HLG system gamma");
    with->excludes(without);
}

}  // namespace

Subcommand addFormat(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("format", "Print a record in canonical form");
    const auto options = std::make_shared<FormatOptions>();
    addLayoutOptions(*command, *options);
    addOutputOption(*command, options->output);
    command->add_flag("--lossy", options->lossy,
                      "Allow content to be dropped or changed, also when FILE is overwritten");
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
