#include <lvdata/analysis/pictures/Picture.h>
#include <lvdata/analysis/pictures/svg/clipping.h>

#include <lvdata/analysis/colour/temperature.h>

#include <array>
#include <cmath>

namespace lv::analysis {
namespace {

using colour::Chromaticity;
using colour::Plane;
using colour::PlanePoint;
using svg::Point;

/// What differs between the two diagrams.
struct PlaneForm {
    svg::Range horizontal;
    svg::Range vertical;
    double pixels;  // of a width or height of 1
    std::string_view name;
    std::string_view horizontalName;
    std::string_view verticalName;
};

PlaneForm formOf(Plane plane) {
    if (plane == Plane::xy) {
        return {{-0.05, 0.8}, {0, 0.9}, 530, "CIE 1931 x, y", "x", "y"};
    }
    return {{-0.04, 0.65}, {0, 0.64}, 650, "CIE 1976 u′, v′", "u′", "v′"};
}

std::optional<Point> placeOf(const Chromaticity& chromaticity, Plane plane) {
    if (plane == Plane::xy) {
        return Point{chromaticity.x, chromaticity.y};
    }
    const auto place = colour::uniform(chromaticity);
    return place ? std::optional<Point>({place->u, place->v}) : std::nullopt;
}

/// What all steps need.
struct Diagram {
    Picture& picture;
    const svg::Panel& panel;
    Plane plane;
    std::vector<svg::LegendEntry> legend{};
};

void add(std::vector<Point>& points, const Chromaticity& chromaticity, Plane plane) {
    if (const auto place = placeOf(chromaticity, plane)) {
        points.push_back(*place);
    }
}

std::vector<Point> locusOf(Plane plane) {
    std::vector<Point> points;
    for (const colour::LocusPoint& point : colour::spectrumLocus()) {
        add(points, point.chromaticity, plane);
    }
    return points;
}

std::vector<Point> pixelsOf(const svg::Panel& panel, const std::vector<Point>& values) {
    return panel.inside(values);
}

/// A colour that fades from a corner of the diagram to the middle of the other two.
struct Wash {
    std::string_view name;
    Chromaticity corner;
    Chromaticity opposite;
};

/// A faint fill with the colours of the diagram, roughly.
void addWash(Diagram& diagram, const std::vector<Point>& locus) {
    constexpr std::array<Wash, 3> washes{{{"red", {0.70, 0.29}, {0.12, 0.44}},
                                          {"green", {0.14, 0.80}, {0.43, 0.17}},
                                          {"blue", {0.16, 0.02}, {0.38, 0.56}}}};
    svg::SVGWriter& svg = diagram.picture.svg();
    for (const Wash& wash : washes) {
        const Point from = diagram.panel.at(placeOf(wash.corner, diagram.plane).value_or(Point{}));
        const Point to = diagram.panel.at(placeOf(wash.opposite, diagram.plane).value_or(Point{}));
        const std::string id = diagram.picture.idOf(wash.name);
        const std::string stop = "lv-wash-" + std::string(wash.name);
        svg.open("linearGradient", {{"id", id},
                                    {"gradientUnits", "userSpaceOnUse"},
                                    {"x1", from.x},
                                    {"y1", from.y},
                                    {"x2", to.x},
                                    {"y2", to.y}});
        svg.empty("stop", {{"class", stop}, {"offset", "0"}, {"stop-opacity", "0.3"}});
        svg.empty("stop", {{"class", stop}, {"offset", "1"}, {"stop-opacity", "0"}});
        svg.close();
        svg.open("g", {{"fill", "url(#" + id + ")"}});
        svg::addPolygon(svg, pixelsOf(diagram.panel, locus), {});
        svg.close();
    }
}

/// Where the name of a wavelength stands beside the locus: away from the middle of the diagram.
void addWavelength(Diagram& diagram, const colour::LocusPoint& point) {
    const auto place = placeOf(point.chromaticity, diagram.plane);
    const auto middle = placeOf({1.0 / 3, 1.0 / 3}, diagram.plane);
    if (!place || !middle) {
        return;
    }
    const Point at = diagram.panel.at(*place);
    const Point centre = diagram.panel.at(*middle);
    const double distance = std::hypot(at.x - centre.x, at.y - centre.y);
    const Point step{(at.x - centre.x) / distance, (at.y - centre.y) / distance};
    const auto anchor = std::abs(step.x) < 0.35 ? svg::Anchor::middle
                                                : (step.x > 0 ? svg::Anchor::start : svg::Anchor::end);
    svg::SVGWriter& svg = diagram.picture.svg();
    svg::addLine(svg, at, {at.x + 4 * step.x, at.y + 4 * step.y}, {"lv-locus", ""});
    svg::addText(svg, {at.x + 9 * step.x, at.y + 9 * step.y + 4}, "lv-note", anchor,
                 std::to_string(point.wavelength) + (point.wavelength == 520 ? " nm" : ""));
}

void addLocus(Diagram& diagram) {
    const std::vector<Point> locus = locusOf(diagram.plane);
    addWash(diagram, locus);
    svg::addPolygon(diagram.picture.svg(), pixelsOf(diagram.panel, locus),
                    {"lv-locus", "Spectrum locus, 380 nm to 700 nm, and the line of purples"});
    for (const colour::LocusPoint& point : colour::spectrumLocus()) {
        const int nm = point.wavelength;
        if ((nm >= 460 && nm <= 620 && nm % 20 == 0)) {
            addWavelength(diagram, point);
        }
    }
}

void addPlanckianLocus(Diagram& diagram) {
    std::vector<Point> points;
    for (double kelvin = 1500; kelvin <= 25000; kelvin *= 1.1) {
        add(points, colour::planckian(kelvin), diagram.plane);
    }
    svg::addPolyline(diagram.picture.svg(), pixelsOf(diagram.panel, points),
                     {"lv-planck", "Planckian locus, 1500 K to 25,000 K"});
    diagram.legend.push_back({"Planckian locus", "lv-planck", "", std::nullopt});
}

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

/// Draws the part of a triangle that lies in the diagram. Whether there is one.
bool addTriangle(Diagram& diagram, const Corners& corners, const svg::Look& look) {
    std::vector<Point> points;
    for (const auto& corner : corners) {
        if (corner) {
            add(points, *corner, diagram.plane);
        }
    }
    if (points.size() != corners.size()) {
        return false;
    }
    const std::vector<Point> part = svg::clipped(points, diagram.panel);
    svg::addPolygon(diagram.picture.svg(), pixelsOf(diagram.panel, part), look);
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
        svg::addSymbol(diagram.picture.svg(), diagram.panel.at(*place), symbol, {classes, title});
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

/// "White at x 0.3127, y 0.3290.", or what is not so.
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
    svg::addAxes(picture.svg(), panel,
                 {svg::ticksOf(planeForm.horizontal, 9), std::string(planeForm.horizontalName)},
                 {svg::ticksOf(planeForm.vertical, 9), std::string(planeForm.verticalName)});
    Diagram diagram{picture, panel, plane};
    addLocus(diagram);
    addPlanckianLocus(diagram);
    addReferenceSpaces(diagram);
    addTarget(diagram, mode);
    addMeasured(diagram, mode);
    addWhites(diagram, mode);
    const double left = box.right() + 20;
    svg::addLegendColumn(picture.svg(), {left, box.top + 8}, pictureWidth - left - 8, diagram.legend);
    return picture.finished();
}

}  // namespace lv::analysis
