#pragma once

#include <lvdata/analysis/colour/standards.h>

#include <array>
#include <optional>

namespace lv::analysis::colour {

/// The diagram that areas are taken in.
enum class Plane {
    xy,  ///< CIE 1931 x and y.
    uv,  ///< CIE 1976 u' and v', the uniform chromaticity scale (UCS) diagram.
};

/// A point of either diagram.
struct PlanePoint {
    double horizontal = 0;  ///< x or u'.
    double vertical = 0;    ///< y or v'.
};

/// The three primaries in a diagram, red, green, blue. No value when a primary has no place in it, or has a coordinate
/// above 10 or below -10, which no primary can have.
[[nodiscard]] std::optional<std::array<PlanePoint, 3>> triangle(const Primaries& primaries, Plane plane);

/// A gamut against a reference, both as triangles of their primaries in one diagram.
struct GamutComparison {
    double coverage = 0;   ///< The part of the reference that the gamut covers, 0 to 1.
    double areaRatio = 0;  ///< The area of the gamut over that of the reference; can exceed 1.
};

/// No value when a triangle has no area, when its points have no place in the diagram, or when rounding makes the
/// result doubtful. Computed by Boost.Geometry.
[[nodiscard]] std::optional<GamutComparison> compareGamuts(const Primaries& gamut, const Primaries& reference,
                                                           Plane plane);

}  // namespace lv::analysis::colour
