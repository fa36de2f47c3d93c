#include <lvdata/analysis/figures/ModeFigures.h>

#include <lvdata/analysis/figures/adjustments.h>
#include <lvdata/analysis/figures/gamut_figures.h>
#include <lvdata/analysis/figures/series_figures.h>
#include <lvdata/analysis/figures/target_curves.h>
#include <lvdata/analysis/figures/target_texts.h>
#include <lvdata/analysis/figures/tone_figures.h>
#include <lvdata/analysis/figures/white_figures.h>

#include <cstddef>
#include <deque>
#include <unordered_map>

namespace lv::analysis {
namespace {

using Setting = ColorModeSettingsObject;
using Result = CalibrationModeResultObject;

/// What is told of one mode; one of the two may be missing.
struct Mode {
    const Setting* setting = nullptr;
    const Result* result = nullptr;
};

std::string numberOf(const property<unsigned int>& index) {
    return index.hasValue ? std::to_string(index.value) : "";
}

/// The modes that have no result yet, by their index.
using Waiting = std::unordered_map<std::string, std::deque<std::size_t>>;

/// Gives the result to the first mode of its index that is waiting for one, or else makes a new mode of it.
void add(const Result& result, std::vector<Mode>& modes, Waiting& waiting) {
    const std::string index = numberOf(result.index);
    const auto found = waiting.find(index);
    if (index.empty() || found == waiting.end() || found->second.empty()) {
        modes.push_back({nullptr, &result});
        return;
    }
    modes[found->second.front()].result = &result;
    found->second.pop_front();
}

std::vector<Mode> joined(const ColorModeSettings& settings, const CalibrationModeResult& results) {
    std::vector<Mode> modes;
    Waiting waiting;
    for (const Setting& setting : settings.objects) {
        waiting[numberOf(setting.index)].push_back(modes.size());
        modes.push_back({&setting, nullptr});
    }
    for (const Result& result : results.objects) {
        add(result, modes, waiting);
    }
    return modes;
}

template <class Row>
void takeIdentity(ModeFigures& figures, const Row& row) {
    figures.index = numberOf(row.index);
    figures.name = textOf(row.name);
    figures.type = row.type.value;
}

void takeSetting(ModeFigures& figures, const Setting& setting) {
    takeIdentity(figures, setting);
    takeTarget(figures, setting);
}

void takeResult(ModeFigures& figures, const Mode& mode, const KnownUnits& known) {
    const Result& result = *mode.result;
    const TargetCurves curves = targetCurvesOf(mode.setting, mode.result);
    figures.calibratedTime = textOf(result.calibratedTime);
    figures.measurements = result.hasMeasurementData ? result.measurementData.objects.size() : 0;
    takeWhite(figures, result);
    figures.tone = toneFiguresOf(result, curves, known);
    figures.series = seriesFiguresOf(result, figures, targetPrimariesOf(mode.setting), curves, known);
}

ModeFigures figuresOf(const Mode& mode, const KnownUnits& known) {
    ModeFigures figures;
    figures.targetY = missing("the mode has no settings");
    if (mode.setting != nullptr) {
        takeSetting(figures, *mode.setting);
    } else {
        takeIdentity(figures, *mode.result);
    }
    if (mode.result != nullptr) {
        takeResult(figures, mode, known);
    } else {
        const std::string reason = "no calibration result";
        missWhite(figures, reason);
        figures.tone = missingTone(targetCurvesOf(mode.setting, nullptr), reason);
        figures.series = missingSeries(reason);
    }
    takeGamut(figures, mode.setting, mode.result);
    takeAdjustments(figures, mode.setting, mode.result);
    return figures;
}

}  // namespace

std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings, const CalibrationModeResult& results,
                                     const KnownUnits& known) {
    std::vector<ModeFigures> figures;
    for (const Mode& mode : joined(settings, results)) {
        figures.push_back(figuresOf(mode, known));
    }
    return figures;
}

ModeFigures figuresOfMode(const ColorModeSettingsObject* settings, const CalibrationModeResultObject* result,
                          const KnownUnits& known) {
    return figuresOf({settings, result}, known);
}

bool hasResult(const ModeFigures& mode) {
    const bool hasTables = !mode.tables[0].empty() || !mode.tables[1].empty() || !mode.tables[2].empty();
    return !mode.calibratedTime.empty() || mode.measuredWhite || mode.measuredChromaticity || mode.measuredBlack ||
           mode.measurements > 0 || hasTables;
}

}  // namespace lv::analysis
