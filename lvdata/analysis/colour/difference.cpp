#include <lvdata/analysis/colour/difference.h>

#include <algorithm>
#include <cmath>

#include <lcms2.h>

namespace lv::analysis::colour {
namespace {

cmsCIEXYZ toLittleCMS(const Tristimulus& colour) {
    return {colour[0], colour[1], colour[2]};
}

cmsCIELab labToLittleCMS(const Lab& colour) {
    return {colour[0], colour[1], colour[2]};
}

}  // namespace

std::optional<UniformChromaticity> uniform(const Chromaticity& chromaticity) {
    const auto [x, y] = chromaticity;
    const double denominator = -2 * x + 12 * y + 3;
    if (!(denominator > 0)) {
        return std::nullopt;
    }
    return UniformChromaticity{4 * x / denominator, 9 * y / denominator};
}

double distance(const UniformChromaticity& left, const UniformChromaticity& right) {
    return std::hypot(left.u - right.u, left.v - right.v);
}

bool isWhite(const Tristimulus& white) {
    return std::all_of(white.begin(), white.end(), [](double value) { return value > 0; });
}

Lab lab(const Tristimulus& colour, const Tristimulus& white) {
    const cmsCIEXYZ reference = toLittleCMS(white);
    const cmsCIEXYZ stimulus = toLittleCMS(colour);
    cmsCIELab result = {};
    cmsXYZ2Lab(&reference, &result, &stimulus);
    return {result.L, result.a, result.b};
}

double deltaE2000(const Lab& left, const Lab& right) {
    const cmsCIELab first = labToLittleCMS(left);
    const cmsCIELab second = labToLittleCMS(right);
    return cmsCIE2000DeltaE(&first, &second, 1, 1, 1);
}

}  // namespace lv::analysis::colour
