#pragma once

#include <lvdata/analysis/pictures/Picture.h>

#include <optional>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The differences between the two chromaticity diagrams.
struct PlaneForm {
    svg::Range horizontal;            ///< From left to right. Wavelengths are written to the left of 0.
    svg::Range vertical;              ///< From below.
    double pixels;                    ///< Of a width or height of 1.
    std::string_view name;            ///< For people.
    std::string_view horizontalName;  ///< "x" or "u′".
    std::string_view verticalName;    ///< "y" or "v′".
};

/// The form of that diagram.
[[nodiscard]] PlaneForm formOf(colour::Plane plane);

/// Where a chromaticity lies in that diagram; no value where it has no place.
[[nodiscard]] std::optional<svg::Point> placeOf(const colour::Chromaticity& chromaticity, colour::Plane plane);

/// A chromaticity diagram that is being drawn.
struct Diagram {
    Picture& picture;                        ///< The picture that it is drawn into.
    svg::SVGWriter& svg;                     ///< The writer: of the picture, or of its background.
    const svg::Panel& panel;                 ///< Its place.
    colour::Plane plane;                     ///< Which one it is.
    std::vector<svg::LegendEntry> legend{};  ///< What was drawn so far.
};

/// The spectrum locus with the names of wavelengths and the line of purples, filled with a faint hint of the colours.
void addSpectrumLocus(Diagram& diagram);

/// The Planckian locus.
void addPlanckianLocus(Diagram& diagram);

}  // namespace lv::analysis
