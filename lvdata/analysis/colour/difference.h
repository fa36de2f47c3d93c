#pragma once

#include <array>
#include <optional>

/// Arithmetic on colours: each function names the formula and its source.
namespace lv::analysis::colour {

/// CIE X, Y and Z, in any unit that all values of one calculation share.
using Tristimulus = std::array<double, 3>;

/// CIE L*, a* and b*.
using Lab = std::array<double, 3>;

/// A chromaticity of the CIE 1931 2° observer.
struct Chromaticity {
    double x = 0;  ///< x.
    double y = 0;  ///< y.
};

/// A point of the CIE 1976 uniform chromaticity scale (UCS) diagram.
struct UniformChromaticity {
    double u = 0;  ///< u'.
    double v = 0;  ///< v'.
};

/// The point of the UCS diagram, CIE 15:2018, 8.1: u' = 4x / (-2x + 12y + 3), v' = 9y / (-2x + 12y + 3). No value where
/// the denominator is not above 0, which no real colour has.
[[nodiscard]] std::optional<UniformChromaticity> uniform(const Chromaticity& chromaticity);

/// The distance of two points of the UCS diagram, Δu'v': the root of the sum of the squares of Δu' and Δv'.
[[nodiscard]] double distance(const UniformChromaticity& left, const UniformChromaticity& right);

/// Whether the three values can be a reference white: all above 0.
[[nodiscard]] bool isWhite(const Tristimulus& white);

/// CIELAB (CIE 1976 L*a*b*, CIE 15:2018, 8.2.1) relative to the white, computed by Little CMS (`cmsXYZ2Lab`). Both are
/// in the same unit; `isWhite(white)` must hold.
[[nodiscard]] Lab lab(const Tristimulus& colour, const Tristimulus& white);

/// The colour difference ΔE00 by the formula CIEDE2000 (ISO/CIE 11664-6) with the parametric factors kL = kC = kH = 1,
/// computed by Little CMS (`cmsCIE2000DeltaE`).
[[nodiscard]] double deltaE2000(const Lab& left, const Lab& right);

}  // namespace lv::analysis::colour
