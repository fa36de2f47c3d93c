#include <lvdata/xml/detail/number_text.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>

namespace lv::detail {
namespace {

// No <cctype>: its answers depend on the locale, and bytes above 127 are outside its domain.
constexpr bool isSpace(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

struct Scanned {
    bool negative = false;
    std::uint64_t magnitude = 0;  // stops growing beyond every 32-bit number
};

std::uint64_t scanDigits(std::string_view text) {
    constexpr std::uint64_t beyondRange = std::uint64_t{1} << 33U;
    std::uint64_t magnitude = 0;
    for (const char character : text) {
        if (!isDigit(character)) {
            break;
        }
        if (magnitude < beyondRange) {
            magnitude = magnitude * 10U + static_cast<std::uint64_t>(character - '0');
        }
    }
    return magnitude;
}

Scanned scan(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    Scanned result;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        result.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    result.magnitude = scanDigits(text);
    return result;
}

template <class Number>
void appendDecimal(std::string& text, Number value) {
    std::array<char, std::numeric_limits<Number>::digits10 + 2> digits{};  // one digit more than digits10, and a sign
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), end);
}

}  // namespace

template <>
int parseNumber<int>(std::string_view text) {
    using Limits = std::numeric_limits<int>;
    constexpr auto greatest = static_cast<std::uint64_t>(Limits::max());
    const Scanned number = scan(text);
    if (number.negative) {
        return number.magnitude > greatest ? Limits::min() : -static_cast<int>(number.magnitude);
    }
    return number.magnitude > greatest ? Limits::max() : static_cast<int>(number.magnitude);
}

template <>
unsigned int parseNumber<unsigned int>(std::string_view text) {
    constexpr auto greatest = std::numeric_limits<unsigned int>::max();
    const Scanned number = scan(text);
    if (number.magnitude > greatest) {
        return greatest;
    }
    const auto magnitude = static_cast<unsigned int>(number.magnitude);
    return number.negative ? 0U - magnitude : magnitude;
}

void appendNumber(std::string& text, int value) {
    appendDecimal(text, value);
}

void appendNumber(std::string& text, unsigned int value) {
    appendDecimal(text, value);
}

}  // namespace lv::detail
