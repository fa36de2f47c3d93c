#include <lvdata/analysis/figures/tone_figures.h>

#include <lvdata/analysis/figures/DisplayModel.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace lv::analysis {
namespace {

constexpr unsigned int fullScale = quantities::codeValue.factor;

/// The mean of the patches of one code value.
class Mean {
public:
    void add(const colour::Tristimulus& XYZ) {
        for (std::size_t index = 0; index < 3; ++index) {
            sum_.at(index) += XYZ.at(index);
        }
        ++count_;
    }

    [[nodiscard]] colour::Tristimulus value() const { return {sum_[0] / count_, sum_[1] / count_, sum_[2] / count_}; }

private:
    colour::Tristimulus sum_{};
    double count_ = 0;
};

/// The grey patches that were measured, by their code value.
using Greys = std::map<unsigned int, Mean>;

Greys greysOf(const CalibrationModeResultObject& result) {
    Greys greys;
    for (const MeasurementDataObject& row : result.measurementData.objects) {
        const bool isGrey = row.RGB.size() == 3 && row.RGB[0] == row.RGB[1] && row.RGB[0] == row.RGB[2];
        const auto XYZ = tristimulusOf(row.XYZ);
        if (isGrey && row.RGB[0] <= fullScale && XYZ) {
            greys[row.RGB[0]].add(*XYZ);
        }
    }
    return greys;
}

std::string complaintOf(const Greys& greys) {
    if (greys.count(0) == 0) {
        return "no black patch, code 0, was measured";
    }
    if (greys.count(fullScale) == 0) {
        return "no white patch, code 255, was measured";
    }
    const bool isRange = greys.at(fullScale).value()[1] > greys.at(0).value()[1];
    return isRange ? "" : "the white patch is not brighter than the black patch";
}

/// Turns measurements of greys into red, green and blue, 1 for those of the measured white.
class Balance {
public:
    explicit Balance(const MeasuredSet& set) : black_(set.black.value_or(colour::Tristimulus())) {
        const Channels channels = channelsOf(set);
        toLights_ = channels.matrix ? colour::inverse(*channels.matrix) : std::nullopt;
        reason_ = channels.reason;
    }

    /// Why there is no balance at all; otherwise empty.
    [[nodiscard]] const std::string& reason() const { return reason_; }

    /// R, G and B over their mean; no value where that is not above 0.
    [[nodiscard]] std::optional<std::array<double, 3>> of(const colour::Tristimulus& XYZ) const {
        if (!toLights_) {
            return std::nullopt;
        }
        auto lights = colour::product(*toLights_, {XYZ[0] - black_[0], XYZ[1] - black_[1], XYZ[2] - black_[2]});
        const double mean = (lights[0] + lights[1] + lights[2]) / 3;
        if (!(mean > 0) || !std::isfinite(mean)) {
            return std::nullopt;
        }
        return std::array<double, 3>{lights[0] / mean, lights[1] / mean, lights[2] / mean};
    }

private:
    colour::Tristimulus black_;
    std::optional<colour::Matrix> toLights_;
    std::string reason_;
};

Figure gammaOf(double signal, double light) {
    if (signal <= 0 || signal >= 1) {
        return missing("black and white have no gamma");
    }
    return light > 0 ? computed(std::log(light) / std::log(signal)) : missing("not brighter than black");
}

std::vector<ToneStep> stepsOf(const Greys& greys, const Balance& balance) {
    const double black = greys.at(0).value()[1];
    const double white = greys.at(fullScale).value()[1];
    std::vector<ToneStep> steps;
    for (const auto& [code, mean] : greys) {
        ToneStep step;
        step.signal = natural(code, quantities::codeValue);
        step.light = (mean.value()[1] - black) / (white - black);
        step.gamma = gammaOf(step.signal, step.light);
        step.balance = code > 0 ? balance.of(mean.value()) : std::nullopt;
        steps.push_back(step);
    }
    return steps;
}

void setTargets(std::vector<ToneStep>& steps, const TargetCurves& target, const ToneRange& range) {
    for (ToneStep& step : steps) {
        step.target = target.curves ? lightOf((*target.curves)[1], step.signal, range) : missing(target.reason);
    }
}

std::string noneBright(const std::string& range) {
    return "no grey patch " + range + " of the signal is brighter than black";
}

Figure meanGammaOf(const std::vector<ToneStep>& steps) {
    double sum = 0;
    double count = 0;
    for (const ToneStep& step : steps) {
        if (step.signal >= 0.1 && step.signal <= 0.9 && step.gamma.value) {
            sum += *step.gamma.value;
            ++count;
        }
    }
    return count > 0 ? computed(sum / count) : missing(noneBright("from 10 % to 90 %"));
}

Figure greatestDeviationOf(const std::vector<ToneStep>& steps) {
    Figure greatest;
    for (const ToneStep& step : steps) {
        if (!step.target.value) {
            return step.target;
        }
        greatest.value = std::max(greatest.value.value_or(0), std::abs(step.light - *step.target.value));
    }
    return greatest;
}

Figure greatestImbalanceOf(const std::vector<ToneStep>& steps, const Balance& balance) {
    Figure greatest = missing(balance.reason().empty() ? noneBright("from 20 %") : balance.reason());
    for (const ToneStep& step : steps) {
        if (step.signal < 0.2 || !step.balance) {
            continue;
        }
        for (const double channel : *step.balance) {
            greatest = {std::max(greatest.value.value_or(0), std::abs(channel - 1)), ""};
        }
    }
    return greatest;
}

}  // namespace

bool isAbsolute(const KnownUnits& known) {
    return known.yUnit == "cd/m\u00B2" || known.yUnit == "cd/m2";
}

ToneFigures missingTone(const TargetCurves& target, const std::string& reason) {
    ToneFigures tone;
    tone.targetCurve = target.label;
    tone.targetGamma = target.exponent();
    tone.meanGamma = tone.greatestDeviation = tone.greatestImbalance = missing(reason);
    return tone;
}

ToneFigures toneFiguresOf(const CalibrationModeResultObject& result, const TargetCurves& target,
                          const KnownUnits& known) {
    if (!result.hasMeasurementData) {
        return missingTone(target, "no measurements");
    }
    const Greys greys = greysOf(result);
    const std::string complaint = complaintOf(greys);
    if (!complaint.empty()) {
        return missingTone(target, complaint);
    }
    ToneFigures tone;
    tone.targetCurve = target.label;
    tone.targetGamma = target.exponent();
    const Balance balance(measuredSetOf(result));
    tone.steps = stepsOf(greys, balance);
    setTargets(tone.steps, target, {greys.at(fullScale).value()[1], greys.at(0).value()[1], isAbsolute(known)});
    tone.meanGamma = meanGammaOf(tone.steps);
    tone.greatestDeviation = greatestDeviationOf(tone.steps);
    tone.greatestImbalance = greatestImbalanceOf(tone.steps, balance);
    return tone;
}

}  // namespace lv::analysis
