#include <lvdata/analysis/pictures/level_lines.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis {
namespace {

constexpr svg::Box box{panelLeft, 70, pictureWidth - panelLeft - levelLabelWidth, 230};
constexpr double height = box.top + box.height + 40;
constexpr double fontSize = 11;

using Point = HistorySeries::Point;

/// Where each point stands along the time, and whether that is by date.
struct Times {
    std::vector<double> places{};
    bool areDates = false;
};

Times evenly(std::size_t count) {
    Times times;
    for (std::size_t index = 0; index < count; ++index) {
        times.places.push_back(static_cast<double>(index));
    }
    return times;
}

Times timesOf(const std::vector<Point>& points) {
    Times times;
    times.areDates = true;
    for (const Point& point : points) {
        const auto days = daysOf(point.when);
        if (!days) {
            return evenly(points.size());
        }
        times.places.push_back(*days);
    }
    const bool isRising = std::is_sorted(times.places.begin(), times.places.end());
    return isRising && times.places.front() < times.places.back() ? times : evenly(points.size());
}

bool hasValue(const Point& point) {
    return point.figure.value && std::isfinite(*point.figure.value);
}

/// The day of a time, or else the whole text.
std::string dayOf(const std::string& when) {
    constexpr std::size_t lengthOfDay = 10;
    const std::string text = svg::cleaned(when.substr(0, 40));
    return daysOf(when) && when.size() > lengthOfDay ? text.substr(0, lengthOfDay) : svg::shortened(text, 80, fontSize);
}

/// Labels of dates under the points, as many as do not overlap.
std::vector<svg::Tick> dateTicks(const std::vector<Point>& points, const Times& times, const svg::Scale& scale) {
    constexpr double gap = 14;
    std::vector<svg::Tick> ticks;
    double free = -gap;
    for (std::size_t index = 0; index < points.size(); ++index) {
        const std::string label = dayOf(points[index].when);
        const double half = svg::textWidth(label, fontSize) / 2;
        const double middle = scale.at(times.places[index]);
        if (middle - half >= free) {
            ticks.push_back({times.places[index], label});
            free = middle + half + gap;
        }
    }
    return ticks;
}

std::string valueOf(const HistorySeries& series, double value) {
    const std::string unit = series.unit.empty() ? "" : ' ' + svg::quotable(series.unit);
    return svg::valueText(value, series.decimals) + unit;
}

svg::TickedRange rangeOf(const HistorySeries& series, const FigureLimit* limit) {
    svg::Extent extent;
    for (const Point& point : series.points) {
        if (hasValue(point)) {
            extent.add(*point.figure.value);
        }
    }
    if (limit != nullptr) {
        extent.add(limit->minimum.value_or(extent.range().first));
        extent.add(limit->maximum.value_or(extent.range().first));
    }
    const double leastWidth = 4 * std::pow(10, -std::clamp(series.decimals, 0, 6));
    svg::Range range = svg::widened(extent.range(), 0.08, leastWidth);
    if (extent.range().first >= 0) {
        range.first = std::max(range.first, 0.0);  // most figures cannot be negative
    }
    return svg::toTicks(range, 6);
}

/// The range of values within the limit.
void addBand(svg::SVGWriter& svg, const svg::Panel& panel, const FigureLimit* limit) {
    if (limit == nullptr || !(limit->minimum || limit->maximum)) {
        return;
    }
    const double top = limit->maximum ? panel.vertical().at(*limit->maximum) : box.top;
    const double bottom = limit->minimum ? panel.vertical().at(*limit->minimum) : box.bottom();
    if (bottom > top) {
        svg::addBox(svg, {box.left, top, box.width, bottom - top}, {"lv-band", "Within the limit"});
    }
}

std::vector<LevelLine> linesOf(const HistorySeries& series, const FigureLimit* limit) {
    constexpr std::string_view looks = "lv-line lv-thin lv-limit";
    std::vector<LevelLine> lines;
    if (limit != nullptr && limit->maximum) {
        lines.push_back({*limit->maximum, "limit ≤ " + valueOf(series, *limit->maximum), looks});
    }
    if (limit != nullptr && limit->minimum) {
        lines.push_back({*limit->minimum, "limit ≥ " + valueOf(series, *limit->minimum), looks});
    }
    return lines;
}

bool isWithin(double value, const FigureLimit* limit) {
    return limit == nullptr ||
           ((!limit->minimum || value >= *limit->minimum) && (!limit->maximum || value <= *limit->maximum));
}

void addPoints(svg::SVGWriter& svg, const svg::Panel& panel, const HistorySeries& series, const Times& times,
               const FigureLimit* limit) {
    constexpr std::size_t mostSymbols = 150;
    std::vector<svg::Point> line;
    for (std::size_t index = 0; index < series.points.size(); ++index) {
        if (hasValue(series.points[index])) {
            line.push_back(panel.at({times.places[index], *series.points[index].figure.value}));
        }
    }
    svg::addPolyline(svg, line, {"lv-line lv-measured", ""});
    for (const std::size_t index : svg::spreadIndices(series.points.size(), mostSymbols)) {
        const Point& point = series.points[index];
        if (hasValue(point)) {
            const double value = *point.figure.value;
            const bool passes = isWithin(value, limit);
            const std::string title =
                svg::quotable(point.when) + ": " + valueOf(series, value) + (passes ? "" : ", outside the limit");
            svg::addSymbol(svg, panel.at({times.places[index], value}),
                           passes ? svg::Symbol::circle : svg::Symbol::cross,
                           {passes ? "lv-mark lv-measured" : "lv-stroke lv-over", title});
        }
    }
}

std::string describedPoint(const HistorySeries& series, const Point& point) {
    const std::string value = point.figure.value ? valueOf(series, *point.figure.value) : point.figure.text(0);
    return svg::quotable(point.when) + ": " + svg::quotable(value);
}

std::string descriptionOf(const HistorySeries& series, const FigureLimit* limit) {
    std::string text = svg::quotable(series.label) + " of " + counted(series.points.size(), "document", "documents");
    if (series.points.empty()) {
        return text + '.';
    }
    text += ". First " + describedPoint(series, series.points.front()) + "; last " +
            describedPoint(series, series.points.back()) + '.';
    if (limit != nullptr && limit->minimum) {
        text += " Limit: not below " + valueOf(series, *limit->minimum) + '.';
    }
    if (limit != nullptr && limit->maximum) {
        text += " Limit: not above " + valueOf(series, *limit->maximum) + '.';
    }
    return text;
}

std::string labelOf(const HistorySeries& series) {
    const std::string label = svg::quotable(series.label);
    return series.unit.empty() ? label : label + " in " + svg::quotable(series.unit);
}

svg::Range rangeOfTimes(const Times& times) {
    const double width = times.places.back() - times.places.front();
    const double margin = width > 0 ? width * 0.06 : 1;
    return {times.places.front() - margin, times.places.back() + margin};
}

}  // namespace

std::string historyPicture(const HistorySeries& series, const FigureLimit* limit, const PictureForm& form) {
    const PictureTexts texts{"Over time: " + svg::quotable(series.label), "", descriptionOf(series, limit)};
    if (std::none_of(series.points.begin(), series.points.end(), hasValue)) {
        const Figure last = series.points.empty() ? Figure() : series.points.back().figure;
        return emptyPicture(form, texts, reasonOf(last, "no document has this figure"));
    }
    const Times times = timesOf(series.points);
    const svg::TickedRange scale = rangeOf(series, limit);
    const svg::Panel panel(box, rangeOfTimes(times), scale.range);
    Picture picture(form, height, texts);
    addBand(picture.svg(), panel, limit);
    svg::addAxes(picture.svg(), panel, {dateTicks(series.points, times, panel.horizontal()), "", true},
                 {scale.ticks, labelOf(series), true});
    addLevelLines(picture.svg(), panel, linesOf(series, limit));
    addPoints(picture.svg(), panel, series, times, limit);
    return picture.finished();
}

}  // namespace lv::analysis
