#pragma once

#include <lvdata/analysis/colour/difference.h>

#include <optional>

namespace lv::analysis::colour {

/// The position of a white relative to the Planckian locus.
struct CorrelatedTemperature {
    double kelvin = 0;  ///< The correlated colour temperature (CCT) in K.
    double duv = 0;     ///< Δuv, the distance from the locus in the CIE 1960 UCS diagram; above 0 on the green side.
};

/// The CCT and Δuv of a chromaticity by Y. Ohno, "Practical use and calculation of CCT and Duv", LEUKOS 10 (2014). No
/// value outside 1000 K to 100,000 K, or farther than 0.05 from the locus, where the CCT has no meaning according to
/// CIE 15. The first call makes a table; threads may call it at the same time.
[[nodiscard]] std::optional<CorrelatedTemperature> correlatedTemperature(const Chromaticity& chromaticity);

/// The chromaticity of the Planckian radiator (CIE 15, c2 = 0.014388 m K) of a temperature from 1000 K to 100,000 K. A
/// temperature outside this range is set to the nearer end, NaN to 1000 K.
[[nodiscard]] Chromaticity planckian(double kelvin);

}  // namespace lv::analysis::colour
