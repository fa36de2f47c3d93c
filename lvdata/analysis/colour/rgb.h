#pragma once

#include <lvdata/analysis/colour/standards.h>

#include <array>
#include <optional>

namespace lv::analysis::colour {

/// Three rows of three entries.
using Matrix = std::array<std::array<double, 3>, 3>;

/// The matrix from linear R, G and B of 0 to 1 to X, Y and Z, where white has Y = 1: SMPTE RP 177. No value when the
/// primaries lie on a line or y of a colour is 0.
[[nodiscard]] std::optional<Matrix> rgbToXYZ(const Primaries& primaries, const Chromaticity& white);

/// The matrix that has the three columns.
[[nodiscard]] Matrix fromColumns(const Tristimulus& first, const Tristimulus& second, const Tristimulus& third);

/// The inverse; no value when there is none.
[[nodiscard]] std::optional<Matrix> inverse(const Matrix& matrix);

/// Matrix times column.
[[nodiscard]] std::array<double, 3> product(const Matrix& matrix, const std::array<double, 3>& column);

/// Adapts a colour from the white `from` to the white `to`, by the linear Bradford transform of Little CMS
/// (`cmsAdaptToIlluminant`). Both whites must fulfil `isWhite`. If Little CMS has no transform for a white, the colour
/// stays unchanged.
[[nodiscard]] Tristimulus adapted(const Tristimulus& colour, const Tristimulus& from, const Tristimulus& to);

}  // namespace lv::analysis::colour
