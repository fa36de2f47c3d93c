#include <tests/analysis/pictures/every_picture.h>
#include <tests/analysis/pictures/sample_figures.h>

namespace lv::test {
namespace {

using analysis::Figure;

void setNumbers(analysis::ModeFigures& mode, double number) {
    for (analysis::PrimaryFigures& primary : mode.primaries) {
        primary.measured = {number, number};
        primary.target = {number, 0.3};
    }
    mode.measuredChromaticity = {0.3, number};
    mode.targetChromaticity = {number, number};
    for (analysis::ToneStep& step : mode.tone.steps) {
        step.light = number;
        step.target.value = number;
        step.gamma.value = number;
        step.balance = {number, number, 1};
    }
    mode.tone.steps.front().signal = number;
    for (Figure* figure : {&mode.tone.meanGamma, &mode.tone.greatestDeviation, &mode.tone.greatestImbalance,
                           &mode.series.mean, &mode.series.percentile95, &mode.series.maximum}) {
        figure->value = number;
    }
    for (analysis::PatchFigures& patch : mode.series.patches) {
        patch.deltaE2000.value = number;
    }
    for (std::vector<double>& table : mode.tables) {
        table[table.size() / 2] = number;
    }
}

void setNumbers(analysis::MapFigures& map, double number) {
    map.values[3] = number;
    map.againstCentre[4] = number;
    for (Figure* figure : {&map.minimum, &map.maximum, &map.mean, &map.centre, &map.greatestDeviation}) {
        figure->value = number;
    }
}

void setTexts(analysis::ModeFigures& mode, const std::string& text) {
    mode.name = text;
    mode.index = text;
    mode.calibratedTime = text;
    mode.tone.targetCurve = text;
    mode.series.reference = text;
}

}  // namespace

AllFigures sampleFigures() {
    return {sampleMode(), sampleMap(), sampleSeries(), sampleLimits(), {"", 0.5, 1.5, ""}};
}

AllFigures manyFigures(std::size_t count) {
    AllFigures figures = sampleFigures();
    figures.mode = noisyMode(count);
    figures.map = noisyMap(count, 32);
    figures.series.points.clear();
    for (const analysis::ToneStep& step : figures.mode.tone.steps) {
        figures.series.points.push_back({"", {step.light, ""}});
    }
    return figures;
}

AllFigures figuresOf(double number) {
    AllFigures figures = sampleFigures();
    setNumbers(figures.mode, number);
    setNumbers(figures.map, number);
    figures.series.points[1].figure.value = number;
    figures.limits.limits[0].maximum = number;
    figures.limit = {"", number, number, ""};
    return figures;
}

AllFigures figuresNamed(const std::string& text) {
    AllFigures figures = sampleFigures();
    setTexts(figures.mode, text);
    figures.map.updatedAt = text;
    figures.map.unit = text;
    figures.series.label = text;
    figures.series.unit = text;
    figures.series.points[1].when = text;
    figures.limits.name = text;
    return figures;
}

std::vector<NamedPicture> everyPicture(const AllFigures& figures, const analysis::PictureForm& form) {
    using namespace analysis;  // NOLINT(*-using-namespace): names of pictures
    return {{"gamut xy", gamutPicture(figures.mode, colour::Plane::xy, form)},
            {"gamut uv", gamutPicture(figures.mode, colour::Plane::uv, form)},
            {"tone", tonePicture(figures.mode, form)},
            {"balance", balancePicture(figures.mode, form)},
            {"tables", tablesPicture(figures.mode, form)},
            {"patches", patchesPicture(figures.mode, &figures.limits, form)},
            {"map", mapPicture(figures.map, form)},
            {"six colours", sixColoursPicture(figures.mode, form)},
            {"history", historyPicture(figures.series, &figures.limit, form)}};
}

}  // namespace lv::test
