#pragma once

/// The number of digits after the point for figures that are not lines: the same in JSON, in tables and on pages.
namespace lv::analysis::digits {

inline constexpr int tristimulus = 4;    ///< X, Y and Z.
inline constexpr int signal = 4;         ///< Signals, fractions of full scale.
inline constexpr int light = 4;          ///< Light over that of white.
inline constexpr int gamma = 2;          ///< Exponents.
inline constexpr int balance = 3;        ///< R, G and B over their mean.
inline constexpr int deltaE = 2;         ///< ΔE00.
inline constexpr int mapEntry = 0;       ///< Entries of candela maps.
inline constexpr int againstCentre = 3;  ///< Entries over that of the centre, minus 1.

}  // namespace lv::analysis::digits
