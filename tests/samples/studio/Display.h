#pragma once

#include <tests/samples/colorimetry.h>
#include <tests/samples/studio/ColourMode.h>

#include <cstddef>
#include <vector>

namespace studio {

/// The monitor's panel: a wide gamut, and a native white that is a little bluish.
namespace panel {

inline constexpr colorimetry::Primaries chromaticities = {
    colorimetry::tristimulus(0.6802, 0.3116),
    colorimetry::tristimulus(0.2094, 0.7013),
    colorimetry::tristimulus(0.1490, 0.0548),
};
inline constexpr double luminance = 1080.0;  // of its white, cd/m2
inline constexpr double whiteX = 0.3068;
inline constexpr double whiteY = 0.3175;
inline constexpr colorimetry::Triple gamma = {2.218, 2.204, 2.187};  // of the channels
inline constexpr double contrast = 40000.0;                          // of white to the light that leaks
inline constexpr colorimetry::Triple leak = colorimetry::tristimulus(0.2891, 0.2984);

/// The panel at its brightest and with its own white.
inline constexpr ColourMode uncalibrated = {
    0, "Standard", "", luminance, whiteX, whiteY, ToneCurve::gamma, "Native", "2.2", "Native", 256,
};

}  // namespace panel

/// The panel as it shows a colour mode.
class Display {
public:
    explicit Display(const ColourMode& mode);

    /// The tristimulus values, in cd/m2, of a colour given by its signals of 0 to 1.
    [[nodiscard]] colorimetry::Triple shows(const colorimetry::Triple& signals) const;

    /// How far each channel is turned down to make the mode's white out of the panel's; 1 for the strongest.
    [[nodiscard]] colorimetry::Triple gains() const;

    /// The look-up table of a channel that turns the panel's own gamma into the mode's curve, held in 16 bits.
    [[nodiscard]] std::vector<double> table(std::size_t channel) const;

private:
    ColourMode mode_;
    colorimetry::Primaries primaries_;  // in cd/m2
    colorimetry::Triple leak_;          // in cd/m2
};

}  // namespace studio
