#include <lvdata/analysis/pictures/svg/ticks.h>
#include <lvdata/analysis/pictures/svg/text.h>

#include <algorithm>
#include <cmath>

namespace lv::analysis::svg {
namespace {

constexpr int mostDecimals = 9;
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

double stepOf(const Range& range, int most) {
    return stepFrom((range.last - range.first) / most);
}

int decimalsOf(double step) {
    const double digits = -std::floor(std::log10(step) + tolerance);
    return static_cast<int>(std::clamp(digits, 0.0, static_cast<double>(mostDecimals)));
}

}  // namespace

std::vector<Tick> ticksOf(Range range, int most) {
    const double step = stepOf(range, most);
    if (step == 0) {
        return {{range.first, valueText(range.first, 0)}};
    }
    std::vector<Tick> ticks;
    const double first = std::ceil(range.first / step - tolerance);
    for (int index = 0; index <= most; ++index) {
        const double value = (first + index) * step;
        if (value > range.last + tolerance * step) {
            break;
        }
        ticks.push_back({value, valueText(value, decimalsOf(step))});
    }
    return ticks;
}

Range toTicks(Range range, int most) {
    const double step = stepOf(range, most);
    if (step == 0) {
        return range;
    }
    return {std::floor(range.first / step + tolerance) * step, std::ceil(range.last / step - tolerance) * step};
}

}  // namespace lv::analysis::svg
