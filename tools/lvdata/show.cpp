#include "show.h"

#include "Failure.h"
#include "MonitorView.h"
#include "Output.h"
#include "count_option.h"
#include "documents.h"
#include "files.h"
#include "finding_text.h"
#include "limit_options.h"

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/figures/MonitorFigures.h>
#include <lvdata/analysis/figures/Outline.h>

#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::Document;
using lv::analysis::ModeFigures;
using lv::analysis::Severity;

struct Options {
    std::string file;
    std::string mode;
    bool all = false;
    lv::analysis::OutlineForm outline;
    lv::Limits limits;
    ColorChoice color = ColorChoice::automatic;
};

/// The monitor that the document is of; no value when the document has no modes of one.
std::optional<lv::MonitorInfo> monitorOf(const Document& document) {
    const bool isMap = dynamic_cast<const lv::CandelaMap*>(&document.record()) != nullptr;
    return isMap ? std::nullopt : lv::analysis::monitorOf(document.record());
}

std::string outlineOf(const Document& document, const lv::analysis::OutlineForm& form) {
    const lv::analysis::Tree printed = document.printed();
    return lv::analysis::outline(*printed.root(), *document.entry().shape, form);
}

std::string findingsOf(const Document& document) {
    const lv::analysis::Findings findings = checkDocument(document);
    if (findings.countFrom(Severity::warning) == 0) {
        return "Findings      none\n";
    }
    return "Findings      " + counted(findings.errors, "error") + ", " + counted(findings.warnings, "warning") +
           " (lvdata check)\n";
}

/// "there are 0, 1, 2", so that the user can choose.
std::string indicesOf(const std::vector<ModeFigures>& modes) {
    constexpr std::size_t most = 20;
    std::string text;
    std::size_t count = 0;
    for (const ModeFigures& mode : modes) {
        count += mode.index.empty() ? 0 : 1;
        const std::string index = count <= most ? mode.index : count == most + 1 ? "..." : "";
        text += index.empty() ? "" : (text.empty() ? "there are " : ", ") + index;
    }
    return text.empty() ? "there are none" : text;
}

/// All modes of that index.
std::string modesOf(const lv::MonitorInfo& monitor, const Options& options) {
    const auto modes = lv::analysis::modeFigures(monitor.monitorConfiguration.value.colorModeSettings.value,
                                                 monitor.calibrationModeResult.value);
    std::string text;
    for (const ModeFigures& mode : modes) {
        if (mode.index == options.mode) {
            text += (text.empty() ? "" : "\n") + modeView(mode, options.outline.yUnit, Palette(options.color));
        }
    }
    if (text.empty()) {
        throw Failure(inputName(options.file),
                      "no colour mode has the index " + options.mode + "; " + indicesOf(modes));
    }
    return text;
}

std::string viewOf(const lv::MonitorInfo& monitor, const Document& document, const Options& options) {
    MonitorViewForm form;
    form.title = document.entry().shape->facts().name;
    form.mostModes = options.all ? SIZE_MAX : form.mostModes;
    form.yUnit = options.outline.yUnit;
    const std::string text =
        options.mode.empty() ? monitorView(monitor, form, Palette(options.color)) : modesOf(monitor, options);
    return text + findingsOf(document) + (options.outline.full ? '\n' + outlineOf(document, options.outline) : "");
}

ExitStatus show(const Options& options) {
    const Catalogue catalogue;
    const Document document = readDocument(options.file, options.limits, catalogue);
    const auto monitor = monitorOf(document);
    if (!monitor && !options.mode.empty()) {
        throw Failure(inputName(options.file),
                      "a document of " + document.entry().shape->facts().name + " has no colour modes");
    }
    writeResult(std::string(standardStream), monitor ? viewOf(*monitor, document, options)
                                                     : outlineOf(document, options.outline) + findingsOf(document));
    return ExitStatus::done;
}

std::string complaintIfNoIndex(const std::string& text) {
    const bool isIndex = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isIndex ? "" : "'" + text + "' is not an index";
}

void addOptions(CLI::App& command, Options& options) {
    command.add_option("--mode", options.mode, "Show the colour mode of this index")
        ->type_name("N")
        ->check(complaintIfNoIndex);
    command.add_flag("--all", options.all, "Show all colour modes, not only the first 12");
    command.add_flag("--full", options.outline.full, "Show every element, with all rows and all entries of tables");
    command.add_option("--y-unit", options.outline.yUnit, "Unit of Y, which the records do not say, such as cd/m²")
        ->type_name("UNIT");
    command.add_option("--map-unit", options.outline.mapUnit, "Unit of the entries of candela maps")->type_name("UNIT");
    addCountOption(command, "--grid", options.outline.gridWidth, {0, 10000},
                   "Entries in a row of a candela map (default: not known)");
    addColorOption(command, options.color);
}

}  // namespace

Subcommand addShow(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("show", "Show a document on one screen");
    const auto options = std::make_shared<Options>();
    addOptions(*command, *options);
    command->add_option("FILE", options->file, "XML document with a record as root element; - for standard input")
        ->type_name("")
        ->required();
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return show(*options);
            }};
}

}  // namespace tool
