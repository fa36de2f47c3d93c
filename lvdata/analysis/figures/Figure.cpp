#include <lvdata/analysis/figures/Figure.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <iterator>

namespace lv::analysis {

std::string Figure::text(int decimals) const {
    return value ? fixedText(*value, decimals) : "n/a (" + reason + ')';
}

std::string fixedText(double value, int decimals) {
    std::array<char, 400> text{};  // room for the greatest double
    char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    const auto written = std::to_chars(text.data(), end, value, std::chars_format::fixed, decimals);
    std::string result(text.data(), written.ptr);
    const bool isZero = result.find_first_not_of("-0.") == std::string::npos;
    return isZero && result.front() == '-' ? result.substr(1) : result;
}

}  // namespace lv::analysis
