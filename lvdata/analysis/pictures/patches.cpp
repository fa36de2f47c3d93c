#include <lvdata/analysis/pictures/hover.h>
#include <lvdata/analysis/pictures/level_lines.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis {
namespace {

constexpr svg::Box box{panelLeft, 84, pictureWidth - panelLeft - levelLabelWidth, 260};
constexpr double height = box.top + box.height + 52;
constexpr std::size_t mostBars = 180;

/// The limits that patches have lines for.
struct PatchLimits {
    const FigureLimit* mean = nullptr;     ///< Of the mean ΔE00.
    const FigureLimit* maximum = nullptr;  ///< Of the greatest ΔE00.
};

PatchLimits limitsOf(const LimitSet* set) {
    if (set == nullptr) {
        return {};
    }
    return {set->limitOf("patches_delta_e2000_mean"), set->limitOf("patches_delta_e2000_maximum")};
}

std::optional<double> greatestAllowed(const FigureLimit* limit) {
    return limit != nullptr ? limit->maximum : std::nullopt;
}

std::optional<double> differenceOf(const PatchFigures& patch) {
    const auto& value = patch.deltaE2000.value;
    return value && std::isfinite(*value) ? value : std::nullopt;
}

/// "12 (RGB 255 0 0)"
std::string nameOf(const PatchFigures& patch) {
    std::string text = std::to_string(patch.number);
    if (patch.RGB) {
        text += " (RGB";
        for (const unsigned int value : *patch.RGB) {
            text += ' ' + std::to_string(value);
        }
        text += ')';
    } else if (patch.CMYK) {
        text += " (CMYK";
        for (const unsigned int value : *patch.CMYK) {
            text += ' ' + std::to_string(value);
        }
        text += ')';
    }
    return text;
}

/// The first and the last index of patches that stand side by side.
struct Run {
    std::size_t first;
    std::size_t last;
};

/// Equally many patches in each run, and at most so many runs.
std::vector<Run> runsOf(std::size_t patches, std::size_t most) {
    const std::size_t count = std::min(patches, most);
    std::vector<Run> runs;
    for (std::size_t index = 0; index < count; ++index) {
        runs.push_back({index * patches / count, (index + 1) * patches / count - 1});
    }
    return runs;
}

/// The patch of a run with the greatest difference; null when none has one.
const PatchFigures* greatestOf(const std::vector<PatchFigures>& patches, const Run& run) {
    const PatchFigures* greatest = nullptr;
    for (std::size_t index = run.first; index <= run.last; ++index) {
        const auto value = differenceOf(patches[index]);
        if (value && (greatest == nullptr || *value > *differenceOf(*greatest))) {
            greatest = &patches[index];
        }
    }
    return greatest;
}

std::string differenceText(const PatchFigures& patch) {
    const auto value = differenceOf(patch);
    return value ? svg::valueText(*value, 2) : "n/a";
}

/// For hover: each difference of a short run, the greatest of a long one.
std::string textOf(const std::vector<PatchFigures>& patches, const Run& run) {
    constexpr std::size_t mostListed = 6;
    const PatchFigures* const greatest = greatestOf(patches, run);
    if (greatest == nullptr) {
        return "";
    }
    if (run.first == run.last) {
        return "Patch " + nameOf(*greatest) + ": ΔE00 " + differenceText(*greatest);
    }
    std::string text = "Patches " + std::to_string(patches[run.first].number) + " to " +
                       std::to_string(patches[run.last].number) + ": ";
    if (run.last - run.first >= mostListed) {
        return text + "greatest ΔE00 " + differenceText(*greatest) + ", patch " + nameOf(*greatest);
    }
    text += "ΔE00";
    for (std::size_t index = run.first; index <= run.last; ++index) {
        text += (index == run.first ? " " : ", ") + differenceText(patches[index]);
    }
    return text;
}

svg::TickedRange rangeOf(const SeriesFigures& series, const PatchLimits& limits) {
    svg::Extent extent;
    extent.add(0);
    for (const PatchFigures& patch : series.patches) {
        extent.add(differenceOf(patch).value_or(0));
    }
    extent.add(greatestAllowed(limits.mean).value_or(0));
    extent.add(greatestAllowed(limits.maximum).value_or(0));
    const double greatest = std::max(extent.range().last * 1.04, 1.0);
    return svg::toTicks({0, greatest}, 6);
}

/// Bars are lines of one path, those above the limit of another.
void addBars(svg::SVGWriter& svg, const svg::Panel& panel, const std::vector<PatchFigures>& patches,
             const PatchLimits& limits) {
    const std::vector<Run> runs = runsOf(patches.size(), mostBars);
    const double step = box.width / static_cast<double>(runs.size());
    const auto allowed = greatestAllowed(limits.maximum);
    std::vector<svg::Point> within;
    std::vector<svg::Point> over;
    for (std::size_t index = 0; index < runs.size(); ++index) {
        if (const PatchFigures* const greatest = greatestOf(patches, runs[index])) {
            const double value = *differenceOf(*greatest);
            const double x = box.left + (static_cast<double>(index) + 0.5) * step;
            (allowed && value > *allowed ? over : within).push_back({x, panel.vertical().at(value)});
        }
    }
    const double width = std::min(step * 0.8, 40.0);
    svg::addBars(svg, within, box.bottom(), width, "lv-bars lv-measured");
    svg::addBars(svg, over, box.bottom(), width, "lv-bars lv-over");
}

void addHoverTexts(svg::SVGWriter& svg, const std::vector<PatchFigures>& patches) {
    std::vector<std::string> texts;
    for (const Run& run : runsOf(patches.size(), hoverColumns(box))) {
        texts.push_back(textOf(patches, run));
    }
    addHoverColumns(svg, box, texts);
}

/// Ticks at patch numbers; each lies in the middle of its bar.
std::vector<svg::Tick> numberTicks(const std::vector<PatchFigures>& patches) {
    std::vector<svg::Tick> ticks;
    const double count = static_cast<double>(patches.size());
    for (const svg::Tick& tick : svg::ticksOf({1, std::max(count, 2.0)}, 10)) {
        const double index = std::round(tick.value) - 1;
        if (index >= 0 && index < count && index + 1 == tick.value) {
            const std::size_t number = patches[static_cast<std::size_t>(index)].number;
            ticks.push_back({(index + 0.5) / count, std::to_string(number)});
        }
    }
    return ticks;
}

std::vector<LevelLine> linesOf(const SeriesFigures& series, const PatchLimits& limits) {
    std::vector<LevelLine> lines;
    const auto add = [&](const std::optional<double>& value, const std::string& name, std::string_view classes) {
        if (value) {
            lines.push_back({*value, name + ' ' + svg::valueText(*value, 2), classes});
        }
    };
    add(series.mean.value, "mean", "lv-line lv-thin lv-ink");
    add(series.percentile95.value, "95 %", "lv-line lv-thin lv-muted");
    add(greatestAllowed(limits.mean), "limit, mean", "lv-line lv-thin lv-limit");
    add(greatestAllowed(limits.maximum), "limit, max.", "lv-line lv-thin lv-limit");
    return lines;
}

std::string descriptionOf(const SeriesFigures& series, const LimitSet* set, const PatchLimits& limits) {
    std::string text = "ΔE00 of " + counted(series.patches.size(), "patch", "patches") + " as bars: mean " +
                       figureText(series.mean, 2) + ", 95 % not above " + figureText(series.percentile95, 2) +
                       ", greatest " + figureText(series.maximum, 2) + '.';
    if (!series.reference.empty()) {
        text += " Compared with " + svg::quotable(series.reference) + '.';
    }
    const auto allowed = greatestAllowed(limits.maximum);
    if (set != nullptr && allowed) {
        text += " Limit of each patch in " + svg::quotable(set->name) + ": " + svg::valueText(*allowed, 2) + '.';
    }
    return text;
}

}  // namespace

std::string patchesPicture(const ModeFigures& mode, const LimitSet* limitSet, const PictureForm& form) {
    const SeriesFigures& series = mode.series;
    const PatchLimits limits = limitsOf(limitSet);
    const PictureTexts texts{"Colour differences of the patches", subtitleOf(mode),
                             descriptionOf(series, limitSet, limits)};
    const auto hasValue = [](const PatchFigures& patch) {
        return differenceOf(patch).has_value();
    };
    if (std::none_of(series.patches.begin(), series.patches.end(), hasValue)) {
        return emptyPicture(form, texts, reasonOf(series.maximum, "no patches were measured"));
    }
    Picture picture(form, height, texts);
    const svg::TickedRange scale = rangeOf(series, limits);
    const svg::Panel panel(box, {0, 1}, scale.range);
    svg::addAxes(picture.svg(), panel, {numberTicks(series.patches), "Patch", true}, {scale.ticks, "ΔE00", true});
    addBars(picture.svg(), panel, series.patches, limits);
    addLevelLines(picture.svg(), panel, linesOf(series, limits));
    addHoverTexts(picture.svg(), series.patches);
    return picture.finished();
}

}  // namespace lv::analysis
