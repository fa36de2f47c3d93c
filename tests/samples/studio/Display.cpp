#include <tests/samples/studio/Display.h>

#include <algorithm>
#include <cmath>

namespace studio {

using colorimetry::Primaries;
using colorimetry::Triple;

namespace {

/// The primaries as bright as it takes for all three together to make the white.
Primaries primariesMaking(const Triple& white) {
    const Triple parts = colorimetry::partsOf(white, panel::chromaticities);
    return {colorimetry::scaled(parts[0], panel::chromaticities.red),
            colorimetry::scaled(parts[1], panel::chromaticities.green),
            colorimetry::scaled(parts[2], panel::chromaticities.blue)};
}

Triple leakOf(const ColourMode& mode) {
    return colorimetry::scaled(mode.luminance / panel::contrast, panel::leak);
}

/// The mode's white, without the light that leaks.
Triple whiteOf(const ColourMode& mode) {
    const Triple white = colorimetry::scaled(mode.luminance, colorimetry::tristimulus(mode.whiteX, mode.whiteY));
    return colorimetry::sum(white, colorimetry::scaled(-1.0, leakOf(mode)));
}

}  // namespace

Display::Display(const ColourMode& mode)
    : mode_(mode),
      primaries_(primariesMaking(whiteOf(mode))),
      leak_(leakOf(mode)) {}

Triple Display::shows(const Triple& signals) const {
    return colorimetry::sum(leak_, colorimetry::mixture(lightOf(mode_.curve, signals), primaries_));
}

Triple Display::gains() const {
    const Triple parts =
        colorimetry::partsOf(colorimetry::tristimulus(mode_.whiteX, mode_.whiteY), panel::chromaticities);
    const Triple ofPanel =
        colorimetry::partsOf(colorimetry::tristimulus(panel::whiteX, panel::whiteY), panel::chromaticities);
    const Triple ratios = {parts[0] / ofPanel[0], parts[1] / ofPanel[1], parts[2] / ofPanel[2]};
    const double strongest = *std::max_element(ratios.begin(), ratios.end());
    return colorimetry::roundedTo(0.0001, colorimetry::scaled(1.0 / strongest, ratios));
}

std::vector<double> Display::table(std::size_t channel) const {
    std::vector<double> entries;
    entries.reserve(mode_.tableLength);
    for (unsigned int index = 0; index < mode_.tableLength; ++index) {
        const double light = lightOfGrey(mode_.curve, index / (mode_.tableLength - 1.0));
        entries.push_back(colorimetry::roundedTo(1.0 / 65535, std::pow(light, 1.0 / panel::gamma[channel])));
    }
    return entries;
}

}  // namespace studio
