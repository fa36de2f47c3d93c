#include <lvdata/analysis/figures/DisplayModel.h>

#include <lvdata/analysis/colour/transfer.h>

#include <cmath>

namespace lv::analysis {
namespace {

colour::Tristimulus sum(const colour::Tristimulus& left, const colour::Tristimulus& right) {
    return {left[0] + right[0], left[1] + right[1], left[2] + right[2]};
}

colour::Tristimulus difference(const colour::Tristimulus& left, const colour::Tristimulus& right) {
    return {left[0] - right[0], left[1] - right[1], left[2] - right[2]};
}

/// Each column times its factor.
colour::Matrix scaled(colour::Matrix matrix, const std::array<double, 3>& factors) {
    for (auto& row : matrix) {
        for (std::size_t column = 0; column < 3; ++column) {
            row.at(column) *= factors.at(column);
        }
    }
    return matrix;
}

bool isFinite(const colour::Tristimulus& values) {
    return std::isfinite(values[0]) && std::isfinite(values[1]) && std::isfinite(values[2]);
}

/// How much of each column makes the white; no value unless some of each does.
std::optional<std::array<double, 3>> factorsOf(const colour::Matrix& channels, const colour::Tristimulus& white) {
    const auto inverted = colour::inverse(channels);
    const auto factors = inverted ? colour::product(*inverted, white) : std::array<double, 3>();
    const bool canMakeWhite = isFinite(factors) && factors[0] > 0 && factors[1] > 0 && factors[2] > 0;
    return canMakeWhite ? std::optional(factors) : std::nullopt;
}

}  // namespace

Channels channelsOf(const MeasuredSet& set) {
    if (!set.red || !set.green || !set.blue || !set.white) {
        return {{}, "no complete set of primaries and white was measured"};
    }
    const colour::Tristimulus black = set.black.value_or(colour::Tristimulus());
    const colour::Tristimulus white = difference(*set.white, black);
    if (!(white[1] > 0)) {
        return {{}, "the measured white is not brighter than the measured black"};
    }
    const colour::Matrix channels =
        colour::fromColumns(difference(*set.red, black), difference(*set.green, black), difference(*set.blue, black));
    const auto factors = factorsOf(channels, white);
    return factors ? Channels{scaled(channels, *factors), ""}
                   : Channels{{}, "the measured primaries cannot make the measured white"};
}

DisplayModel::DisplayModel(const colour::Matrix& channels, const colour::Tristimulus& black,
                           const std::array<ToneCurve, 3>& curves, bool isAbsolute)
    : channels_(channels),
      black_(black),
      white_(sum(black, colour::product(channels, {1, 1, 1}))),
      curves_(curves),
      range_{white_[1], black_[1], isAbsolute} {}

DisplayModel::Lights DisplayModel::hlgLightsOf(const std::array<double, 3>& signals) const {
    const Figure systemGamma = systemGammaOf(curves_[0], range_);
    if (!systemGamma.value) {
        return {{}, systemGamma.reason};
    }
    const double whole = white_[1] - black_[1];
    const std::array<double, 3> luminances = {channels_[1][0] / whole, channels_[1][1] / whole,
                                              channels_[1][2] / whole};
    const std::array<double, 3> scene = {colour::hlgSceneLight(signals[0]), colour::hlgSceneLight(signals[1]),
                                         colour::hlgSceneLight(signals[2])};
    return {colour::hlgDisplayLight(scene, *systemGamma.value, luminances), ""};
}

DisplayModel::Lights DisplayModel::lightsOf(const std::array<double, 3>& signals) const {
    if (curves_[0].kind == ToneCurve::Kind::hlg) {
        return hlgLightsOf(signals);
    }
    Lights lights;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const Figure light = lightOf(curves_.at(channel), signals.at(channel), range_);
        if (!light.value) {
            return {{}, light.reason};
        }
        lights.values.at(channel) = *light.value;
    }
    return lights;
}

DisplayModel::Prediction DisplayModel::predict(const std::array<double, 3>& signals) const {
    const Lights lights = lightsOf(signals);
    if (!lights.reason.empty()) {
        return {{}, lights.reason};
    }
    const colour::Tristimulus XYZ = sum(black_, colour::product(channels_, lights.values));
    return isFinite(XYZ) ? Prediction{XYZ, ""} : Prediction{{}, "the result is beyond the range of numbers"};
}

}  // namespace lv::analysis
