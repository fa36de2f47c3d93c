#include "diff.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"
#include "Palette.h"
#include "choice_option.h"
#include "documents.h"
#include "files.h"
#include "limit_options.h"
#include <lvdata/analysis/printable.h>

#include <lvdata/analysis/diff/diff.h>
#include <lvdata/analysis/diff/output.h>
#include <lvdata/analysis/json/JSONWriter.h>

#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::Diff;
using lv::analysis::Difference;
using lv::analysis::DiffOptions;

struct Options {
    std::string before;
    std::string after;
    std::vector<std::string> tolerances;
    std::vector<std::string> ignoredPaths;
    bool isJSON = false;
    ColorChoice color = ColorChoice::automatic;
    lv::Limits limits;
};

DiffOptions diffOptions(const Options& options, const Catalogue& catalogue) {
    DiffOptions result;
    result.ignoredPaths = options.ignoredPaths;
    for (const std::string& text : options.tolerances) {
        const std::string complaint = result.tolerances.take(text, catalogue);
        if (!complaint.empty()) {
            throw Failure(program, "--tolerance: " + complaint);
        }
    }
    return result;
}

Diff compared(const Options& options) {
    if (options.before == standardStream && options.after == standardStream) {
        throw Failure(program, "only one of the two documents can be standard input");
    }
    const Catalogue catalogue;
    const DiffOptions diffed = diffOptions(options, catalogue);
    const auto before = readDocument(options.before, options.limits, catalogue);
    const auto after = readDocument(options.after, options.limits, catalogue);
    auto result = lv::analysis::diff(before.record(), after.record(), catalogue, diffed);
    if (const auto* const refusal = std::get_if<lv::analysis::DiffRefusal>(&result)) {
        throw Failure(inputName(options.after), refusal->reason);
    }
    return std::get<Diff>(std::move(result));
}

Style styleOf(Difference::Kind kind) {
    switch (kind) {
    case Difference::Kind::set:
        return Style::added;
    case Difference::Kind::cleared:
        return Style::removed;
    default:
        return Style::warning;
    }
}

/// "3 differences within tolerance, 1 ignored, not listed"; empty when all are listed.
std::string unlistedText(const Diff& diff) {
    std::string text;
    if (diff.withinTolerance != 0) {
        text = std::to_string(diff.withinTolerance) + " within tolerance";
    }
    if (diff.ignored != 0) {
        text += (text.empty() ? "" : ", ") + std::to_string(diff.ignored) + " ignored";
    }
    return text.empty() ? "" : "not listed: " + text;
}

void writeText(Output& output, const Diff& diff, ColorChoice color) {
    const Palette palette(color);
    for (const Difference& difference : diff.differences) {
        output.write(palette.paint(Style::name, lv::analysis::printable(difference.path)) + ": ");
        output.write(palette.paint(styleOf(difference.kind), lv::analysis::printable(inWords(difference))) + '\n');
    }
    const std::string unlisted = unlistedText(diff);
    if (!unlisted.empty()) {
        output.write(palette.paint(Style::faint, unlisted) + '\n');
    }
}

void writeJSON(Output& output, const Diff& diff) {
    std::string text;
    lv::analysis::JSONWriter writer(text);
    putDiff(diff, writer);
    if (!writer.isUTF8()) {
        throw Failure(program, "a text is not UTF-8, so it cannot be written as JSON");
    }
    output.write(text + '\n');
}

ExitStatus diff(const Options& options) {
    const Diff result = compared(options);
    Output output;
    if (options.isJSON) {
        writeJSON(output, result);
    } else {
        writeText(output, result, options.color);
    }
    output.flush();
    return result.differences.empty() ? ExitStatus::done : ExitStatus::found;
}

std::string complaintIfEmpty(const std::string& name) {
    return name.empty() ? "is empty" : "";
}

void addInput(CLI::App& command, const std::string& name, std::string& file, const std::string& help) {
    command.add_option(name, file, help)->type_name("")->required()->check(complaintIfEmpty);
}

}  // namespace

Subcommand addDiff(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("diff", "List the differences between two records");
    const auto options = std::make_shared<Options>();
    command
        ->add_option("--tolerance", options->tolerances,
                     "Do not list differences of this kind up to N, such as de00=0.5; several separated by commas")
        ->type_name("KIND=N")
        ->allow_extra_args(false);
    command->add_option("--ignore", options->ignoredPaths, "Do not list differences at this path; //NAME at any depth")
        ->type_name("PATH")
        ->allow_extra_args(false)
        ->check(complaintIfEmpty);
    addChoiceOption<bool>(*command, "--format", options->isJSON, {{"text", false}, {"json", true}},
                          "Form of the output (default text)");
    addColorOption(*command, options->color);
    addInput(*command, "A", options->before, "XML document with the old record; - for standard input");
    addInput(*command, "B", options->after, "XML document with the new record; - for standard input");
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return diff(*options);
            }};
}

}  // namespace tool
