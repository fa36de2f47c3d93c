#include <lvdata/analysis/pictures/Diagram.h>
#include <lvdata/analysis/pictures/svg/clipping.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

using colour::Chromaticity;
using colour::Plane;
using svg::Point;

std::string coordinates(const Chromaticity& chromaticity, Plane plane) {
    const PlaneForm form = formOf(plane);
    const auto place = placeOf(chromaticity, plane);
    if (!place) {
        return "no place in the diagram";
    }
    return std::string(form.horizontalName) + ' ' + svg::valueText(place->x, 4) + ", " +
           std::string(form.verticalName) + ' ' + svg::valueText(place->y, 4);
}

/// A triangle of red, green and blue.
using Corners = std::array<std::optional<Chromaticity>, 3>;

/// Draws the part of a triangle that lies in the diagram. Returns whether there is one.
bool addTriangle(Diagram& diagram, const Corners& corners, const svg::Look& look) {
    std::vector<Point> points;
    for (const auto& corner : corners) {
        if (const auto place = corner ? placeOf(*corner, diagram.plane) : std::nullopt) {
            points.push_back(*place);
        }
    }
    if (points.size() != corners.size()) {
        return false;
    }
    const std::vector<Point> part = svg::clipped(points, diagram.panel);
    svg::addPolygon(diagram.svg, diagram.panel.inside(part), look);
    return true;
}

void addReferenceSpaces(Diagram& diagram) {
    constexpr std::array<std::string_view, 4> looks{"lv-line lv-thin lv-green", "lv-line lv-thin lv-purple",
                                                    "lv-line lv-thin lv-muted", "lv-line lv-thin lv-ink"};
    for (std::size_t index = 0; index < looks.size(); ++index) {
        const colour::RGBSpace& space = colour::referenceSpaces()[index];
        const colour::Primaries& primaries = space.primaries;
        addTriangle(diagram, {primaries.red, primaries.green, primaries.blue}, {looks[index], std::string(space.name)});
        diagram.legend.push_back({std::string(space.name), looks[index], "", std::nullopt});
    }
}

/// Draws a point where it lies in the diagram.
void addPoint(Diagram& diagram, const std::optional<Chromaticity>& chromaticity, svg::Symbol symbol,
              std::string_view classes, const std::string& name) {
    const auto place = chromaticity ? placeOf(*chromaticity, diagram.plane) : std::nullopt;
    if (place && diagram.panel.holds(*place)) {
        const std::string title = name + ": " + coordinates(*chromaticity, diagram.plane);
        svg::addSymbol(diagram.svg, diagram.panel.at(*place), symbol, {classes, title});
    }
}

constexpr std::array<std::string_view, 3> primaryNames{"red", "green", "blue"};

void addTarget(Diagram& diagram, const ModeFigures& mode) {
    const Corners corners{mode.primaries[0].target, mode.primaries[1].target, mode.primaries[2].target};
    if (addTriangle(diagram, corners, {"lv-line lv-target", "Target gamut"})) {
        diagram.legend.push_back({"Target", "lv-line lv-target", "lv-open lv-target", svg::Symbol::square});
    }
    for (std::size_t index = 0; index < corners.size(); ++index) {
        addPoint(diagram, corners[index], svg::Symbol::square, "lv-open lv-target",
                 "Target " + std::string(primaryNames[index]));
    }
}

void addMeasured(Diagram& diagram, const ModeFigures& mode) {
    const Corners corners{mode.primaries[0].measured, mode.primaries[1].measured, mode.primaries[2].measured};
    if (addTriangle(diagram, corners, {"lv-line lv-measured lv-solid", "Measured gamut"})) {
        diagram.legend.push_back(
            {"Measured", "lv-line lv-measured lv-solid", "lv-mark lv-measured", svg::Symbol::circle});
    }
    for (std::size_t index = 0; index < corners.size(); ++index) {
        addPoint(diagram, corners[index], svg::Symbol::circle, "lv-mark lv-measured",
                 "Measured " + std::string(primaryNames[index]));
    }
}

