#include <lvdata/analysis/decimal.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace lv::analysis {
namespace {

constexpr std::int64_t farExponent = 1'000'000'000'000;  // beyond the length of any text
constexpr std::size_t digitsOfInt64 = 18;                // any number with so many digits fits

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// A number taken apart: its digits without the point, and how many of them stand before the point.
struct Decimal {
    bool isNegative = false;
    std::string digits;
    std::int64_t pointAfter = 0;
};

/// "-12" and the like; the value stops growing far beyond the length of any text.
std::int64_t exponentOf(std::string_view text) {
    const bool isNegative = !text.empty() && text.front() == '-';
    std::int64_t exponent = 0;
    for (const char character : text) {
        if (isDigit(character)) {
            exponent = std::min(farExponent, exponent * 10 + (character - '0'));
        }
    }
    return isNegative ? -exponent : exponent;
}

Decimal decimalOf(std::string_view text) {
    Decimal decimal;
    decimal.isNegative = !text.empty() && text.front() == '-';
    text.remove_prefix(decimal.isNegative ? 1 : 0);
    const std::size_t end = std::min(text.find_first_of("eE"), text.size());
    const std::string_view mantissa = text.substr(0, end);
    const auto point =
        static_cast<std::size_t>(std::find_if_not(mantissa.begin(), mantissa.end(), isDigit) - mantissa.begin());
    decimal.digits = mantissa.substr(0, point);
    decimal.digits += mantissa.substr(std::min(point + 1, mantissa.size()));
    decimal.pointAfter = static_cast<std::int64_t>(point) + exponentOf(text.substr(std::min(end + 1, text.size())));
    return decimal;
}

/// The integer before the point, to the nearest; null when it has too many digits for any range.
std::optional<std::int64_t> rounded(const std::string& digits, std::int64_t pointAfter) {
    const auto count = static_cast<std::int64_t>(digits.size());
    const auto first = static_cast<std::int64_t>(std::min(digits.find_first_not_of('0'), digits.size()));
    if (first == count || pointAfter < first) {  // 0, or less than a tenth
        return 0;
    }
    if (pointAfter - first > static_cast<std::int64_t>(digitsOfInt64)) {
        return std::nullopt;
    }
    std::int64_t value = 0;
    for (std::int64_t index = first; index < pointAfter; ++index) {
        value = value * 10 + (index < count ? digits[static_cast<std::size_t>(index)] - '0' : 0);
    }
    const bool isHalf = pointAfter < count && digits[static_cast<std::size_t>(pointAfter)] >= '5';
    return value + (isHalf ? 1 : 0);
}

std::size_t skipDigits(std::string_view text, std::size_t begin) {
    const std::string_view rest = text.substr(begin);
    const auto stop = std::find_if_not(rest.begin(), rest.end(), isDigit);
    return begin + static_cast<std::size_t>(stop - rest.begin());
}

/// The end of the digits and the point from `begin`; `begin` where there is no digit.
std::size_t skipMantissa(std::string_view text, std::size_t begin) {
    const std::size_t point = skipDigits(text, begin);
    const bool hasPoint = point < text.size() && text[point] == '.';
    const std::size_t end = hasPoint ? skipDigits(text, point + 1) : point;
    return end - begin > (hasPoint ? 1U : 0U) ? end : begin;
}

/// Whether the text is empty, or an exponent to its end.
bool isExponent(std::string_view text) {
    if (text.empty() || (text.front() != 'e' && text.front() != 'E')) {
        return text.empty();
    }
    const std::size_t begin = text.size() > 1 && (text[1] == '-' || text[1] == '+') ? 2 : 1;
    return begin < text.size() && skipDigits(text, begin) == text.size();
}

bool isDecimal(std::string_view text) {
    const std::size_t begin = !text.empty() && text.front() == '-' ? 1 : 0;
    const std::size_t end = skipMantissa(text, begin);
    return end > begin && isExponent(text.substr(end));
}

}  // namespace

std::size_t decimalsOf(std::uint32_t factor) {
    std::size_t decimals = 0;
    while (factor >= 10 && factor % 10 == 0) {
        factor /= 10;
        ++decimals;
    }
    return factor == 1 ? decimals : 0;
}

std::string_view naturalText(std::string_view stored, std::size_t decimals, DecimalBuffer& buffer) {
    if (decimals == 0 || stored.size() + decimals + 2 > buffer.size()) {
        return stored;
    }
    char* out = buffer.data();
    if (stored.front() == '-') {
        *out++ = '-';
        stored.remove_prefix(1);
    }
    const std::size_t whole = stored.size() > decimals ? stored.size() - decimals : 0;
    std::memcpy(out, whole == 0 ? "0" : stored.data(), std::max<std::size_t>(whole, 1));
    out += std::max<std::size_t>(whole, 1);
    const std::string_view digits = stored.substr(whole);
    const std::size_t last = digits.find_last_not_of('0');
    if (last != std::string_view::npos) {
        *out++ = '.';
        const std::size_t zeros = decimals - digits.size();
        std::memset(out, '0', zeros);
        std::memcpy(out + zeros, digits.data(), last + 1);
        out += zeros + last + 1;
    }
    return {buffer.data(), static_cast<std::size_t>(out - buffer.data())};
}

std::optional<std::int64_t> storedNumber(std::string_view natural, std::size_t decimals, StoredRange range) {
    const Decimal decimal = decimalOf(natural);
    const auto magnitude = rounded(decimal.digits, decimal.pointAfter + static_cast<std::int64_t>(decimals));
    if (!magnitude) {
        return std::nullopt;
    }
    const std::int64_t value = decimal.isNegative ? -*magnitude : *magnitude;
    return value < range.least || value > range.greatest ? std::nullopt : std::optional<std::int64_t>(value);
}

// Not std::from_chars, which libc++ 14 lacks for double. strtod reads the point of the locale, so it is given none.
std::optional<double> decimalNumber(std::string_view text) {
    if (!isDecimal(text)) {
        return std::nullopt;
    }
    const Decimal decimal = decimalOf(text);
    const std::int64_t exponent = decimal.pointAfter - static_cast<std::int64_t>(decimal.digits.size());
    const std::string plain = (decimal.isNegative ? "-" : "") + decimal.digits + "e" + std::to_string(exponent);
    const double number = std::strtod(plain.c_str(), nullptr);
    const bool isZero = decimal.digits.find_first_not_of('0') == std::string::npos;
    const bool isInRange = std::isfinite(number) && (isZero || number != 0);
    return isInRange ? std::optional(number) : std::nullopt;
}

}  // namespace lv::analysis
