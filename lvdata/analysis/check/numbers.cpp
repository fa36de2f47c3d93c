#include <lvdata/analysis/check/numbers.h>

#include <cstdint>

namespace lv::analysis {
namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view whiteSpace = " \t\n\v\f\r";

std::string_view without(std::string_view text, std::string_view leading) {
    const std::size_t first = text.find_first_not_of(leading);
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// The value of decimal digits, or a number beyond all limits.
std::uint64_t magnitudeOf(std::string_view number) {
    constexpr std::uint64_t beyond = std::uint64_t{1} << 33U;
    std::uint64_t magnitude = 0;
    for (const char digit : number) {
        magnitude = magnitude * 10 + static_cast<std::uint64_t>(digit - '0');
        if (magnitude >= beyond) {
            return beyond;
        }
    }
    return magnitude;
}

bool isInRange(std::uint64_t magnitude, bool isNegative, bool isSigned) {
    const std::uint64_t limit = !isSigned ? UINT32_MAX : isNegative ? std::uint64_t{1} << 31U : INT32_MAX;
    return magnitude <= limit;
}

bool isCanonical(std::string_view text) {
    const std::string_view number = text.substr(text.front() == '-' ? 1 : 0);
    const bool isZero = number == "0";
    return number.find_first_not_of(digits) == std::string_view::npos && (isZero ? text == "0" : number.front() != '0');
}

}  // namespace

NumberText judgeNumber(std::string_view text, bool isSigned) {
    if (text.empty()) {
        return NumberText::empty;
    }
    std::string_view rest = without(text, whiteSpace);
    const bool isNegative = !rest.empty() && rest.front() == '-';
    const bool hasSign = isNegative || (!rest.empty() && rest.front() == '+');
    rest.remove_prefix(hasSign ? 1 : 0);
    const std::string_view number = rest.substr(0, rest.find_first_not_of(digits));
    if (number.empty()) {
        return NumberText::noNumber;
    }
    const std::uint64_t magnitude = magnitudeOf(number);
    if (!isInRange(magnitude, isNegative, isSigned)) {
        return NumberText::outOfRange;
    }
    if (isNegative && !isSigned && magnitude > 0) {
        return NumberText::negative;
    }
    rest.remove_prefix(number.size());
    if (!without(rest, whiteSpace).empty()) {
        return NumberText::restIgnored;
    }
    return isCanonical(text) ? NumberText::canonical : NumberText::otherSpelling;
}

}  // namespace lv::analysis
