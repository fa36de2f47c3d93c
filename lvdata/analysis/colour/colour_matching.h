#pragma once

#include <lvdata/analysis/colour/difference.h>

#include <array>
#include <cstddef>

namespace lv::analysis::colour {

/// A row of the table of the colour-matching functions.
struct ColourMatch {
    int wavelength;         ///< In nm.
    Tristimulus functions;  ///< x̄, ȳ and z̄ of that wavelength.
};

/// The number of rows: 380 nm to 780 nm in steps of 5 nm.
inline constexpr std::size_t colourMatches = 81;

/// The colour-matching functions of the CIE 1931 2° standard observer, CIE 15:2004, table T.4. The numbers are those of
/// the data set of the CIE (https://doi.org/10.25039/CIE.DS.xvudnb9b) at every 5 nm, rounded to six decimals.
[[nodiscard]] const std::array<ColourMatch, colourMatches>& colourMatchingFunctions();

}  // namespace lv::analysis::colour
