#include <lvdata/analysis/pictures/svg/text.h>
#include <lvdata/analysis/pictures/svg/ticks.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis::svg {
namespace {

constexpr int mostDecimals = 9;
constexpr double leastRelativeStep = 1e-12;
constexpr double tolerance = 1e-6;  // of a step, for what rounding does to multiples

/// The finest of 1, 2, 5 times a power of ten that is not below; 0 where there is none.
double stepFrom(double least) {
    if (!(least > 0) || !std::isfinite(least)) {
        return 0;
    }
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1 - tolerance)) {
            return factor * power;
        }
    }
    return 10 * power;
}

/// 0 where numbers beside each other cannot be told apart at that step.
double stepOf(const Range& range, int most) {
    const double step = stepFrom((range.last - range.first) / most);
    const double greatest = std::max(std::abs(range.first), std::abs(range.last));
    return step > greatest * leastRelativeStep ? step : 0;
}

int decimalsOf(double step) {
    const double digits = -std::floor(std::log10(step) + tolerance);
    return static_cast<int>(std::clamp(digits, 0.0, static_cast<double>(mostDecimals)));
}

/// The multiples of a step from the first to the last.
std::vector<Tick> multiples(double first, double last, double step) {
    std::vector<Tick> ticks;
    for (double factor = first; factor <= last; ++factor) {
        const double value = factor * step;
        ticks.push_back({value, valueText(value, decimalsOf(step))});
    }
    return ticks;
}

/// What is left where a range has no width.
std::vector<Tick> onlyTick(double value) {
    return {{value, valueText(value, 0)}};
}

}  // namespace

std::vector<Tick> ticksOf(Range range, int most) {
    const double step = stepOf(range, most);
    if (step == 0) {
        return onlyTick(range.first);
    }
    return multiples(std::ceil(range.first / step - tolerance), std::floor(range.last / step + tolerance), step);
}

TickedRange toTicks(Range range, int most) {
    const double step = stepOf(range, most);
    if (step == 0) {
        return {range, onlyTick(range.first)};
    }
    const double first = std::floor(range.first / step + tolerance);
    const double last = std::ceil(range.last / step - tolerance);
    return {{first * step, last * step}, multiples(first, last, step)};
}

}  // namespace lv::analysis::svg
