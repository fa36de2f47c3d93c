#include <tests/analysis/pictures/sample_figures.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace lv::test {
namespace {

using analysis::ModeFigures;

/// The same numbers from 0 to 1 in each run, without any order.
class Noise {
public:
    double operator()() {
        state_ = state_ * 1664525U + 1013904223U;  // of W. H. Press et al., "Numerical Recipes"
        return static_cast<double>(state_) / 4294967296.0;
    }

private:
    std::uint32_t state_ = 1;
};

void fillTone(ModeFigures& mode, std::size_t steps, Noise& noise, double amplitude) {
    for (std::size_t index = 0; index < steps; ++index) {
        const double signal = steps < 2 ? 1 : static_cast<double>(index) / static_cast<double>(steps - 1);
        const double target = std::pow(signal, 2.2);
        const double light = std::clamp(target + amplitude * (noise() - 0.5) * (1 - target), 0.0, 1.0);
        analysis::ToneStep step{signal, light, {target, ""}, {}, {}};
        if (signal > 0 && signal < 1 && light > 0 && light < 1) {
            step.gamma.value = std::log(light) / std::log(signal);
        }
        step.balance = {1 + amplitude * (noise() - 0.5), 1 + amplitude * (noise() - 0.5), 1.0};
        mode.tone.steps.push_back(step);
    }
    mode.tone.targetCurve = "2.2";
    mode.tone.meanGamma.value = 2.21;
    mode.tone.greatestDeviation.value = 0.0123;
    mode.tone.greatestImbalance.value = 0.0187;
}

void fillSeries(ModeFigures& mode, std::size_t patches, Noise& noise) {
    analysis::SeriesFigures& series = mode.series;
    for (std::size_t index = 0; index < patches; ++index) {
        analysis::PatchFigures patch;
        patch.number = index + 1;
        const auto level = static_cast<unsigned int>(index % 256);
        patch.RGB = {level, 255 - level, 128};
        patch.deltaE2000.value = 0.2 + 2.4 * noise() * noise();
        series.patches.push_back(patch);
    }
    series.reference = "the target";
    series.mean.value = 0.83;
    series.percentile95.value = 1.97;
    series.maximum.value = 2.55;
}

void fillTables(ModeFigures& mode, std::size_t entries, Noise& noise, double amplitude) {
    for (std::size_t channel = 0; channel < mode.tables.size(); ++channel) {
        for (std::size_t index = 0; index < entries; ++index) {
            const double place = entries < 2 ? 0 : static_cast<double>(index) / static_cast<double>(entries - 1);
            const double curve = std::pow(place, 1.0 + 0.02 * static_cast<double>(channel));
            mode.tables[channel].push_back(std::clamp(curve + amplitude * (noise() - 0.5), 0.0, 1.0));
        }
    }
}

void fillPrimaries(ModeFigures& mode) {
    mode.measuredChromaticity = {0.3131, 0.3294};
    mode.targetChromaticity = {0.3127, 0.3290};
    mode.primaries[0] = {{{0.640, 0.330}}, {{0.6721, 0.3189}}, {}};
    mode.primaries[1] = {{{0.300, 0.600}}, {{0.2204, 0.6893}}, {}};
    mode.primaries[2] = {{{0.150, 0.060}}, {{0.1487, 0.0562}}, {}};
}

ModeFigures namedMode() {
    ModeFigures mode;
    mode.index = "2";
    mode.name = "Photo";
    mode.calibratedTime = "2024-05-02T10:21:00";
    fillPrimaries(mode);
    mode.sixColours = {{"Hue", "monitor", {2, -1, 0, 1, 0, 3}},
                       {"Hue", "target", {2, 0, 0, 1, -2, 3}},
                       {"Saturation", "monitor", {4, 0, -6, 1, 0, 2}},
                       {"Lightness", "monitor", {0, 0, 0, 0, 0, 0}}};
    return mode;
}

}  // namespace

ModeFigures sampleMode() {
    ModeFigures mode = namedMode();
    Noise noise;
    fillTone(mode, 18, noise, 0.02);
    fillSeries(mode, 48, noise);
    fillTables(mode, 256, noise, 0);
    return mode;
}

ModeFigures noisyMode(std::size_t count) {
    ModeFigures mode = namedMode();
    Noise noise;
    fillTone(mode, count, noise, 0.5);
    fillSeries(mode, count, noise);
    fillTables(mode, count, noise, 0.8);
    return mode;
}

analysis::MapFigures sampleMap() {
    analysis::MapFigures map = noisyMap(25, 5);
    map.values = {92, 95, 96, 95, 92, 94, 98, 99, 98, 95, 95, 98, 100, 99, 96, 94, 97, 98, 98, 95, 91, 94, 95, 94, 92};
    map.minimum.value = 91;
    map.maximum.value = 100;
    map.mean.value = 95.6;
    map.centre.value = 100;
    map.greatestDeviation.value = 0.09;
    map.againstCentre.clear();
    for (const double value : map.values) {
        map.againstCentre.push_back(value / 100 - 1);
    }
    return map;
}

analysis::MapFigures noisyMap(std::size_t count, std::size_t gridWidth) {
    analysis::MapFigures map;
    map.name = "Uniformity";
    map.updatedAt = "2024-05-02T10:21:00";
    map.gridWidth = gridWidth;
    Noise noise;
    for (std::size_t index = 0; index < count; ++index) {
        map.values.push_back(90 + 10 * noise());
    }
    return map;
}

analysis::HistorySeries sampleSeries() {
    analysis::HistorySeries series;
    series.key = "patches_delta_e2000_mean";
    series.label = "Mean ΔE00";
    series.decimals = 2;
    series.points = {{"2023-02-11T09:00:00", {0.61, ""}},
                     {"2023-09-03T09:00:00", {0.72, ""}},
                     {"2024-05-02T10:21:00", {1.08, ""}},
                     {"2024-11-20T08:00:00", {1.61, ""}}};
    return series;
}

analysis::LimitSet sampleLimits() {
    return {"default",
            "Default limits",
            "",
            {{"patches_delta_e2000_mean", {}, 1.5, ""}, {"patches_delta_e2000_maximum", {}, 2.5, ""}}};
}

}  // namespace lv::test
