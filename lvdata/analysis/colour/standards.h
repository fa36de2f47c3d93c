#pragma once

#include <lvdata/analysis/colour/difference.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

/// Colour spaces, whites and the spectrum locus, as defined by the standards.
namespace lv::analysis::colour {

/// The chromaticities of three primaries.
struct Primaries {
    Chromaticity red{};    ///< The red primary.
    Chromaticity green{};  ///< The green primary.
    Chromaticity blue{};   ///< The blue primary.
};

/// An RGB colour space of a standard.
struct RGBSpace {
    std::string_view name;    ///< "sRGB", "Adobe RGB (1998)", "Display P3", "BT.2020".
    std::string_view source;  ///< Where its numbers are from, such as "IEC 61966-2-1".
    Primaries primaries;      ///< Its primaries.
    Chromaticity white;       ///< Its white.
};

/// The spaces that gamuts are compared with: sRGB, Adobe RGB (1998), Display P3 and BT.2020, in this order.
[[nodiscard]] const std::array<RGBSpace, 4>& referenceSpaces();

/// The space that a record names. Upper and lower case are equal; blanks, points, hyphens, underscores and parentheses
/// are ignored: "BT.709" and "bt709" are the primaries of sRGB, "BT.2100" those of BT.2020. No value for any other
/// name, "Native" included.
[[nodiscard]] std::optional<Primaries> primariesNamed(std::string_view name);

/// The chromaticity of a white that a record names, compared in the same way: "D50", "D55", "D65", "D75", "DCI" and the
/// like. No value for any other name.
[[nodiscard]] std::optional<Chromaticity> whiteNamed(std::string_view name);

/// A point of the spectrum locus of the CIE 1931 2° observer.
struct LocusPoint {
    int wavelength = 0;           ///< In nm.
    Chromaticity chromaticity{};  ///< Of light of that wavelength alone.
};

/// The number of points of the locus: 380 nm to 700 nm in steps of 5 nm.
inline constexpr std::size_t locusPoints = 65;

/// The spectrum locus, computed from `colourMatchingFunctions()`.
[[nodiscard]] const std::array<LocusPoint, locusPoints>& spectrumLocus();

}  // namespace lv::analysis::colour
