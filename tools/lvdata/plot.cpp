#include "plot.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Fleet.h"
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

#include <lvdata/analysis/pictures/pictures.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

using lv::analysis::HistorySeries;
using lv::analysis::LimitSet;
using lv::analysis::ModeFigures;
using lv::analysis::Snapshot;
using lv::analysis::colour::Plane;

enum class Picture { gamut, tone, balance, lut, uniformity, brightness, sixColours, patches, history };

struct Options {
    BatchOptions batch;
    lv::Limits limits;
    lv::analysis::KnownUnits units;
    Picture picture = Picture::gamut;
    std::string mode;
    std::optional<Plane> plane;
    std::string limitSet;
    std::string figure;
    std::string output{standardStream};
};

void refuseWrongOptions(const Options& options) {
    const Picture picture = options.picture;
    const bool isOfMap = picture == Picture::uniformity || picture == Picture::brightness;
    const bool hasLimits = picture == Picture::patches || picture == Picture::history;
    if (options.plane && picture != Picture::gamut) {
        throw Failure(program, "--plane is for gamut only");
    }
    if (!options.figure.empty() && picture != Picture::history) {
        throw Failure(program, "--figure is for history only");
    }
    if (!options.limitSet.empty() && !hasLimits) {
        throw Failure(program, "--limits is for patches and history only");
    }
    if (!options.mode.empty() && isOfMap) {
        throw Failure(program, "--mode is not for maps, which belong to no colour mode");
    }
}

/// The documents of one monitor, in the order of time. All but history take one document.
MonitorDocuments readMonitor(const Options& options, InputFiles& inputs, ExitStatus& status) {
    const MonitorReader reader(options.limits, options.units);
    const bool isHistory = options.picture == Picture::history;
    Fleet fleet;
    std::size_t count = 0;
    Output output;
    const auto work = [&](const Input& input) {
        inputs.add(input.file);
        return isHistory ? reader.readSummary(input.file) : reader.read(input.file);
    };
    const auto deliver = [&](MonitorDocument&& document) {
        const std::string name = document.snapshot.document;
        const std::string why = whySecondMonitor(document.identity);
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

/// The mode that was asked for, or else the first one with a calibration result, or the first one.
ModeFigures modeOf(const Snapshot& snapshot, const std::string& index) {
    const std::vector<ModeFigures>& modes = snapshot.figures.modes;
    if (!index.empty()) {
        return modesOfIndex(modes, index, snapshot.document).front();
    }
    if (modes.empty()) {
        throw Failure(snapshot.document, "there are no colour modes");
    }
    const auto found = std::find_if(modes.begin(), modes.end(), &lv::analysis::hasResult);
    return found == modes.end() ? modes.front() : *found;
}

[[noreturn]] void refuseUnknownFigure(const std::vector<HistorySeries>& history, const std::string& key) {
    std::string known;
    for (const HistorySeries& series : history) {
        known += (known.empty() ? "" : ", ") + series.key;
    }
    throw Failure(program, "there is no figure '" + key + "'; there are " + known);
}

std::string historyOf(const MonitorDocuments& documents, const Options& options, const LimitSet* limits) {
    std::vector<Snapshot> snapshots;
    for (const MonitorDocument& document : documents) {
        snapshots.push_back(document.snapshot);
    }
    const std::string key = options.figure.empty() ? "white_delta_uv" : options.figure;
    const auto history = lv::analysis::historyOf(snapshots, modeOf(snapshots.back(), options.mode).index);
    const HistorySeries* const series = seriesOf(history, key);
    if (series == nullptr) {
        refuseUnknownFigure(history, key);
    }
    return historyPicture(*series, limits == nullptr ? nullptr : limits->limitOf(key));
}

std::string pictureOf(const MonitorDocuments& documents, const Options& options, const LimitSet* limits) {
    const Snapshot& latest = latestOf(documents).snapshot;
    const auto mode = [&] {
        return modeOf(latest, options.mode);
    };
    switch (options.picture) {
    case Picture::gamut:
        return gamutPicture(mode(), options.plane.value_or(Plane::uv));
    case Picture::tone:
        return tonePicture(mode());
    case Picture::balance:
        return balancePicture(mode());
    case Picture::lut:
        return tablesPicture(mode());
    case Picture::uniformity:
        return mapPicture(latest.figures.uniformity);
    case Picture::brightness:
        return mapPicture(latest.figures.brightness);
    case Picture::sixColours:
        return sixColoursPicture(mode());
    case Picture::patches:
        return patchesPicture(mode(), limits);
    case Picture::history:
        break;
    }
    return historyOf(documents, options, limits);
}

ExitStatus plot(const Options& options) {
    refuseWrongOptions(options);
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

void addPictureOption(CLI::App& command, Picture& picture) {
    addChoiceOption<Picture>(command, "PICTURE", picture,
                             {{"gamut", Picture::gamut},
                              {"tone", Picture::tone},
                              {"balance", Picture::balance},
                              {"lut", Picture::lut},
                              {"uniformity", Picture::uniformity},
                              {"brightness", Picture::brightness},
                              {"six-colours", Picture::sixColours},
                              {"patches", Picture::patches},
                              {"history", Picture::history}},
                             "What to draw")
        ->required();
}

void addOptions(CLI::App& command, Options& options) {
    addOutputOption(command, options.output);
    addModeOption(command, options.mode, "Colour mode of this index (default: the first with a calibration result)");
    addChoiceOption<std::optional<Plane>>(command, "--plane", options.plane, {{"xy", Plane::xy}, {"uv", Plane::uv}},
                                          "Diagram of gamut: CIE 1931 x and y, or CIE 1976 u' and v' (default)");
    addLimitSetOption(command, options.limitSet, "Limits to draw for patches and history (default: none)");
    command.add_option("--figure", options.figure, "Figure that history draws (default: white_delta_uv)")
        ->type_name("KEY");
    addUnitOptions(command, options.units);
}

}  // namespace

Subcommand addPlot(CLI::App& application) {
    CLI::App* const command = application.add_subcommand("plot", "Draw one picture of a monitor as SVG");
    const auto options = std::make_shared<Options>();
    addPictureOption(*command, options->picture);
    addOptions(*command, *options);
    addBatchOptions(*command, options->batch);
    addLimitOptions(*command, options->limits);
    return {command, [options] {
                return plot(*options);
            }};
}

}  // namespace tool
