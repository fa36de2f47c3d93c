#include <lvdata/xml/detail/EightDigits.h>
#include <lvdata/xml/detail/number_text.h>
#include <lvdata/xml/detail/pieces.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

// Numbers are written and read in place, with pointers that go on through a buffer of known size.
// NOLINTBEGIN(*-pointer-arithmetic)

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

    /// Of a text of any length.
    explicit FrontDigits(std::string_view text) : FrontDigits(text.size() < most ? padded(text).data() : text.data()) {}

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
    static std::array<char, most> padded(std::string_view text) {
        std::array<char, most> characters{};
        std::copy(text.begin(), text.end(), characters.begin());
        return characters;
    }

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

/// The same for the pieces of any length that fits, also with a minus in front, and for the last, which ends the text.
template <class Number>
Number* convertShortPieces(std::string_view& text, char separator, Number* out) {
    while (!text.empty()) {
        const bool negative = text.front() == '-';
        const FrontDigits piece(text.substr(negative ? 1 : 0));
        const std::size_t digits = piece.count();
        const std::size_t end = digits + (negative ? 1 : 0);
        if (digits == 0 || (end < text.size() && text[end] != separator)) {
            break;
        }
        const auto magnitude = static_cast<Number>(piece.value(digits));
        *out++ = negative ? Number{0} - magnitude : magnitude;
        text.remove_prefix(std::min(end + 1, text.size()));
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

/// The most characters that a number takes: one digit more than digits10, and a sign. So much room is needed to write
/// any number, too.
template <class Number>
constexpr std::size_t maxDigits = std::numeric_limits<Number>::digits10 + 2;

char* writeDecimal(unsigned int value, char* out) {
    constexpr unsigned int beyondEight = 100'000'000;
    return value < beyondEight ? EightDigits(std::uint32_t{value}).writeNumber(out)
                               : std::to_chars(out, out + std::numeric_limits<unsigned int>::digits10 + 1, value).ptr;
}

char* writeDecimal(int value, char* out) {
    const auto magnitude = static_cast<unsigned int>(value);
    if (value >= 0) {
        return writeDecimal(magnitude, out);
    }
    *out = '-';
    return writeDecimal(0U - magnitude, out + 1);
}

/// The most characters that one of the numbers takes.
template <class Number>
std::size_t greatestLength(const std::vector<Number>& values) {
    unsigned int greatest = 0;
    bool negative = false;
    for (const Number value : values) {
        const bool below = std::is_signed_v<Number> && value < 0;
        const auto bits = static_cast<unsigned int>(value);
        greatest = std::max(greatest, below ? 0U - bits : bits);
        negative |= below;
    }
    return decimalText(greatest).size() + (negative ? 1 : 0);
}

char* writeSeparator(std::string_view separator, char* out) {
    if (separator.size() == 1) {  // no call for the usual one
        *out = separator.front();
        return out + 1;
    }
    return std::copy(separator.begin(), separator.end(), out);
}

template <class Number>
void appendDecimal(std::string& text, Number value) {
    std::array<char, maxDigits<Number>> digits{};
    text.append(digits.data(), writeDecimal(value, digits.data()));
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
    const bool inNumbers = separator == "-" || (!separator.empty() && isDigit(separator.front()));
    if (separator.size() != 1 || inNumbers) {
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
    std::string text(values.size() * (greatestLength(values) + separator.size()) + EightDigits::size, '\0');
    char* at = text.data();
    for (const Number value : values) {
        at = writeSeparator(separator, writeDecimal(value, at));
    }
    text.resize(values.empty() ? 0 : static_cast<std::size_t>(at - text.data()) - separator.size());
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

// NOLINTEND(*-pointer-arithmetic)
