#include <lvdata/analysis/figures/ModeFigures.h>

#include <lvdata/analysis/figures/adjustments.h>
#include <lvdata/analysis/figures/gamut_figures.h>
#include <lvdata/analysis/figures/series_figures.h>
#include <lvdata/analysis/figures/target_curves.h>
#include <lvdata/analysis/figures/target_texts.h>
#include <lvdata/analysis/figures/tone_figures.h>
#include <lvdata/analysis/figures/white_figures.h>

namespace lv::analysis {
namespace {

using Setting = ColorModeSettingsObject;
using Result = CalibrationModeResultObject;

std::string numberOf(const property<unsigned int>& index) {
    return index.hasValue ? std::to_string(index.value) : "";
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

void takeResult(ModeFigures& figures, const JoinedMode& mode, const KnownUnits& known) {
    const Result& result = *mode.result;
    const TargetCurves curves = targetCurvesOf(mode.setting, mode.result);
    figures.calibratedTime = textOf(result.calibratedTime);
    figures.measurements = result.hasMeasurementData ? result.measurementData.objects.size() : 0;
    takeWhite(figures, result);
    figures.tone = toneFiguresOf(result, curves, known);
    figures.series = seriesFiguresOf(result, figures, targetPrimariesOf(mode.setting), curves, known);
}

}  // namespace

ModeFigures modeFigures(const JoinedMode& mode, const KnownUnits& known) {
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

std::vector<ModeFigures> modeFigures(const ColorModeSettings& settings, const CalibrationModeResult& results,
                                     const KnownUnits& known) {
    std::vector<ModeFigures> figures;
    for (const JoinedMode& mode : joinedModes(&settings, &results)) {
        figures.push_back(modeFigures(mode, known));
    }
    return figures;
}

bool hasResult(const ModeFigures& mode) {
    const bool hasTables = !mode.tables[0].empty() || !mode.tables[1].empty() || !mode.tables[2].empty();
    return !mode.calibratedTime.empty() || mode.measuredWhite || mode.measuredChromaticity || mode.measuredBlack ||
           mode.measurements > 0 || hasTables;
}

}  // namespace lv::analysis
