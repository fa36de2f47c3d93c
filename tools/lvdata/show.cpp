#include "show.h"

#include "Failure.h"
#include "MonitorView.h"
#include "Output.h"
#include "documents.h"
#include "files.h"
#include "finding_text.h"
#include "limit_options.h"
#include "mode_option.h"
#include "unit_options.h"

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/figures/MonitorFigures.h>
#include <lvdata/analysis/figures/Outline.h>
#include <lvdata/analysis/figures/lines.h>

#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::Document;
using lv::analysis::KnownUnits;
using lv::analysis::ModeFigures;
using lv::analysis::Severity;

struct Options {
    std::string file;
    std::string mode;
    bool all = false;
    bool isFull = false;
    bool isJSON = false;
    KnownUnits units;
    lv::Limits limits;
    ColorChoice color = ColorChoice::automatic;
};

std::string outlineOf(const Document& document, const Options& options) {
    const KnownUnits& units = options.units;
    const lv::analysis::Tree printed = document.printed();
    return lv::analysis::outline(*printed.root(), *document.entry().shape,
                                 {options.isFull, units.yUnit, units.mapUnit, units.gridWidth});
}

std::string findingsOf(const Document& document) {
    const lv::analysis::Findings findings = checkDocument(document);
    if (findings.countFrom(Severity::warning) == 0) {
        return "Findings      none\n";
    }
    return "Findings      " + counted(findings.errors, "error") + ", " + counted(findings.warnings, "warning") +
           " (lvdata check)\n";
}

/// All modes with the requested index.
std::string modesOf(const lv::MonitorInfo& monitor, const Options& options) {
    std::string text;
    for (const ModeFigures& mode : modesOfIndex(lv::analysis::monitorFigures(monitor, options.units).modes,
                                                options.mode, inputName(options.file))) {
        text += (text.empty() ? "" : "\n") + modeView(mode, options.units, Palette(options.color));
    }
    return text;
}

std::string viewOf(const lv::MonitorInfo& monitor, const Document& document, const Options& options) {
    MonitorViewForm form;
    form.title = document.entry().shape->facts().name;
    form.mostModes = options.all ? SIZE_MAX : form.mostModes;
    form.yUnit = options.units.yUnit;
    const std::string text =
        options.mode.empty() ? monitorView(monitor, form, Palette(options.color)) : modesOf(monitor, options);
    return text + findingsOf(document) + (options.isFull ? '\n' + outlineOf(document, options) : "");
}

/// The figures as JSON: of all modes, or of those with the requested index.
std::string jsonOf(const lv::MonitorInfo& monitor, const Options& options) {
    lv::analysis::MonitorFigures figures = lv::analysis::monitorFigures(monitor, options.units);
    if (!options.mode.empty()) {
        figures.modes = modesOfIndex(figures.modes, options.mode, inputName(options.file));
    }
    return figuresJSON(figures) + '\n';
}

std::string textOf(const Document& document, const Options& options) {
    const auto monitor = lv::analysis::monitorOf(document.record());
    if (!monitor && (!options.mode.empty() || options.isJSON)) {
        throw Failure(inputName(options.file), "a document of " + document.entry().shape->facts().name + " has no " +
                                                   (options.isJSON ? "figures" : "colour modes"));
    }
    if (options.isJSON) {
        return jsonOf(*monitor, options);
    }
    const bool isMap = dynamic_cast<const lv::CandelaMap*>(&document.record()) != nullptr;
    return monitor && !isMap ? viewOf(*monitor, document, options)
                             : outlineOf(document, options) + findingsOf(document);
}

ExitStatus show(const Options& options) {
    const Catalogue catalogue;
    const Document document = readDocument(options.file, options.limits, catalogue);
    writeResult(std::string(standardStream), textOf(document, options));
    return ExitStatus::done;
}

void addOptions(CLI::App& command, Options& options) {
    addModeOption(command, options.mode, "Show the colour mode of this index");
    command.add_flag("--all", options.all, "Show all colour modes, not only the first 12");
    CLI::Option* const full =
        command.add_flag("--full", options.isFull, "Show every element, with all rows and all entries of tables");
    command.add_flag("--json", options.isJSON, "Print the figures of the monitor as JSON")->excludes(full);
    addUnitOptions(command, options.units);
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
