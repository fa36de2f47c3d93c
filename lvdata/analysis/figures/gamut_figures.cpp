#include <lvdata/analysis/figures/gamut_figures.h>

#include <lvdata/analysis/colour/gamut.h>
#include <lvdata/analysis/figures/target_texts.h>
#include <lvdata/records/types.h>

namespace lv::analysis {
namespace {

colour::Chromaticity coordinateOf(const TargetSetting::gamut_t::coordinate& stored) {
    return {natural(stored.x, quantities::chromaticity), natural(stored.y, quantities::chromaticity)};
}

/// Of a name, or of no name: then the reason is the given one.
TargetPrimaries named(const std::string& name, const std::string& reasonOfNone) {
    const auto primaries = colour::primariesNamed(name);
    const std::string reason = name.empty() ? reasonOfNone : "the primaries of the target's gamut are not known";
    return {primaries, primaries ? "" : reason};
}

TargetPrimaries primariesOf(const TargetSetting& target) {
    const auto& gamut = target.gamut;
    if (gamut.hasValue && !gamut.value.isNative()) {
        return {colour::Primaries{coordinateOf(gamut.value.red), coordinateOf(gamut.value.green),
                                  coordinateOf(gamut.value.blue)},
                ""};
    }
    const std::string native = "the target is the monitor's own gamut";
    TargetPrimaries result = named(standardOf(target.gamutV7), gamut.hasValue ? native : "the target has no gamut");
    if (!result.primaries && gamut.hasValue) {
        result.reason = native;
    }
    return result;
}

TargetPrimaries primariesOf(const ParameterSetting& parameters) {
    const auto& gamut = parameters.gamut.value;
    return named(gamut.type == types::gamut::fixed ? gamut.fixed : "", "the target has no gamut");
}

Figure deltaUVOf(const PrimaryFigures& primary, const std::string& reasonOfNoTarget,
                 const std::string& reasonOfNoMeasured) {
    if (!primary.measured) {
        return missing(reasonOfNoMeasured);
    }
    if (!primary.target) {
        return missing(reasonOfNoTarget);
    }
    const auto target = colour::uniform(*primary.target);
    const auto measured = colour::uniform(*primary.measured);
    return target && measured ? computed(colour::distance(*target, *measured))
                              : missing("x and y are not of a real colour");
}

using Measured = std::array<std::optional<colour::Chromaticity>, 3>;

Measured measuredPrimariesOf(const CalibrationModeResultObject& result) {
    const auto place = [](const std::optional<colour::Tristimulus>& XYZ) {
        return XYZ ? chromaticityOf(*XYZ) : std::nullopt;
    };
    const MeasuredSet set = measuredSetOf(result);
    return {place(set.red), place(set.green), place(set.blue)};
}

struct PlaneFigures {
    Figure coverage;
    Figure area;
};

PlaneFigures compared(const colour::Primaries& measured, const colour::RGBSpace& space, colour::Plane plane) {
    const auto comparison = colour::compareGamuts(measured, space.primaries, plane);
    if (!comparison) {
        return {missing("the measured primaries form no triangle"), missing("the measured primaries form no triangle")};
    }
    return {computed(comparison->coverage), computed(comparison->areaRatio)};
}

GamutFigures gamutOf(const Measured& measured, const colour::RGBSpace& space, const std::string& reason) {
    if (!measured[0] || !measured[1] || !measured[2]) {
        return {space.name, missing(reason), missing(reason), missing(reason), missing(reason)};
    }
    const colour::Primaries primaries{*measured[0], *measured[1], *measured[2]};
    const PlaneFigures xy = compared(primaries, space, colour::Plane::xy);
    const PlaneFigures uv = compared(primaries, space, colour::Plane::uv);
    return {space.name, xy.coverage, xy.area, uv.coverage, uv.area};
}

}  // namespace

TargetPrimaries targetPrimariesOf(const ColorModeSettingsObject* setting) {
    if (setting == nullptr) {
        return {{}, "the mode has no settings"};
    }
    const TargetSetting* const target = targetOf(*setting);
    const ParameterSetting* const parameters = parametersOf(*setting);
    return target != nullptr       ? primariesOf(*target)
           : parameters != nullptr ? primariesOf(*parameters)
                                   : TargetPrimaries{{}, "the target has no gamut"};
}

void takeGamut(ModeFigures& figures, const ColorModeSettingsObject* setting,
               const CalibrationModeResultObject* result) {
    const TargetPrimaries target = targetPrimariesOf(setting);
    const Measured measured = result != nullptr ? measuredPrimariesOf(*result) : Measured();
    const std::string reason = result != nullptr ? "no primaries were measured" : "no calibration result";
    if (target.primaries) {
        figures.primaries[0].target = target.primaries->red;
        figures.primaries[1].target = target.primaries->green;
        figures.primaries[2].target = target.primaries->blue;
    }
    for (std::size_t channel = 0; channel < 3; ++channel) {
        PrimaryFigures& primary = figures.primaries.at(channel);
        primary.measured = measured.at(channel);
        primary.deltaUV = deltaUVOf(primary, target.reason, reason);
    }
    for (const colour::RGBSpace& space : colour::referenceSpaces()) {
        figures.gamuts.push_back(gamutOf(measured, space, reason));
    }
}

}  // namespace lv::analysis
