#include "plot.h"

#include "CommandLine.h"
#include "Failure.h"
#include "InputFiles.h"
#include "MonitorReader.h"
#include "Output.h"
#include "batch.h"
#include "choice_option.h"
#include "files.h"
#include "limit_options.h"
#include "limit_set_option.h"
#include "mode_option.h"
#include "output_option.h"
#include "unit_options.h"

#include <lvdata/analysis/monitors/Fleet.h>
#include <lvdata/analysis/pictures/drawing.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tool {
namespace {

using lv::analysis::Fleet;
using lv::analysis::LimitSet;
using lv::analysis::MonitorDocument;
using lv::analysis::MonitorDocuments;
using lv::analysis::PictureKind;
using lv::analysis::PictureRefusal;
using lv::analysis::PictureRequest;
using lv::analysis::Snapshot;
using lv::analysis::colour::Plane;

struct Options {
    BatchOptions batch;
    lv::Limits limits;
    lv::analysis::KnownUnits units;
    PictureRequest picture;
    std::string limitSet;
    std::string output{standardStream};
};

void refuseWrongOptions(PictureRequest request, const std::string& limitSet) {
    request.hasLimits = !limitSet.empty();
    const std::string complaint = complaintAbout(request);
    if (!complaint.empty()) {
        throw Failure(program, "--" + complaint);
    }
}

/// The documents of one monitor, in the order of time. All but history take one document.
MonitorDocuments readMonitor(const Options& options, InputFiles& inputs, ExitStatus& status) {
    const MonitorReader reader(options.limits, options.units);
    const bool isHistory = options.picture.kind == PictureKind::history;
    Fleet fleet;
    std::size_t count = 0;
    Output output;
    const auto work = [&](const Input& input) {
        inputs.add(input.file);
        return isHistory ? reader.readSummary(input.file) : reader.read(input.file);
    };
    const auto deliver = [&](MonitorDocument&& document) {
        const std::string name = document.snapshot.document;
        const std::string why = lv::analysis::whySecondMonitor(document.identity);
        fleet.add(std::move(document));
        if (fleet.size() > 1 && isHistory) {
            throw Failure(name, why);
        }
        if (++count > 1 && !isHistory) {
            throw Failure(program, "all pictures but history take one document");
        }
        return ExitStatus::done;
    };
    status = forEachInput(options.batch, output, work, deliver);
    auto monitors = fleet.take();
    return monitors.empty() ? MonitorDocuments{} : std::move(monitors.front());
}

std::string pictureOf(const MonitorDocuments& documents, const Options& options, const LimitSet* limits) {
    std::vector<Snapshot> snapshots;
    for (const MonitorDocument& document : documents) {
        snapshots.push_back(document.snapshot);
    }
    auto drawn = drawPicture(snapshots, options.picture, limits);
    if (const auto* const refusal = std::get_if<PictureRefusal>(&drawn)) {
        throw Failure(refusal->document.empty() ? program : refusal->document, refusal->reason);
    }
    return std::get<std::string>(std::move(drawn));
}

ExitStatus plot(const Options& options) {
    refuseWrongOptions(options.picture, options.limitSet);
    const auto limits =
        options.limitSet.empty() ? std::nullopt : std::optional<LimitSet>(readLimitSet(options.limitSet));
    InputFiles inputs;
    inputs.add(options.limitSet);
    ExitStatus status = ExitStatus::done;
    const MonitorDocuments documents = readMonitor(options, inputs, status);
    if (documents.empty()) {
        return status;
    }
    const std::string picture = pictureOf(documents, options, limits ? &*limits : nullptr);
    inputs.refuseToOverwrite(options.output);
    writeResult(options.output, picture);
    return status;
}

void addPictureOption(CLI::App& command, PictureKind& picture) {
    Choices<PictureKind> choices;
    for (const lv::analysis::PictureName& each : lv::analysis::pictureNames()) {
        choices[std::string(each.name)] = each.kind;
    }
    addChoiceOption<PictureKind>(command, "PICTURE", picture, choices, "What to draw")->required();
}

void addOptions(CLI::App& command, Options& options) {
    addOutputOption(command, options.output);
    addModeOption(command, options.picture.mode,
                  "Colour mode of this index (default: the first with a calibration result)");
    addChoiceOption<std::optional<Plane>>(command, "--plane", options.picture.plane,
                                          {{"xy", Plane::xy}, {"uv", Plane::uv}},
                                          "Diagram of gamut: CIE 1931 x and y, or CIE 1976 u' and v' (default)");
    addLimitSetOption(command, options.limitSet, "Limits to draw for patches and history (default: none)");
    command.add_option("--figure", options.picture.figure, "Figure that history draws (default: white_delta_uv)")
        ->type_name("KEY");
    addUnitOptions(command, options.units);
}

}  // namespace

Subcommand addPlot(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("plot", "Draw one picture of a monitor as SVG");
    const auto options = std::make_shared<Options>();
    addPictureOption(*command, options->picture.kind);
    addOptions(*command, *options);
    addBatchOptions(*command, options->batch);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return plot(*options);
            }};
}

}  // namespace tool
