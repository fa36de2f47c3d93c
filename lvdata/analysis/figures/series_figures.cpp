#include <lvdata/analysis/figures/series_figures.h>

#include <lvdata/analysis/figures/DisplayModel.h>
#include <lvdata/analysis/figures/tone_figures.h>

#include <algorithm>
#include <numeric>

namespace lv::analysis {
namespace {

/// The reference of a series, or why there is none.
struct Reference {
    std::optional<DisplayModel> model{};
    std::string words{};
    std::string reason{};
};

bool needsBlack(const TargetCurves& curves) {
    return curves.curves && (*curves.curves)[1].kind == ToneCurve::Kind::gsdf;
}

/// The target's primaries and white, as bright as the measured white, without black. No value where the target or the
/// measured white does not give them.
std::optional<colour::Matrix> targetChannels(const ModeFigures& mode, const TargetPrimaries& target) {
    const auto white = aimedWhite(mode);
    if (!target.primaries || !white || !mode.measuredWhite) {
        return std::nullopt;
    }
    auto channels = colour::rgbToXYZ(*target.primaries, *white);
    const double Y = (*mode.measuredWhite)[1];
    if (!channels || !(Y > 0)) {
        return std::nullopt;
    }
    for (auto& row : *channels) {
        for (double& entry : row) {
            entry *= Y;
        }
    }
    return channels;
}

Reference profileReference(const MeasuredSet& set, const TargetCurves& curves, bool isAbsolute) {
    const Channels channels = channelsOf(set);
    if (!channels.matrix) {
        return {{}, "", channels.reason};
    }
    const std::string black = set.black ? "measured primaries, white and black" : "measured primaries and white";
    return {DisplayModel(*channels.matrix, set.black.value_or(colour::Tristimulus()), *curves.curves, isAbsolute),
            "profile: " + black + ", tone curve " + curves.label, ""};
}

Reference referenceOf(const MeasuredSet& set, const ModeFigures& mode, const TargetPrimaries& target,
                      const TargetCurves& curves, bool isAbsolute) {
    if (!curves.curves) {
        return {{}, "", curves.reason};
    }
    const auto channels = needsBlack(curves) ? std::nullopt : targetChannels(mode, target);
    if (!channels) {
        return profileReference(set, curves, isAbsolute);
    }
    return {DisplayModel(*channels, {}, *curves.curves, isAbsolute),
            "target: its primaries and white, Y of the measured white, no black, tone curve " + curves.label, ""};
}

template <std::size_t Count>
std::optional<std::array<unsigned int, Count>> shown(const std::vector<unsigned int>& stored) {
    if (stored.size() != Count) {
        return std::nullopt;
    }
    std::array<unsigned int, Count> values{};
    std::copy(stored.begin(), stored.end(), values.begin());
    return values;
}

DisplayModel::Prediction predicted(const PatchFigures& patch, const Reference& reference) {
    if (!reference.model) {
        return {{}, reference.reason};
    }
    if (!patch.RGB) {
        return {{}, "no R, G and B were shown"};
    }
    const std::array<double, 3> signals = {natural((*patch.RGB)[0], quantities::codeValue),
                                           natural((*patch.RGB)[1], quantities::codeValue),
                                           natural((*patch.RGB)[2], quantities::codeValue)};
    if (signals[0] > 1 || signals[1] > 1 || signals[2] > 1) {
        return {{}, "a code value above 255"};
    }
    return reference.model->predict(signals);
}

Figure deltaE2000Of(const PatchFigures& patch, const DisplayModel::Prediction& prediction, const Reference& reference) {
    if (!patch.XYZ) {
        return missing("no X, Y and Z were measured");
    }
    if (!prediction.XYZ) {
        return missing(prediction.reason);
    }
    const colour::Tristimulus& white = reference.model->white();
    if (!colour::isWhite(white)) {
        return missing("X, Y or Z of the white is not above 0");
    }
    return computed(colour::deltaE2000(colour::lab(*patch.XYZ, white), colour::lab(*prediction.XYZ, white)));
}

PatchFigures patchOf(const MeasurementDataObject& row, std::size_t number, const Reference& reference) {
    PatchFigures patch;
    patch.number = number;
    patch.RGB = shown<3>(row.RGB);
    patch.CMYK = shown<4>(row.CMYK);
    patch.XYZ = tristimulusOf(row.XYZ);
    const DisplayModel::Prediction prediction = predicted(patch, reference);
    patch.expected = prediction.XYZ;
    patch.deltaE2000 = deltaE2000Of(patch, prediction, reference);
    return patch;
}

void setMissing(SeriesFigures& series, const std::string& reason) {
    series.mean = series.percentile95 = series.maximum = missing(reason);
}

/// The patches that have a ΔE00, greatest first; equal ones in their order.
std::vector<std::size_t> byDifference(const std::vector<PatchFigures>& patches) {
    std::vector<std::size_t> indices;
    for (std::size_t index = 0; index < patches.size(); ++index) {
        if (patches[index].deltaE2000.value) {
            indices.push_back(index);
        }
    }
    std::stable_sort(indices.begin(), indices.end(), [&](std::size_t left, std::size_t right) {
        return *patches[left].deltaE2000.value > *patches[right].deltaE2000.value;
    });
    return indices;
}

/// Mean, percentile by nearest rank, and maximum.
void summarize(SeriesFigures& series) {
    constexpr std::size_t mostWorst = 5;
    const std::vector<std::size_t> falling = byDifference(series.patches);
    if (falling.empty()) {
        setMissing(series, series.patches.empty() ? "no measurements" : series.patches[0].deltaE2000.reason);
        return;
    }
    const auto valueAt = [&](std::size_t index) {
        return *series.patches[index].deltaE2000.value;
    };
    const double sum = std::accumulate(falling.begin(), falling.end(), 0.0,
                                       [&](double total, std::size_t index) { return total + valueAt(index); });
    series.mean = computed(sum / static_cast<double>(falling.size()));
    series.percentile95 = computed(valueAt(falling[falling.size() / 20]));  // 5 % may exceed it
    series.maximum = computed(valueAt(falling[0]));
    series.worst.assign(falling.begin(),
                        std::next(falling.begin(), static_cast<std::ptrdiff_t>(std::min(mostWorst, falling.size()))));
}

}  // namespace

SeriesFigures missingSeries(const std::string& reason) {
    SeriesFigures series;
    setMissing(series, reason);
    return series;
}

SeriesFigures seriesFiguresOf(const CalibrationModeResultObject& result, const ModeFigures& mode,
                              const TargetPrimaries& primaries, const TargetCurves& curves, const KnownUnits& known) {
    if (!result.hasMeasurementData) {
        return missingSeries("no measurements");
    }
    const Reference reference = referenceOf(measuredSetOf(result), mode, primaries, curves, isAbsolute(known));
    SeriesFigures series;
    series.reference = reference.words;
    std::size_t number = 0;
    for (const MeasurementDataObject& row : result.measurementData.objects) {
        series.patches.push_back(patchOf(row, ++number, reference));
    }
    summarize(series);
    return series;
}

}  // namespace lv::analysis
