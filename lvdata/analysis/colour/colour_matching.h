#pragma once

#include <lvdata/analysis/colour/difference.h>

#include <array>
#include <cstddef>

namespace lv::analysis::colour {

/// A row of the table of the colour-matching functions.
struct ColourMatch {
    int wavelength = 0;       ///< In nm.
    Tristimulus functions{};  ///< x̄, ȳ and z̄ of that wavelength.
};

/// The number of rows: 360 nm to 830 nm in steps of 5 nm.
inline constexpr std::size_t colourMatches = 95;

/// The colour-matching functions of the CIE 1931 2° standard observer. From 380 nm to 780 nm it is table T.4 of CIE
/// 15:2004. The other rows matter slightly for hot radiators: they are from the data set of the CIE in steps of 1 nm,
/// https://doi.org/10.25039/CIE.DS.xvudnb9b.
[[nodiscard]] const std::array<ColourMatch, colourMatches>& colourMatchingFunctions();

}  // namespace lv::analysis::colour
