#include <lvdata/xml/detail/EightDigits.h>
#include <lvdata/xml/detail/number_text.h>
#include <lvdata/xml/detail/pieces.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
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

/// Up to nine digits in front of a text, which fit into a number of any type without a look at its range.
class FrontDigits {
public:
    static constexpr std::size_t most = EightDigits::size + 1;

    /// \param text  at least `most` characters
    explicit FrontDigits(const char* text) : first_(text), ninth_(text[EightDigits::size]) {}

    [[nodiscard]] std::size_t count() const {
        const std::size_t count = first_.count();
        return count == EightDigits::size && isDigit(ninth_) ? most : count;
    }

    /// The number that the first `count` digits make; at least one.
    [[nodiscard]] std::uint32_t value(std::size_t count) const {
        return count == most ? first_.value(EightDigits::size) * 10 + static_cast<std::uint32_t>(ninth_ - '0')
                             : first_.value(count);
    }

private:
    EightDigits first_;
    char ninth_;
};

/// Converts the pieces of `digits` digits at the front of `text`, each with its separator behind it, and nothing but
/// digits in them; steps over them. That neighbours are equally long is what makes tables fast: the next piece can be
/// begun before the last is understood.
template <class Number>
Number* convertRun(std::string_view& text, char separator, std::size_t digits, Number* out) {
    while (text.size() > FrontDigits::most && text[digits] == separator) {
        const FrontDigits piece(text.data());
        if (piece.count() != digits) {
            break;
        }
        *out++ = static_cast<Number>(piece.value(digits));
        text.remove_prefix(digits + 1);
    }
    return out;
}

/// The same for the pieces of any length that fits.
template <class Number>
Number* convertShortPieces(std::string_view& text, char separator, Number* out) {
    while (text.size() > FrontDigits::most) {
        const std::size_t digits = FrontDigits(text.data()).count();
        if (digits == 0 || text[digits] != separator) {
            break;
        }
        out = convertRun(text, separator, digits, out);
    }
    return out;
}

/// Writes the numbers of all pieces behind each other from `out` on, and returns the end of them.
template <class Number>
Number* convertPieces(std::string_view text, char separator, Number* out) {
    while (!text.empty()) {
        out = convertShortPieces(text, separator, out);
        const std::string_view piece = text.substr(0, text.find(separator));
        if (!piece.empty()) {
            *out++ = parseNumber<Number>(piece);
        }
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
    }
    return out;
}

template <class Number>
void convertPieces(std::string_view text, std::string_view separator, std::vector<Number>& out) {
    out.clear();
    forEachPiece(text, separator, [&out](std::string_view piece) {
        if (!piece.empty()) {
            out.push_back(parseNumber<Number>(piece));
        }
    });
}

/// The most characters that a number takes: one digit more than digits10, and a sign.
template <class Number>
constexpr std::size_t maxDigits = std::numeric_limits<Number>::digits10 + 2;

template <class Number>
void appendDecimal(std::string& text, Number value) {
    std::array<char, maxDigits<Number>> digits{};
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

template <class Number>
void parseNumbers(std::string_view text, std::string_view separator, std::vector<Number>& out) {
    if (separator.size() != 1 || isDigit(separator.front())) {  // runs of digits must end at a separator
        convertPieces(text, separator, out);
        return;
    }
    const auto separators = std::count(text.begin(), text.end(), separator.front());
    out.resize(static_cast<std::size_t>(separators) + 1);
    const Number* const end = convertPieces(text, separator.front(), out.data());
    out.resize(static_cast<std::size_t>(end - out.data()));
}

template void parseNumbers(std::string_view text, std::string_view separator, std::vector<int>& out);
template void parseNumbers(std::string_view text, std::string_view separator, std::vector<unsigned int>& out);

template <class Number>
std::string joinNumbers(const std::vector<Number>& values, std::string_view separator) {
    std::string text(values.size() * (maxDigits<Number> + separator.size()), '\0');
    char* at = text.data();
    char* const end = at + text.size();
    for (const Number& value : values) {
        if (&value != values.data()) {
            at = std::copy(separator.begin(), separator.end(), at);
        }
        at = std::to_chars(at, end, value).ptr;
    }
    text.resize(static_cast<std::size_t>(at - text.data()));
    return text;
}

template std::string joinNumbers(const std::vector<int>& values, std::string_view separator);
template std::string joinNumbers(const std::vector<unsigned int>& values, std::string_view separator);

void appendNumber(std::string& text, int value) {
    appendDecimal(text, value);
}

void appendNumber(std::string& text, unsigned int value) {
    appendDecimal(text, value);
}

}  // namespace lv::detail
