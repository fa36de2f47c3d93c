#include <lvdata/analysis/pictures/Picture.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis {
namespace {

constexpr double panelHeight = 120;
constexpr double panelGap = 54;
constexpr std::size_t mostPanels = 6;
constexpr std::array<std::string_view, 6> colourNames{"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"};

/// The adjustments of one kind, each from another place.
using Group = std::vector<const SixColours*>;

/// Those with one name together, in the order in which names come first.
std::vector<Group> groupsOf(const std::vector<SixColours>& all) {
    std::vector<Group> groups;
    for (const SixColours& colours : all) {
        const auto isSame = [&](const Group& group) {
            return group.front()->name == colours.name;
        };
        const auto found = std::find_if(groups.begin(), groups.end(), isSame);
        if (found != groups.end()) {
            found->push_back(&colours);
        } else if (groups.size() < mostPanels) {
            groups.push_back({&colours});
        }
    }
    return groups;
}

/// "Hue of the monitor: Red 2, Yellow 0, ..."
std::string listed(const SixColours& colours) {
    std::string text = std::string(colours.name) + " of the " + std::string(colours.place) + ':';
    for (std::size_t colour = 0; colour < colourNames.size(); ++colour) {
        text += (colour == 0 ? " " : ", ") + std::string(colourNames[colour]) + ' ' +
                std::to_string(colours.values[colour]);
    }
    return text;
}

double barWidth(const svg::Panel& panel, const Group& group) {
    const double cell = panel.box().width / static_cast<double>(colourNames.size());
    return std::min(34.0, cell * 0.8 / static_cast<double>(group.size()));
}

std::string_view looksOf(const SixColours& colours) {
    return colours.place == "target" ? "lv-open lv-target" : "lv-bar lv-measured";
}

/// All panels have one scale, as far down as up.
svg::TickedRange rangeOf(const std::vector<SixColours>& all) {
    svg::Extent extent;
    for (const SixColours& colours : all) {
        for (const int value : colours.values) {
            extent.add(value);
            extent.add(-static_cast<double>(value));
        }
    }
    return svg::toTicks(svg::widened(extent.range(), 0.1, 4), 4);
}

double centreOf(const svg::Panel& panel, const Group& group, std::size_t member, std::size_t colour) {
    const double cell = panel.box().width / static_cast<double>(colourNames.size());
    const double shift = static_cast<double>(member) - (static_cast<double>(group.size()) - 1) / 2;
    return panel.box().left + (static_cast<double>(colour) + 0.5) * cell + shift * (barWidth(panel, group) + 4);
}

/// The bars of one kind from one place, which are one path.
void addBars(svg::SVGWriter& svg, const svg::Panel& panel, const Group& group, std::size_t member) {
    const double width = barWidth(panel, group);
    const double zero = panel.vertical().at(0);
    std::string path;
    for (std::size_t colour = 0; colour < colourNames.size(); ++colour) {
        const double height = panel.vertical().at(group[member]->values[colour]) - zero;
        const double left = centreOf(panel, group, member, colour) - width / 2;
        path += svg::startOfPath({left, zero}) + 'v' + svg::coordinateText(height) + 'h' + svg::coordinateText(width) +
                'v' + svg::coordinateText(-height) + 'z';
    }
    svg.titled("path", {{"class", looksOf(*group[member])}, {"d", path}}, listed(*group[member]));
}

void addValues(svg::SVGWriter& svg, const svg::Panel& panel, const Group& group) {
    svg.open("g", {{"class", "lv-value lv-halo"}, {"text-anchor", "middle"}});
    for (std::size_t member = 0; member < group.size(); ++member) {
        for (std::size_t colour = 0; colour < colourNames.size(); ++colour) {
            const int value = group[member]->values[colour];
            const double end = panel.vertical().at(value);
            svg::addText(svg, {centreOf(panel, group, member, colour), value < 0 ? end + 13 : end - 5}, "",
                         svg::Anchor::start, std::to_string(value));
        }
    }
    svg.close();
}

void addGroup(svg::SVGWriter& svg, const svg::Panel& panel, const Group& group) {
    for (std::size_t member = 0; member < group.size(); ++member) {
        addBars(svg, panel, group, member);
    }
    addValues(svg, panel, group);
}

svg::Axis colourAxis() {
    svg::Axis axis;
    for (std::size_t colour = 0; colour < colourNames.size(); ++colour) {
        const double place = (static_cast<double>(colour) + 0.5) / static_cast<double>(colourNames.size());
        axis.ticks.push_back({place, std::string(colourNames[colour])});
    }
    return axis;
}

void addPanels(svg::SVGWriter& svg, const std::vector<Group>& groups, const svg::TickedRange& scale) {
    double top = panelTop;
    for (const Group& group : groups) {
        const svg::Box box{panelLeft, top, pictureWidth - panelLeft - rightMargin, panelHeight};
        const svg::Panel panel(box, {0, 1}, scale.range);
        const svg::Axis vertical{scale.ticks, std::string(group.front()->name) + " in steps", true};
        svg::addAxes(svg, panel, colourAxis(), vertical);
        svg::addLevel(svg, panel, 0, "lv-zero");
        addGroup(svg, panel, group);
        top += panelHeight + panelGap;
    }
}

std::vector<svg::LegendEntry> legendOf(const std::vector<SixColours>& all) {
    std::vector<svg::LegendEntry> entries;
    for (const SixColours& colours : all) {
        const std::string label = "Of the " + std::string(colours.place);
        const auto isSame = [&](const svg::LegendEntry& entry) {
            return entry.label == label;
        };
        if (std::none_of(entries.begin(), entries.end(), isSame)) {
            entries.push_back({label, "", looksOf(colours), std::nullopt});
        }
    }
    return entries;
}

std::string descriptionOf(const std::vector<SixColours>& all) {
    std::string text = "Adjustments in steps of the monitor.";
    for (const SixColours& colours : all) {
        text += ' ' + listed(colours) + '.';
    }
    return text;
}

}  // namespace

std::string sixColoursPicture(const ModeFigures& mode, const PictureForm& form) {
    const PictureTexts texts{"Adjustments of six colours", subtitleOf(mode), descriptionOf(mode.sixColours)};
    const std::vector<Group> groups = groupsOf(mode.sixColours);
    if (groups.empty()) {
        return emptyPicture(form, texts, "no adjustments of six colours are recorded");
    }
    const double height = panelTop + static_cast<double>(groups.size()) * (panelHeight + panelGap);
    Picture picture(form, height, texts);
    addPanels(picture.svg(), groups, rangeOf(mode.sixColours));
    svg::addLegendRow(picture.svg(), {panelLeft, legendTop}, 500, legendOf(mode.sixColours));
    return picture.finished();
}

}  // namespace lv::analysis
