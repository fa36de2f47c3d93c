#include <lvdata/analysis/pictures/svg/Scale.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis::svg {
namespace {

constexpr double greatest = 1e200;           // so that sums and products of a few values stay finite
constexpr double leastRelativeWidth = 1e-6;  // so that ticks stay apart

constexpr double relativeTolerance = 1e-9;  // for what rounding does to an end

double bounded(double value) {
    return std::clamp(value, -greatest, greatest);
}

}  // namespace

double Scale::at(double value) const {
    const double first = bounded(values_.first);
    const double width = bounded(values_.last) - first;
    const bool hasPlace = width != 0 && !std::isnan(width) && !std::isnan(value);
    const double part = hasPlace ? std::clamp((bounded(value) - first) / width, 0.0, 1.0) : 0.5;
    return pixels_.first + part * (pixels_.last - pixels_.first);
}

bool Scale::holds(double value) const {
    const auto [least, most] = std::minmax(values_.first, values_.last);
    const double tolerance = (most - least) * relativeTolerance;
    return value >= least - tolerance && value <= most + tolerance;
}

void Extent::add(double value) {
    if (!std::isfinite(value)) {
        return;
    }
    const double taken = bounded(value);
    range_ = isEmpty_ ? Range{taken, taken} : Range{std::min(range_.first, taken), std::max(range_.last, taken)};
    isEmpty_ = false;
}

Range widened(Range range, double part, double leastWidth) {
    const double middle = range.first / 2 + range.last / 2;
    const double least = std::max(leastWidth, std::abs(middle) * leastRelativeWidth);
    const double half = std::max((range.last - range.first) * (0.5 + part), least / 2);
    return {middle - half, middle + half};
}

}  // namespace lv::analysis::svg
