#include <lvdata/analysis/colour/rgb.h>

namespace lv::analysis::colour {

std::optional<Matrix> rgbToXYZ(const Primaries&, const Chromaticity&) {
    return std::nullopt;
}

Matrix fromColumns(const Tristimulus&, const Tristimulus&, const Tristimulus&) {
    return {};
}

std::optional<Matrix> inverse(const Matrix&) {
    return std::nullopt;
}

std::array<double, 3> product(const Matrix&, const std::array<double, 3>&) {
    return {};
}

Tristimulus adapted(const Tristimulus& colour, const Tristimulus&, const Tristimulus&) {
    return colour;
}

}  // namespace lv::analysis::colour
