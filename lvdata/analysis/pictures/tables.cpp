#include <lvdata/analysis/pictures/channels.h>
#include <lvdata/analysis/pictures/steps.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis {
namespace {

constexpr svg::Box tableBox{panelLeft, panelTop, pictureWidth - panelLeft - rightMargin, 270};
constexpr svg::Box deviationBox{panelLeft, tableBox.top + tableBox.height + 36, tableBox.width, 150};
constexpr double height = deviationBox.top + deviationBox.height + 52;

using Tables = std::array<std::vector<double>, 3>;

/// Where an entry lies from 0 to 1.
double placeOf(std::size_t index, std::size_t count) {
    return count < 2 ? 0 : static_cast<double>(index) / static_cast<double>(count - 1);
}

std::vector<svg::Point> curveOf(const std::vector<double>& table) {
    std::vector<svg::Point> values;
    for (std::size_t index = 0; index < table.size(); ++index) {
        values.push_back({placeOf(index, table.size()), table[index]});
    }
    return values;
}

/// Entries minus the diagonal, in per cent.
std::vector<svg::Point> deviationOf(const std::vector<double>& table) {
    std::vector<svg::Point> values = curveOf(table);
    for (svg::Point& value : values) {
        value.y = 100 * (value.y - value.x);
    }
    return values;
}

/// The deviation that is farthest from 0; 0 without any.
svg::Point greatestDeviation(const std::vector<double>& table) {
    svg::Point greatest{0, 0};
    for (const svg::Point& value : deviationOf(table)) {
        if (std::abs(value.y) > std::abs(greatest.y)) {
            greatest = value;
        }
    }
    return greatest;
}

std::string described(std::size_t channel, const std::vector<double>& table) {
    const svg::Point greatest = greatestDeviation(table);
    return std::string(channelLooks[channel].name) + ": " + counted(table.size(), "entry", "entries") +
           ", greatest deviation from the diagonal " + svg::valueText(greatest.y, 2) + " % at " +
           percent(greatest.x, 1) + " of the input";
}

void addCurves(svg::SVGWriter& svg, const svg::Panel& panel, const Tables& tables,
               std::vector<svg::Point> (*valuesOf)(const std::vector<double>&), bool areTitled) {
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        const std::string title = areTitled ? described(channel, tables[channel]) : "";
        svg::addPolyline(svg, panel.inside(valuesOf(tables[channel])), {channelLooks[channel].line, title});
    }
}

/// "50.0 %: red 0.4980, green ..."
std::string titleAt(const Tables& tables, double place) {
    std::string title = percent(place, 1) + ':';
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        const std::vector<double>& table = tables[channel];
        if (!table.empty()) {
            const auto index = static_cast<std::size_t>(std::lround(place * static_cast<double>(table.size() - 1)));
            title += ' ' + std::string(channelLooks[channel].name) + ' ' + svg::valueText(table[index], 4);
        }
    }
    return title;
}

/// Columns over both panels that show the values on hover.
void addHoverTexts(svg::SVGWriter& svg, const Tables& tables) {
    const svg::Box both{tableBox.left, tableBox.top, tableBox.width, deviationBox.bottom() - tableBox.top};
    std::vector<std::string> texts(hoverColumns(both));
    for (std::size_t column = 0; column < texts.size(); ++column) {
        texts[column] = titleAt(tables, placeOf(column, texts.size()));
    }
    addHoverColumns(svg, both, texts);
}

std::vector<svg::LegendEntry> legendOf(const Tables& tables) {
    std::vector<svg::LegendEntry> entries;
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        if (!tables[channel].empty()) {
            entries.push_back({std::string(channelLooks[channel].name), channelLooks[channel].line, "", std::nullopt});
        }
    }
    entries.push_back({"Diagonal", "lv-zero", "", std::nullopt});
    return entries;
}

void addTablePanel(svg::SVGWriter& svg, const Tables& tables) {
    const svg::Panel panel(tableBox, {0, 1}, {0, 1});
    svg::addAxes(svg, panel, signalAxis(false), {signalAxis(true).ticks, "Output in %", true});
    svg::addLine(svg, panel.at({0, 0}), panel.at({1, 1}), {"lv-zero", ""});
    addCurves(svg, panel, tables, curveOf, true);
}

void addDeviationPanel(svg::SVGWriter& svg, const Tables& tables) {
    svg::Extent extent;
    extent.add(0);
    for (const std::vector<double>& table : tables) {
        for (const svg::Point& value : deviationOf(table)) {
            extent.add(value.y);
        }
    }
    const svg::TickedRange scale = svg::toTicks(svg::widened(extent.range(), 0.05, 0.5), 5);
    const svg::Panel panel(deviationBox, {0, 1}, scale.range);
    svg::Axis horizontal = signalAxis(true);
    horizontal.label = "Input in % (place in the table)";
    svg::addAxes(svg, panel, horizontal, {scale.ticks, "Deviation from the diagonal in %", true});
    svg::addLevel(svg, panel, 0, "lv-zero");
    addCurves(svg, panel, tables, deviationOf, false);
}

std::string descriptionOf(const Tables& tables) {
    std::string text = "The look-up tables of the monitor, and below them their deviation from the diagonal.";
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        if (!tables[channel].empty()) {
            text += ' ' + described(channel, tables[channel]) + '.';
        }
    }
    return text;
}

}  // namespace

std::string tablesPicture(const ModeFigures& mode, const PictureForm& form) {
    const PictureTexts texts{"Look-up tables of the monitor", subtitleOf(mode), descriptionOf(mode.tables)};
    const auto isEmpty = [](const std::vector<double>& table) {
        return table.empty();
    };
    if (std::all_of(mode.tables.begin(), mode.tables.end(), isEmpty)) {
        return emptyPicture(form, texts, "no look-up tables are recorded");
    }
    Picture picture(form, height, texts);
    svg::addLegendRow(picture.svg(), {panelLeft, legendTop}, tableBox.width, legendOf(mode.tables));
    addTablePanel(picture.svg(), mode.tables);
    addDeviationPanel(picture.svg(), mode.tables);
    addHoverTexts(picture.svg(), mode.tables);
    return picture.finished();
}

}  // namespace lv::analysis
