#include <lvdata/analysis/figures/lines.h>

#include <lvdata/analysis/figures/gamut_lines.h>
#include <lvdata/analysis/figures/line_parts.h>
#include <lvdata/analysis/figures/white_figures.h>

#include <array>

namespace lv::analysis {
namespace {

using Mode = ModeFigures;

constexpr std::string_view unitOfY = "Y";  // stands for the unit that the user gave

/// The definition of one line; `target` is null when a target makes no sense.
struct LineForm {
    std::string_view key;
    std::string_view group;
    std::string_view label;
    std::string_view unit;
    int decimals;
    Aim (*target)(const Mode& mode);
    Figure (*measured)(const Mode& mode);
};

std::string whiteWords(const Mode& mode) {
    return mode.targetWhite.empty() ? mode.targetWhiteStandard : mode.targetWhite;
}

std::string gammaWords(const Mode& mode) {
    return mode.tone.targetCurve.empty() ? mode.targetGamma : mode.tone.targetCurve;
}

/// A coordinate of the target white.
template <class Coordinate>
Aim whiteAim(const Mode& mode, Coordinate coordinate) {
    const auto white = aimedWhite(mode);
    return {white ? coordinate(*white) : missing("the target has no x and y"), ""};
}

/// A coordinate of the measured white; without a white its reason is that of Y.
template <class Coordinate>
Figure whiteFigure(const Mode& mode, Coordinate coordinate) {
    if (!mode.measuredWhite) {
        return missing(mode.measuredY.reason);
    }
    return mode.measuredChromaticity ? coordinate(*mode.measuredChromaticity)
                                     : missing("X, Y and Z of the white are 0");
}

Figure xOf(const colour::Chromaticity& white) {
    return computed(white.x);
}

Figure yOf(const colour::Chromaticity& white) {
    return computed(white.y);
}

Figure uOf(const colour::Chromaticity& white) {
    const auto place = colour::uniform(white);
    return place ? computed(place->u) : missing("x and y are not of a real colour");
}

Figure vOf(const colour::Chromaticity& white) {
    const auto place = colour::uniform(white);
    return place ? computed(place->v) : missing("x and y are not of a real colour");
}

Figure kelvinOf(const colour::Chromaticity& white) {
    return temperatureFiguresOf(white).kelvin;
}

Figure duvOf(const colour::Chromaticity& white) {
    return temperatureFiguresOf(white).duv;
}

/// In per cent.
Figure deviationOfY(const Mode& mode) {
    if (!mode.measuredY.value) {
        return mode.measuredY;
    }
    if (!mode.targetY.value) {
        return mode.targetY;
    }
    return *mode.targetY.value > 0 ? computed((*mode.measuredY.value / *mode.targetY.value - 1) * 100)
                                   : missing("the target is 0");
}

Figure percent(const Figure& fraction) {
    return fraction.value ? computed(*fraction.value * 100) : fraction;
}

constexpr std::array whiteAndBlack = {
    LineForm{"white_x", "White", "White x", "", 4, [](const Mode& mode) { return whiteAim(mode, xOf); },
             [](const Mode& mode) {
                 return whiteFigure(mode, xOf);
             }},
    LineForm{"white_y", "White", "White y", "", 4, [](const Mode& mode) { return whiteAim(mode, yOf); },
             [](const Mode& mode) {
                 return whiteFigure(mode, yOf);
             }},
    LineForm{"white_u", "White", "White u'", "", 4, [](const Mode& mode) { return whiteAim(mode, uOf); },
             [](const Mode& mode) {
                 return whiteFigure(mode, uOf);
             }},
    LineForm{"white_v", "White", "White v'", "", 4, [](const Mode& mode) { return whiteAim(mode, vOf); },
             [](const Mode& mode) {
                 return whiteFigure(mode, vOf);
             }},
    LineForm{"white_cct", "White", "White CCT", "K", 0,
             [](const Mode& mode) {
                 return Aim{whiteAim(mode, kelvinOf).number, whiteWords(mode)};
             },
             [](const Mode& mode) {
                 return mode.temperature;
             }},
    LineForm{"white_duv", "White", "White Δuv", "", 4, [](const Mode& mode) { return whiteAim(mode, duvOf); },
             [](const Mode& mode) {
                 return mode.duv;
             }},
    LineForm{"white_delta_uv", "White", "White Δu'v'", "", 4, nullptr,
             [](const Mode& mode) {
                 return mode.deltaUV;
             }},
    LineForm{"white_delta_e2000", "White", "White ΔE00", "", 2, nullptr,
             [](const Mode& mode) {
                 return mode.deltaE2000;
             }},
    LineForm{"white_tristimulus_y", "White", "White Y", unitOfY, 4,
             [](const Mode& mode) {
                 return Aim{mode.targetY, mode.targetBrightness};
             },
             [](const Mode& mode) {
                 return mode.measuredY;
             }},
    LineForm{"white_tristimulus_y_deviation", "White", "White Y, deviation from the target", "%", 1, nullptr,
             deviationOfY},
    LineForm{"black_tristimulus_y", "Black", "Black Y", unitOfY, 4,
             [](const Mode& mode) {
                 return Aim{{}, mode.targetBlack};
             },
             [](const Mode& mode) {
                 return mode.blackY;
             }},
    LineForm{"contrast", "Black", "Contrast", "", 0, nullptr,
             [](const Mode& mode) {
                 return mode.contrast;
             }},
};

constexpr std::array toneAndPatches = {
    LineForm{"tone_mean_gamma", "Tone", "Mean gamma", "", 2,
             [](const Mode& mode) {
                 return Aim{mode.tone.targetGamma, gammaWords(mode)};
             },
             [](const Mode& mode) {
                 return mode.tone.meanGamma;
             }},
    LineForm{"tone_greatest_deviation", "Tone", "Greatest deviation of the tone curve", "%", 2, nullptr,
             [](const Mode& mode) {
                 return percent(mode.tone.greatestDeviation);
             }},
    LineForm{"tone_greatest_imbalance", "Tone", "Greatest imbalance of R, G and B", "%", 1, nullptr,
             [](const Mode& mode) {
                 return percent(mode.tone.greatestImbalance);
             }},
    LineForm{"patches_count", "Patches", "Measurements", "", 0, nullptr,
             [](const Mode& mode) {
                 return computed(static_cast<double>(mode.measurements));
             }},
    LineForm{"patches_delta_e2000_mean", "Patches", "Mean ΔE00", "", 2, nullptr,
             [](const Mode& mode) {
                 return mode.series.mean;
             }},
    LineForm{"patches_delta_e2000_percentile_95", "Patches", "95th percentile of ΔE00", "", 2, nullptr,
             [](const Mode& mode) {
                 return mode.series.percentile95;
             }},
    LineForm{"patches_delta_e2000_maximum", "Patches", "Greatest ΔE00", "", 2, nullptr,
             [](const Mode& mode) {
                 return mode.series.maximum;
             }},
};

FigureLine lineOf(const LineForm& form, const Mode& mode, const KnownUnits& known) {
    FigureLine line;
    line.key = form.key;
    line.group = form.group;
    line.label = form.label;
    line.unit = form.unit == unitOfY ? known.yUnit : std::string(form.unit);
    line.decimals = form.decimals;
    setNumbers(line, form.target != nullptr ? form.target(mode) : Aim(), form.measured(mode));
    return line;
}

}  // namespace

std::string FigureLine::text(const Figure& figure) const {
    return figure.value || !figure.reason.empty() ? figure.text(decimals) : "";
}

std::vector<FigureLine> figureLines(const ModeFigures& mode, const KnownUnits& known) {
    std::vector<FigureLine> lines;
    for (const LineForm& form : whiteAndBlack) {
        lines.push_back(lineOf(form, mode, known));
    }
    addPrimaries(lines, mode);
    addGamuts(lines, mode);
    for (const LineForm& form : toneAndPatches) {
        lines.push_back(lineOf(form, mode, known));
    }
    return lines;
}

}  // namespace lv::analysis
