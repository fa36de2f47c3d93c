#include <lvdata/analysis/pictures/Diagram.h>

#include <lvdata/analysis/colour/temperature.h>
#include <lvdata/analysis/pictures/svg/thinning.h>

#include <array>
#include <cmath>

namespace lv::analysis {
namespace {

using colour::Chromaticity;
using svg::Point;

void add(std::vector<Point>& points, const Chromaticity& chromaticity, colour::Plane plane) {
    if (const auto place = placeOf(chromaticity, plane)) {
        points.push_back(*place);
    }
}

std::vector<Point> locusOf(colour::Plane plane) {
    std::vector<Point> points;
    for (const colour::LocusPoint& point : colour::spectrumLocus()) {
        add(points, point.chromaticity, plane);
    }
    return points;
}

/// A colour that fades from a corner of the diagram to the middle of the other two.
struct Wash {
    std::string_view name;
    Chromaticity corner;
    Chromaticity opposite;
};

/// The id of something in the background of one of the two diagrams.
std::string idOf(const Diagram& diagram, std::string_view part) {
    return diagram.picture.idOf(diagram.plane == colour::Plane::xy ? "xy-" : "uv-") + std::string(part);
}

/// A faint fill with the colours of the diagram, roughly, of the shape with the id.
void addWash(Diagram& diagram, const std::string& shape) {
    constexpr std::array<Wash, 3> washes{{{"red", {0.70, 0.29}, {0.12, 0.44}},
                                          {"green", {0.14, 0.80}, {0.43, 0.17}},
                                          {"blue", {0.16, 0.02}, {0.38, 0.56}}}};
    svg::SVGWriter& svg = diagram.svg;
    for (const Wash& wash : washes) {
        const Point from = diagram.panel.at(placeOf(wash.corner, diagram.plane).value_or(Point{}));
        const Point to = diagram.panel.at(placeOf(wash.opposite, diagram.plane).value_or(Point{}));
        const std::string id = idOf(diagram, wash.name);
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
        svg.empty("use", {{"href", '#' + shape}, {"fill", "url(#" + id + ")"}});
    }
}

/// The direction away from the diagram at a point of the locus that is not at its ends: at a right angle to the line
/// through its neighbours, in pixels. As seen from above, the locus runs clockwise.
Point outward(const std::vector<Point>& locus, std::size_t index) {
    const Point& before = locus[index - 1];
    const Point& after = locus[index + 1];
    const double length = std::hypot(after.x - before.x, after.y - before.y);
    return length > 0 ? Point{(after.y - before.y) / length, (before.x - after.x) / length} : Point{0, -1};
}

/// Writes a wavelength outside the locus; the result is the line from there to it.
std::string addWavelength(svg::SVGWriter& svg, const std::vector<Point>& locus, std::size_t index) {
    const int wavelength = colour::spectrumLocus()[index].wavelength;
    const Point& at = locus[index];
    const Point step = outward(locus, index);
    const auto sideways = step.x > 0 ? svg::Anchor::start : svg::Anchor::end;
    const auto anchor = std::abs(step.x) < 0.35 ? svg::Anchor::middle : sideways;
    svg::addText(svg, {at.x + 9 * step.x, at.y + 10 * step.y + 4}, "lv-note", anchor,
                 std::to_string(wavelength) + (wavelength == 520 ? " nm" : ""));
    return svg::pathThrough({at, {at.x + 5 * step.x, at.y + 5 * step.y}});
}

}  // namespace

PlaneForm formOf(colour::Plane plane) {
    if (plane == colour::Plane::xy) {
        return {{-0.05, 0.8}, {0, 0.9}, 530, "CIE 1931 x, y", "x", "y"};
    }
    return {{-0.06, 0.64}, {0, 0.64}, 650, "CIE 1976 u′, v′", "u′", "v′"};
}

std::optional<Point> placeOf(const Chromaticity& chromaticity, colour::Plane plane) {
    if (plane == colour::Plane::xy) {
        return Point{chromaticity.x, chromaticity.y};
    }
    const auto place = colour::uniform(chromaticity);
    return place ? std::optional<Point>({place->u, place->v}) : std::nullopt;
}

void addSpectrumLocus(Diagram& diagram) {
    const std::vector<Point> locus = diagram.panel.inside(locusOf(diagram.plane));
    const std::string shape = idOf(diagram, "locus");
    diagram.svg.open("defs");
    diagram.svg.open("g", {{"id", shape}});
    svg::addPolygon(diagram.svg, svg::simplified(locus, 0.15),
                    {"", "Spectrum locus, 380 nm to 700 nm, and the line of purples"});
    diagram.svg.close();
    diagram.svg.close();
    addWash(diagram, shape);
    diagram.svg.empty("use", {{"href", '#' + shape}, {"class", "lv-locus"}});
    std::string lines;
    for (std::size_t index = 1; index + 1 < locus.size(); ++index) {
        const int wavelength = colour::spectrumLocus()[index].wavelength;
        if (wavelength >= 460 && wavelength <= 620 && wavelength % 20 == 0) {
            lines += addWavelength(diagram.svg, locus, index);
        }
    }
    diagram.svg.empty("path", {{"class", "lv-locus"}, {"d", lines}});
}

void addPlanckianLocus(Diagram& diagram) {
    std::vector<Point> points;
    for (double kelvin = 1500; kelvin <= 25000; kelvin *= 1.1) {
        add(points, colour::planckian(kelvin), diagram.plane);
    }
    svg::addPolyline(diagram.svg, diagram.panel.inside(points), {"lv-planck", "Planckian locus, 1500 K to 25,000 K"});
    diagram.legend.push_back({"Planckian locus", "lv-planck", "", std::nullopt});
}

}  // namespace lv::analysis
