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

/// Patches that one bar stands for; its height is the greatest of theirs.
struct Bar {
    const PatchFigures* greatest = nullptr;  ///< The patch with the greatest difference; null when none has one.
    std::string title{};                     ///< For hover.
};

Bar barOf(const std::vector<PatchFigures>& patches, std::size_t first, std::size_t last) {
    Bar bar;
    for (std::size_t index = first; index <= last; ++index) {
        const auto value = differenceOf(patches[index]);
        if (value && (bar.greatest == nullptr || *value > *differenceOf(*bar.greatest))) {
            bar.greatest = &patches[index];
        }
    }
    if (bar.greatest != nullptr) {
        const std::string value = svg::valueText(*differenceOf(*bar.greatest), 2);
        bar.title = first == last ? "Patch " + nameOf(*bar.greatest) + ": ΔE00 " + value
                                  : "Patches " + std::to_string(patches[first].number) + " to " +
                                        std::to_string(patches[last].number) + ": greatest ΔE00 " + value + ", patch " +
                                        nameOf(*bar.greatest);
    }
    return bar;
}

/// As many bars as can be told apart, each of equally many patches.
std::vector<Bar> barsOf(const std::vector<PatchFigures>& patches) {
    const std::size_t each = (patches.size() + mostBars - 1) / mostBars;
    std::vector<Bar> bars;
    for (std::size_t first = 0; first < patches.size(); first += each) {
        bars.push_back(barOf(patches, first, std::min(first + each, patches.size()) - 1));
    }
    return bars;
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

void addBars(svg::SVGWriter& svg, const svg::Panel& panel, const std::vector<Bar>& bars, const PatchLimits& limits) {
    const double step = box.width / static_cast<double>(bars.size());
    const double width = std::min(step * 0.8, 40.0);
    const auto allowed = greatestAllowed(limits.maximum);
    svg.open("g", {{"class", "lv-bar lv-measured"}});
    for (std::size_t index = 0; index < bars.size(); ++index) {
        if (bars[index].greatest != nullptr) {
            const double value = *differenceOf(*bars[index].greatest);
            const double top = panel.vertical().at(value);
            const double left = box.left + (static_cast<double>(index) + 0.5) * step - width / 2;
            const std::string_view classes = allowed && value > *allowed ? "lv-bar lv-over" : "";
            svg::addBox(svg, {left, top, width, box.bottom() - top}, {classes, bars[index].title});
        }
    }
    svg.close();
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
    const std::vector<Bar> bars = barsOf(series.patches);
    Picture picture(form, height, texts);
    const svg::TickedRange scale = rangeOf(series, limits);
    const svg::Panel panel(box, {0, 1}, scale.range);
    svg::addAxes(picture.svg(), panel, {numberTicks(series.patches), "Patch", true}, {scale.ticks, "ΔE00", true});
    addBars(picture.svg(), panel, bars, limits);
    addLevelLines(picture.svg(), panel, linesOf(series, limits));
    return picture.finished();
}

}  // namespace lv::analysis
