#include <lvdata/analysis/figures/digits.h>
#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

#include <algorithm>

namespace lv::analysis {
namespace {

template <std::size_t Count>
std::string joined(const std::array<unsigned int, Count>& values, const char* separator) {
    std::string text;
    for (const unsigned int value : values) {
        text += (text.empty() ? "" : separator) + std::to_string(value);
    }
    return text;
}

/// What the numbers of all patches are, for the heading: "RGB", "CMYK"; empty where there are both, or none.
std::string kindOf(const SeriesFigures& series) {
    const auto& patches = series.patches;
    const auto hasRGB = [](const PatchFigures& patch) {
        return patch.RGB.has_value();
    };
    const auto hasCMYK = [](const PatchFigures& patch) {
        return !patch.RGB && patch.CMYK;
    };
    if (std::all_of(patches.begin(), patches.end(), hasRGB)) {
        return "RGB";
    }
    return std::all_of(patches.begin(), patches.end(), hasCMYK) ? "CMYK" : "";
}

/// What was shown: "RGB 255 0 0", "CMYK 0 100 100 0"; without the word that is in the heading.
std::string shownText(const PatchFigures& patch, const std::string& kind) {
    if (patch.RGB) {
        return (kind.empty() ? "RGB " : "") + joined(*patch.RGB, " ");
    }
    return patch.CMYK ? (kind.empty() ? "CMYK " : "") + joined(*patch.CMYK, " ") : "";
}

std::string componentOf(const std::optional<colour::Tristimulus>& XYZ, std::size_t component) {
    return XYZ ? fixedText((*XYZ)[component], digits::tristimulus) : "n/a";
}

View patchOf(const PatchFigures& patch, const std::string& kind) {
    return View::Members{
        {"number", std::to_string(patch.number)},
        {"shown", shownText(patch, kind)},
        {"swatch", patch.RGB ? "rgb(" + joined(*patch.RGB, ",") + ")" : ""},
        {"X", componentOf(patch.XYZ, 0)},
        {"Y", componentOf(patch.XYZ, 1)},
        {"Z", componentOf(patch.XYZ, 2)},
        {"expected_X", componentOf(patch.expected, 0)},
        {"expected_Y", componentOf(patch.expected, 1)},
        {"expected_Z", componentOf(patch.expected, 2)},
        {"delta_e", patch.deltaE2000.text(digits::deltaE)},
    };
}

View worstOf(const SeriesFigures& series, const std::string& kind) {
    View::Items rows;
    for (const std::size_t index : series.worst) {
        rows.push_back(patchOf(series.patches.at(index), kind));
    }
    return rows;
}

}  // namespace

View patchesView(const ReportedMode& mode, const LimitSet& limits) {
    const SeriesFigures& series = mode.figures->series;
    const std::string kind = kindOf(series);
    View::Items rows;
    for (const PatchFigures& patch : series.patches) {
        rows.push_back(patchOf(patch, kind));
    }
    return View::Members{
        {"picture_patches", patchesPicture(*mode.figures, &limits, mode.formOf("patches"))},
        {"reference", textView(series.reference, "nothing: the record has no target for the patches")},
        {"kind", kind},
        {"mean", series.mean.text(digits::deltaE)},
        {"percentile", series.percentile95.text(digits::deltaE)},
        {"maximum", series.maximum.text(digits::deltaE)},
        {"has_worst", !series.worst.empty()},
        {"worst", worstOf(series, kind)},
        {"patch_count", counted(rows.size(), "patch measurement")},
        {"has_patches", !rows.empty()},
        {"patches", std::move(rows)},
    };
}

}  // namespace lv::analysis
