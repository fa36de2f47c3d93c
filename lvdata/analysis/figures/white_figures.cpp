#include <lvdata/analysis/figures/white_figures.h>

#include <lvdata/analysis/colour/temperature.h>

namespace lv::analysis {
namespace {

using Result = CalibrationModeResultObject;

/// From white and black of one set: other whites may have a different unit.
Figure contrastOf(const MeasuredSet& set) {
    if (!set.black) {
        return missing(set.blackReason);
    }
    if (!set.white) {
        return missing("no white was measured");
    }
    const double whiteY = (*set.white)[1];
    const double blackY = (*set.black)[1];
    if (whiteY > 0 && blackY > 0) {
        return computed(whiteY / blackY);
    }
    return missing(whiteY > 0 ? "black has Y 0" : "white has Y 0");
}

Figure deltaUVOf(const ModeFigures& figures) {
    const auto aim = aimedWhite(figures);
    if (!aim) {
        return missing("the target has no x and y");
    }
    if (!figures.measuredChromaticity) {
        return missing("X, Y and Z of the white are 0");
    }
    const auto target = colour::uniform(*aim);
    const auto measured = colour::uniform(*figures.measuredChromaticity);
    return target && measured ? computed(colour::distance(*target, *measured))
                              : missing("x and y are not of a real colour");
}

Figure deltaE2000Of(const ModeFigures& figures) {
    const auto aim = aimedWhite(figures);
    if (!aim) {
        return missing("the target has no x and y");
    }
    const colour::Tristimulus& measured = *figures.measuredWhite;
    const auto target = tristimulusOf(*aim, measured[1]);
    if (!target || !colour::isWhite(*target)) {
        return missing(measured[1] > 0 ? "x and y are not of a real colour" : "white has Y 0");
    }
    return computed(colour::deltaE2000(colour::lab(measured, *target), colour::lab(*target, *target)));
}

/// The white that the calibration reached, or else that of the profile data.
std::optional<colour::Tristimulus> measuredWhiteOf(const Result& result, const MeasuredSet& set) {
    const auto& reached = result.basicData.justCalibratedWhite;
    const auto white = result.hasBasicData && reached.hasValue ? tristimulusOf(reached.value) : std::nullopt;
    return white ? white : set.white;
}

void takeTemperature(ModeFigures& figures) {
    const Figure none = missing("X, Y and Z of the white are 0");
    const auto& white = figures.measuredChromaticity;
    const TemperatureFigures temperature = white ? temperatureFiguresOf(*white) : TemperatureFigures{none, none};
    figures.temperature = temperature.kelvin;
    figures.duv = temperature.duv;
}

}  // namespace

TemperatureFigures temperatureFiguresOf(const colour::Chromaticity& white) {
    const auto temperature = colour::correlatedTemperature(white);
    const Figure none = missing("not within 0.05 of the Planckian locus from 1000 K to 100,000 K");
    return temperature ? TemperatureFigures{computed(temperature->kelvin), computed(temperature->duv)}
                       : TemperatureFigures{none, none};
}

void missWhite(ModeFigures& figures, const std::string& reason) {
    figures.measuredY = figures.blackY = figures.contrast = missing(reason);
    figures.deltaUV = figures.deltaE2000 = figures.temperature = figures.duv = missing(reason);
}

void takeWhite(ModeFigures& figures, const Result& result) {
    missWhite(figures, "no white was measured");
    const MeasuredSet set = measuredSetOf(result);
    figures.measuredBlack = set.black;
    figures.blackY = set.black ? computed((*set.black)[1]) : missing(set.blackReason);
    figures.contrast = contrastOf(set);
    figures.measuredWhite = measuredWhiteOf(result, set);
    if (figures.measuredWhite) {
        figures.measuredChromaticity = chromaticityOf(*figures.measuredWhite);
        figures.measuredY = computed((*figures.measuredWhite)[1]);
        figures.deltaUV = deltaUVOf(figures);
        figures.deltaE2000 = deltaE2000Of(figures);
        takeTemperature(figures);
    }
}

}  // namespace lv::analysis
