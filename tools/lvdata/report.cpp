#include "report.h"

#include "CommandLine.h"
#include "Failure.h"
#include "InputFiles.h"
#include "MonitorReader.h"
#include "Output.h"
#include "PageMaker.h"
#include "batch.h"
#include "date_option.h"
#include "files.h"
#include "limit_options.h"
#include "limit_set_option.h"
#include "mode_option.h"
#include "output_option.h"
#include "report_folder.h"
#include "unit_options.h"

#include <lvdata/analysis/monitors/Fleet.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace tool {
namespace {

using lv::analysis::Fleet;
using lv::analysis::LimitSet;
using lv::analysis::MonitorDocument;
using lv::analysis::MonitorPage;
using lv::analysis::ReportForm;

struct Options {
    BatchOptions batch;
    lv::Limits limits;
    lv::analysis::KnownUnits units;
    std::string limitSet = "default";
    std::string mode;
    std::string title;
    std::string date;
    std::string output{standardStream};
    bool failsOnLimits = false;
};

/// Whether the output is a folder: one that exists, or a name that ends with "/".
bool isFolder(const std::string& output) {
    const std::filesystem::path path = std::filesystem::u8path(output);
    std::error_code ignored;
    return !path.has_filename() || std::filesystem::is_directory(path, ignored);
}

ReportForm formOf(const Options& options, const LimitSet& limits) {
    return {options.title, dateText(options.date), options.mode.empty() ? std::nullopt : std::optional(options.mode),
            &limits};
}

/// Reads all documents. Throws `Failure` when there is a second monitor but the output is not a folder.
ExitStatus readFleet(const Options& options, const MonitorReader& reader, InputFiles& inputs, Fleet& fleet) {
    const bool isForOne = !isFolder(options.output);
    Output output;
    const auto work = [&](const Input& input) {
        inputs.add(input.file);
        return reader.readSummary(input.file);
    };
    const auto deliver = [&](MonitorDocument&& document) {
        const std::string name = document.snapshot.document;
        const std::string why = lv::analysis::whySecondMonitor(document.identity);
        fleet.add(std::move(document));
        if (isForOne && fleet.size() > 1) {
            throw Failure(name, why + "; with -o FOLDER/ there is a page for each monitor");
        }
        return ExitStatus::done;
    };
    return forEachInput(options.batch, output, work, deliver);
}

ExitStatus writePage(const Options& options, const MonitorPage& page, const InputFiles& inputs) {
    inputs.refuseToOverwrite(options.output);
    writeResult(options.output, page.text);
    return options.failsOnLimits && !page.isWithinLimits() ? ExitStatus::found : ExitStatus::done;
}

ExitStatus report(const Options& options) {
    const LimitSet limits = readLimitSet(options.limitSet);
    const ReportForm form = formOf(options, limits);
    const MonitorReader reader(options.limits, options.units);
    InputFiles inputs;
    inputs.add(options.limitSet);
    Fleet fleet;
    const ExitStatus status = readFleet(options, reader, inputs, fleet);
    const auto monitors = fleet.take();
    if (monitors.empty()) {
        return status;
    }
    if (!isFolder(options.output)) {
        return worst(status, writePage(options, PageMaker(reader, form).pageOf(monitors.front()), inputs));
    }
    ReportForm formOfPages = form;
    formOfPages.title.clear();  // each page has the name of its monitor
    const ReportFolder folder{options.output, form, jobsOf(options.batch), options.failsOnLimits};
    return worst(status, writeReportFolder(folder, monitors, PageMaker(reader, formOfPages), inputs));
}

void addOptions(CLI::App& command, Options& options) {
    addOutputOption(command, options.output,
                    "Write to FILE instead of standard output; a folder (one that exists, or a name that ends with "
                    "/) gets a page for each monitor");
    addModeOption(command, options.mode, "Only the colour mode of this index (default: all)");
    addLimitSetOption(command, options.limitSet, "Limits for the figures (default: default)");
    command.add_flag("--fail-on-limits", options.failsOnLimits, "Exit status 1 when a figure is not within its limit");
    command.add_option("--title", options.title, "Heading (default: the name of the monitor)")->type_name("TEXT");
    addDateOption(command, options.date);
    addUnitOptions(command, options.units);
}

}  // namespace

Subcommand addReport(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("report", "Make HTML pages about monitors");
    const auto options = std::make_shared<Options>();
    addOptions(*command, *options);
    addBatchOptions(*command, options->batch);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return report(*options);
            }};
}

}  // namespace tool
