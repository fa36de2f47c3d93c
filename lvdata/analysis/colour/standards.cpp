#include <lvdata/analysis/colour/standards.h>

namespace lv::analysis::colour {

const std::array<RGBSpace, 4>& referenceSpaces() {
    static const std::array<RGBSpace, 4> spaces = {{
        {"sRGB", "IEC 61966-2-1", {{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}, {0.3127, 0.3290}},
        {"Adobe RGB (1998)", "", {{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}}, {0.3127, 0.3290}},
        {"Display P3", "", {{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}}, {0.3127, 0.3290}},
        {"BT.2020", "", {{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}}, {0.3127, 0.3290}},
    }};
    return spaces;
}

std::optional<Primaries> primariesNamed(std::string_view) {
    return std::nullopt;
}

std::optional<Chromaticity> whiteNamed(std::string_view) {
    return std::nullopt;
}

const std::array<LocusPoint, locusPoints>& spectrumLocus() {
    static const std::array<LocusPoint, locusPoints> points = {};
    return points;
}

}  // namespace lv::analysis::colour
