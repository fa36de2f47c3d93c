#include <lvdata/analysis/figures/target_curves.h>

#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/analysis/figures/target_texts.h>
#include <lvdata/records/types.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Curves = std::array<ToneCurve, 3>;

bool isHLG(const ToneCurve& curve) {
    return curve.kind == ToneCurve::Kind::hlg;
}

std::optional<Curves> together(const std::optional<ToneCurve>& red, const std::optional<ToneCurve>& green,
                               const std::optional<ToneCurve>& blue) {
    if (!red || !green || !blue || isHLG(*red) != isHLG(*green) || isHLG(*red) != isHLG(*blue)) {
        return std::nullopt;
    }
    return Curves{*red, *green, *blue};
}

std::optional<Curves> forAll(const std::optional<ToneCurve>& curve) {
    return together(curve, curve, curve);
}

std::optional<ToneCurve> curveOf(const TargetSetting::gamma_t::gamma_color& stored, double systemGamma) {
    if (stored.type == types::targetCurve::formula) {
        return powerCurve(stored.formula_x());
    }
    if (stored.type == types::targetCurve::lut) {
        return tableCurve(stored.lut_x());
    }
    if (stored.type == types::targetCurve::lut24) {
        return tableCurve(stored.lut24_x());
    }
    if (stored.type == types::targetCurve::hlg) {
        return ToneCurve{ToneCurve::Kind::hlg, systemGamma, {}, "HLG"};
    }
    return stored.type == types::targetCurve::pq ? curveNamed("PQ") : std::nullopt;
}

std::optional<ToneCurve> withSystemGamma(std::optional<ToneCurve> curve, double systemGamma) {
    if (curve && isHLG(*curve)) {
        curve->exponent = systemGamma;
    }
    return curve;
}

std::optional<Curves> curvesOf(const TargetSetting& target) {
    const auto& gamma = target.gamma.value;
    const double systemGamma = target.gamma.hasValue ? gamma.hlgSystemGamma_x() : 0;
    if (target.gamma.hasValue) {
        const auto curves = together(curveOf(gamma.red, systemGamma), curveOf(gamma.green, systemGamma),
                                     curveOf(gamma.blue, systemGamma));
        if (curves) {
            return curves;
        }
    }
    return forAll(withSystemGamma(curveNamed(standardOf(target.gammaV7)), systemGamma));
}

std::optional<Curves> curvesOf(const ParameterSetting& parameters) {
    const auto& gamma = parameters.gamma.value;
    if (gamma.type == types::gamma::value) {
        return forAll(powerCurve(gamma.value_x()));
    }
    const bool isNamed = gamma.type == types::gamma::fixed;
    return forAll(isNamed ? withSystemGamma(curveNamed(gamma.fixed), gamma.hlgSystemGamma_x()) : std::nullopt);
}

std::optional<ToneCurve> curveOf(const property<ProfileData::target_curve>& stored) {
    if (stored.hasValue && stored.value.type == types::profileCurve::lStar) {
        return curveNamed("LStar");
    }
    const bool isTable = stored.hasValue && stored.value.type == types::profileCurve::lut;
    return isTable ? tableCurve(stored.value.lut_x()) : std::nullopt;
}

std::optional<Curves> curvesOf(const ProfileData& profile) {
    return together(curveOf(profile.redTargetCurve), curveOf(profile.greenTargetCurve),
                    curveOf(profile.blueTargetCurve));
}

std::optional<Curves> curvesOf(const ColorModeSettingsObject& setting) {
    const TargetSetting* const target = targetOf(setting);
    const ParameterSetting* const parameters = parametersOf(setting);
    return target != nullptr ? curvesOf(*target) : parameters != nullptr ? curvesOf(*parameters) : std::nullopt;
}

bool allEqual(const Curves& curves) {
    return curves[0] == curves[1] && curves[0] == curves[2];
}

std::string labelOf(const Curves& curves) {
    if (allEqual(curves)) {
        return curves[0].label;
    }
    return curves[0].label + ", " + curves[1].label + ", " + curves[2].label + " (grey against green's)";
}

}  // namespace

bool TargetCurves::areEqual() const {
    return curves && allEqual(*curves);
}

Figure TargetCurves::exponent() const {
    if (!curves) {
        return missing(reason);
    }
    const ToneCurve& grey = (*curves)[1];
    return grey.kind == ToneCurve::Kind::power ? computed(grey.exponent)
                                               : missing("the target is not a power of the signal");
}

TargetCurves targetCurvesOf(const ColorModeSettingsObject* setting, const CalibrationModeResultObject* result) {
    auto curves = setting != nullptr ? curvesOf(*setting) : std::nullopt;
    if (!curves && result != nullptr && result->hasProfileData) {
        curves = curvesOf(result->profileData);
    }
    return curves ? TargetCurves{curves, labelOf(*curves), ""}
                  : TargetCurves{{}, "", "the tone curve of the target is not known"};
}

}  // namespace lv::analysis
