#include <lvdata/analysis/colour/gamut.h>

namespace lv::analysis::colour {

std::optional<std::array<PlanePoint, 3>> triangle(const Primaries&, Plane) {
    return std::nullopt;
}

std::optional<GamutComparison> compareGamuts(const Primaries&, const Primaries&, Plane) {
    return std::nullopt;
}

}  // namespace lv::analysis::colour
