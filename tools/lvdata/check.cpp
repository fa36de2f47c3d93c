#include "check.h"

#include "CheckReport.h"
#include "Failure.h"
#include "batch.h"
#include "choice_option.h"
#include "documents.h"
#include "files.h"
#include "limit_options.h"
#include "messages.h"

#include <lvdata/analysis/check/check.h>

#include <memory>
#include <optional>

namespace tool {
namespace {

using lv::analysis::Catalogue;
using lv::analysis::CheckOptions;
using lv::analysis::Findings;
using lv::analysis::Severity;

struct Options {
    BatchOptions batch;
    lv::Limits limits;
    CheckOptions check;
    std::vector<std::string> ignored;
    std::optional<Severity> failOn = Severity::warning;
    CheckReport::Form form;
};

struct CheckedFile {
    std::string file;
    Findings findings;
    std::optional<Failure> failure;  // why it could not be read
};

CheckedFile checkedFile(const std::string& file, const Options& options, const Catalogue& catalogue) {
    CheckedFile checked{inputName(file), {}, {}};
    try {
        checked.findings = lv::analysis::check(readText(file, options.limits), catalogue, options.check);
    } catch (const Failure& failure) {
        checked.failure = failure;
    }
    return checked;
}

bool isBad(const Findings& findings, const std::optional<Severity>& failOn) {
    return failOn && findings.countFrom(*failOn) > 0;
}

ExitStatus check(const Options& options) {
    const Catalogue catalogue;
    Output output;
    CheckReport report(output, options.form);
    const auto work = [&](const Input& input) {
        return checkedFile(input.file, options, catalogue);
    };
    const auto deliver = [&](CheckedFile&& checked) {
        if (checked.failure) {
            output.prepareForMessage();
            printMessage(checked.failure->what());
            report.addUnreadable();
            return ExitStatus::failed;
        }
        report.add(checked.file, checked.findings);
        return isBad(checked.findings, options.failOn) ? ExitStatus::found : ExitStatus::done;
    };
    const ExitStatus status = forEachInput(options.batch, output, work, deliver);
    report.end();
    output.flush();
    return status;
}

std::string complaintIfUnknown(const std::string& id) {
    return lv::analysis::findRule(id) == nullptr ? "'" + id + "' is not the id of a rule" : "";
}

void addOptions(CLI::App& command, Options& options) {
    command.add_flag("--roundtrip", options.check.roundtrip,
                     "Also report documents that lvdata format would change in any way");
    addChoiceOption<std::optional<Severity>>(
        command, "--fail-on", options.failOn,
        {{"error", Severity::error}, {"warning", Severity::warning}, {"never", std::nullopt}},
        "Lowest severity that makes the exit status 1 (default warning)");
    addChoiceOption<bool>(command, "--format", options.form.isJSON, {{"text", false}, {"json", true}},
                          "Form of the output (default text)");
    command.add_flag("--info", options.form.withInfos,
                     "Also list remarks: nothing is lost, but something is added or written differently");
    command.add_option("--ignore", options.ignored, "Rules to skip, by id, separated by commas")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(complaintIfUnknown);
    addColorOption(command, options.form.color);
}

}  // namespace

Subcommand addCheck(CLI::App& application) {
    CLI::App* const command =
        application.add_subcommand("check", "Report what documents lose when they are written back");
    const auto options = std::make_shared<Options>();
    addOptions(*command, *options);
    addBatchOptions(*command, options->batch);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                options->check.ignored.insert(options->ignored.begin(), options->ignored.end());
                return check(*options);
            }};
}

}  // namespace tool
