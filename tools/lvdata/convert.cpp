#include "convert.h"

#include "CommandLine.h"
#include "Converter.h"
#include "Failure.h"
#include "Output.h"
#include "batch.h"
#include "choice_option.h"
#include "files.h"
#include "limit_options.h"
#include "losses.h"
#include "output_option.h"

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace tool {
namespace {

using lv::analysis::Table;

struct Options {
    BatchOptions batch;
    lv::Limits limits;
    Conversion conversion;
    std::string output{standardStream};
};

/// Whether the command line names exactly one document, not a list or a folder.
bool namesOneDocument(const InputOptions& inputs) {
    std::error_code ignored;  // an error is reported when the file is read
    return inputs.paths.size() == 1 && inputs.lists.empty() &&
           !std::filesystem::is_directory(std::filesystem::u8path(inputs.paths.front()), ignored);
}

/// Joins the texts of the documents.
class Result {
public:
    Result(const Conversion& conversion, bool isArray)
        : conversion_(conversion),
          isArray_(isArray && conversion.target == Target::json) {}

    /// What is written before the first text.
    [[nodiscard]] std::string begin() const {
        return conversion_.target == Target::csv ? lv::analysis::csvHeader(*conversion_.table) : isArray_ ? "[" : "";
    }

    /// What is written for the next text.
    [[nodiscard]] std::string next(const std::string& text) {
        const std::string before = count_++ == 0 ? "\n" : ",\n";
        return (isArray_ ? before : "") + text + (conversion_.target == Target::json && !isArray_ ? "\n" : "");
    }

    /// Whether there was no text.
    [[nodiscard]] bool isEmpty() const { return count_ == 0; }

    /// What is written after the last text.
    [[nodiscard]] std::string end() const { return isArray_ ? "\n]\n" : ""; }

private:
    const Conversion& conversion_;
    bool isArray_;
    std::size_t count_ = 0;
};

void refuseWrongOptions(const Options& options) {
    const Conversion& conversion = options.conversion;
    const bool isOfRows = conversion.target == Target::csv || conversion.target == Target::jsonl;
    if (conversion.table && !isOfRows) {
        throw Failure(program, "--table needs --to csv or --to jsonl");
    }
    if (!conversion.table && conversion.target == Target::csv) {
        throw Failure(program, "--to csv needs --table");
    }
    if (conversion.target == Target::xml && !namesOneDocument(options.batch.inputs)) {
        throw Failure(program, "--to xml takes one document");
    }
}

/// Earlier output is written before the messages, for the case that both go to the same terminal or file.
ExitStatus reportLosses(const Converted& converted, Output& output) {
    if (converted.losses.countFrom(lv::analysis::Severity::warning) == 0) {
        return ExitStatus::done;
    }
    output.prepareForMessage();
    printLosses(converted.name, converted.losses, "");
    return ExitStatus::found;
}

/// An input is overwritten only with the same document.
void refuseToOverwrite(const Options& options, const Converted& converted) {
    std::error_code ignored;
    if (options.output == standardStream ||
        !std::filesystem::equivalent(std::filesystem::u8path(converted.name), std::filesystem::u8path(options.output),
                                     ignored)) {
        return;
    }
    if (options.conversion.target != Target::xml) {
        throw Failure(options.output, "not overwritten, since it is one of the inputs");
    }
    if (converted.losses.countFrom(lv::analysis::Severity::warning) > 0) {
        throw Failure(options.output, "not overwritten, since it would lose what is listed above");
    }
}

ExitStatus convert(const Options& options) {
    refuseWrongOptions(options);
    const Converter converter(options.conversion, options.limits);
    const bool isToFile = options.output != standardStream;
    Result result(options.conversion, !namesOneDocument(options.batch.inputs));
    Output output;
    std::string kept;
    const auto write = [&](const std::string& text) {
        isToFile ? void(kept += text) : output.write(text);
    };
    write(result.begin());
    const auto work = [&](const Input& input) {
        return converter.convert(input.file);
    };
    const auto deliver = [&](Converted&& converted) {
        write(result.next(converted.text));
        const ExitStatus found = reportLosses(converted, output);
        refuseToOverwrite(options, converted);
        return found;
    };
    const ExitStatus status = forEachInput(options.batch, output, work, deliver);
    write(result.end());
    output.flush();
    if (isToFile && !result.isEmpty()) {
        writeResult(options.output, kept);
    }
    return status;
}

Choices<std::optional<Table>> tableChoices() {
    Choices<std::optional<Table>> choices;
    for (const lv::analysis::TableDescription& each : lv::analysis::tables()) {
        choices[std::string(each.name)] = each.table;
    }
    return choices;
}

void addOptions(CLI::App& command, Options& options) {
    Conversion& conversion = options.conversion;
    addChoiceOption<Target>(
        command, "--to", conversion.target,
        {{"json", Target::json}, {"jsonl", Target::jsonl}, {"csv", Target::csv}, {"xml", Target::xml}},
        "Form of the output")
        ->required();
    addChoiceOption<std::optional<Table>>(command, "--table", conversion.table, tableChoices(),
                                          "Table whose rows to write, for csv and jsonl");
    command.add_flag("--compact", conversion.isCompact, "Omit indentation and line breaks");
    addOutputOption(command, options.output);
}

}  // namespace

Subcommand addConvert(CLI::App& application) {
    CLI::App* const command =
        application.add_subcommand("convert", "Convert documents to JSON or tables, and JSON to XML");
    const auto options = std::make_shared<Options>();
    addOptions(*command, *options);
    addBatchOptions(*command, options->batch);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return convert(*options);
            }};
}

}  // namespace tool
