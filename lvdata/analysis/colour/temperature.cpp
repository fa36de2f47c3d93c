#include <lvdata/analysis/colour/temperature.h>

namespace lv::analysis::colour {

std::optional<CorrelatedTemperature> correlatedTemperature(const Chromaticity&) {
    return std::nullopt;
}

Chromaticity planckian(double) {
    return {};
}

}  // namespace lv::analysis::colour