void addWhites(Diagram& diagram, const ModeFigures& mode) {
    if (mode.targetChromaticity) {
        addPoint(diagram, mode.targetChromaticity, svg::Symbol::diamond, "lv-open lv-target", "Target white");
        diagram.legend.push_back({"Target white", "", "lv-open lv-target", svg::Symbol::diamond});
    }
    if (mode.measuredChromaticity) {
        addPoint(diagram, mode.measuredChromaticity, svg::Symbol::cross, "lv-stroke lv-measured", "Measured white");
        diagram.legend.push_back({"Measured white", "", "lv-stroke lv-measured", svg::Symbol::cross});
    }
}

/// What was drawn last matters most.
void addLegend(Diagram& diagram, const Point& at) {
    std::reverse(diagram.legend.begin(), diagram.legend.end());
    svg::addLegendColumn(diagram.svg, at, pictureWidth - at.x - 8, diagram.legend);
}

/// The parts that are the same in each diagram of a plane.
void addBackground(Picture& picture, const svg::Panel& panel, Plane plane, const Point& legend) {
    const PlaneForm form = formOf(plane);
    svg::SVGWriter part = picture.svg().newPart();
    svg::addAxes(part, panel, {svg::ticksOf(form.horizontal, 9), std::string(form.horizontalName)},
                 {svg::ticksOf(form.vertical, 9), std::string(form.verticalName)});
    Diagram diagram{picture, part, panel, plane};
    addSpectrumLocus(diagram);
    addPlanckianLocus(diagram);
    addReferenceSpaces(diagram);
    addLegend(diagram, legend);
    picture.svg().share(part);
}

/// "White at x 0.3127, y 0.3290.", or that it is not known or outside the diagram.
std::string described(const std::optional<Chromaticity>& chromaticity, const std::string& name, Plane plane) {
    if (!chromaticity) {
        return " No " + name + '.';
    }
    const PlaneForm form = formOf(plane);
    const svg::Panel panel({}, form.horizontal, form.vertical);
    const auto place = placeOf(*chromaticity, plane);
    const bool isInside = place && panel.holds(*place);
    return ' ' + name + " at " + coordinates(*chromaticity, plane) +
           (isInside ? "." : ", which is outside the diagram.");
}

std::string descriptionOf(const ModeFigures& mode, Plane plane) {
    std::string text = "Chromaticity diagram, " + std::string(formOf(plane).name) +
                       ", with the spectrum locus and the gamuts of sRGB, Adobe RGB (1998), Display P3 and BT.2020.";
    text += described(mode.measuredChromaticity, "measured white", plane);
    for (std::size_t index = 0; index < primaryNames.size(); ++index) {
        text += described(mode.primaries[index].measured, "measured " + std::string(primaryNames[index]), plane);
    }
    text += described(mode.targetChromaticity, "target white", plane);
    return text;
}

/// Whether the record has anything for this picture.
bool hasPoints(const ModeFigures& mode) {
    bool has = mode.measuredChromaticity || mode.targetChromaticity;
    for (const PrimaryFigures& primary : mode.primaries) {
        has = has || primary.measured || primary.target;
    }
    return has;
}

}  // namespace

std::string gamutPicture(const ModeFigures& mode, Plane plane, const PictureForm& form) {
    const PlaneForm planeForm = formOf(plane);
    const PictureTexts texts{"Gamut, " + std::string(planeForm.name), subtitleOf(mode), descriptionOf(mode, plane)};
    if (!hasPoints(mode)) {
        return emptyPicture(form, texts, "no white and no primaries are recorded");
    }
    const svg::Box box{panelLeft, 80, planeForm.pixels * (planeForm.horizontal.last - planeForm.horizontal.first),
                       planeForm.pixels * planeForm.vertical.last};
    Picture picture(form, box.bottom() + 52, texts);
    const svg::Panel panel(box, planeForm.horizontal, planeForm.vertical);
    const double left = box.right() + 20;
    addBackground(picture, panel, plane, {left, box.top + 8 + 4 * 20});
    Diagram diagram{picture, picture.svg(), panel, plane};
    addTarget(diagram, mode);
    addMeasured(diagram, mode);
    addWhites(diagram, mode);
    addLegend(diagram, {left, box.top + 8});
    return picture.finished();
}

}  // namespace lv::analysis
