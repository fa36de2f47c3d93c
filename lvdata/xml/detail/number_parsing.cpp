#include <lvdata/xml/detail/EightDigits.h>
#include <lvdata/xml/detail/EqualPieces.h>
#include <lvdata/xml/detail/for_each_piece.h>
#include <lvdata/xml/detail/number_parsing.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

// Numbers are read in place, through pointers that advance in a text of known size.
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
    bool negative;
    std::uint64_t magnitude;  // stops growing beyond every 32-bit number
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
    const bool negative = !text.empty() && text.front() == '-';
    const bool hasSign = negative || (!text.empty() && text.front() == '+');
    return {negative, scanDigits(text.substr(hasSign ? 1 : 0))};
}

/// Reads the pieces of a text of plain numbers one after the other.
template <class Number>
class PlainPieces {
public:
    /// So many characters from the beginning of a piece are looked at: a sign, nine digits, a separator.
    static constexpr std::size_t reach = 11;

    /// \param first  where the first piece begins
    /// \param limit  pieces are read that begin before it; `reach` characters can be read from each of them
    /// \param end    where the last piece ends
    PlainPieces(const char* first, const char* limit, const char* end, char separator)
        : at_(first),
          limit_(limit),
          end_(end),
          separator_(separator) {}

    /// Of a text after which nothing can be read, so that the last pieces are left over.
    PlainPieces(std::string_view text, char separator)
        : PlainPieces(text.data(), text.data() + text.size() - std::min(text.size(), reach - 1),
                      text.data() + text.size(), separator) {}

    [[nodiscard]] bool atLimit() const { return at_ >= limit_; }

    /// What is left up to the end.
    [[nodiscard]] std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

    /// Writes numbers from `out` on until `stop` or the limit is reached. Returns where they end; null when a piece is
    /// not a plain number, or `out` is null.
    Number* read(Number* out, Number* stop) {
        while (out != nullptr && out != stop && at_ < limit_) {
            out = *at_ == separator_ ? skipEmptyPiece(out) : readPieces(out, stop);
        }
        return out;
    }

private:
    Number* skipEmptyPiece(Number* out) {
        ++at_;
        return out;
    }

    /// One piece, and those after it that have as many digits.
    Number* readPieces(Number* out, Number* stop) {
        const bool negative = *at_ == '-';
        const char* const digits = at_ + (negative ? 1 : 0);
        const EightDigits first(digits);
        const std::size_t count = first.count();
        if (count == EightDigits::size) {
            return readNineDigits(out, stop, negative);
        }
        if (count == 0 || digits[count] != separator_) {
            return readLongPiece(out);
        }
        *out = withSign(negative, first.value(count));
        at_ = digits + count + 1;
        return readEqualPieces(count, out + 1, stop);
    }

    /// A piece that begins with eight digits, and has no more than nine.
    Number* readNineDigits(Number* out, Number* stop, bool negative) {
        const char* const digits = at_ + (negative ? 1 : 0);
        const std::size_t count = EightDigits::size + (isDigit(digits[EightDigits::size]) ? 1 : 0);
        if (digits[count] != separator_) {
            return readLongPiece(out);
        }
        *out = withSign(negative, nineDigits(digits, EightDigits(digits), count));
        at_ = digits + count + 1;
        return readEqualNineDigits(count, out + 1, stop);
    }

    static std::uint32_t nineDigits(const char* digits, const EightDigits& first, std::size_t count) {
        const std::uint32_t number = first.value(EightDigits::size);
        return count == EightDigits::size ? number : number * 10 + static_cast<std::uint32_t>(digits[count - 1] - '0');
    }

    Number* readEqualNineDigits(std::size_t count, Number* out, Number* stop) {
        const char* at = at_;
        while (out != stop && at < limit_ && at[count] == separator_ && isDigit(at[count - 1])) {
            const EightDigits first(at);
            if (first.count() != EightDigits::size) {
                break;
            }
            *out++ = static_cast<Number>(nineDigits(at, first, count));
            at += count + 1;
        }
        at_ = at;
        return out;
    }

    static Number withSign(bool negative, std::uint32_t magnitude) {
        return static_cast<Number>(negative ? 0U - magnitude : magnitude);
    }

    Number* readEqualPieces(std::size_t count, Number* out, Number* stop) {
        const EqualPieces pieces(count, separator_);
        const auto step = static_cast<std::ptrdiff_t>(count) + 1;
        const char* at = at_;
        // Four at a time while they last, which spares most of the looks at both limits.
        while (stop - out >= 4 && limit_ - at > 3 * step && pieces.read(at, out[0]) && pieces.read(at + step, out[1]) &&
               pieces.read(at + 2 * step, out[2]) && pieces.read(at + 3 * step, out[3])) {
            out += 4;
            at += 4 * step;
        }
        while (out != stop && at < limit_ && pieces.read(at, *out)) {
            ++out;
            at += step;
        }
        at_ = at;
        return out;
    }

    /// One piece of any length.
    Number* readLongPiece(Number* out) {
        const char* const pieceEnd = std::find(at_, end_, separator_);
        const char* const digits = at_ + (*at_ == '-' ? 1 : 0);
        if (digits == pieceEnd || !std::all_of(digits, pieceEnd, isDigit)) {
            return nullptr;
        }
        *out = parseNumber<Number>({at_, static_cast<std::size_t>(pieceEnd - at_)});
        at_ = pieceEnd + (pieceEnd == end_ ? 0 : 1);
        return out + 1;
    }

    const char* at_;
    const char* limit_;
    const char* end_;
    char separator_;
};

/// The last pieces, which are too near to the end to be looked at eight characters at a time: in a copy with room and,
/// like every other piece, with a separator after them.
template <class Number>
Number* readLastPieces(std::string_view text, char separator, Number* out) {
    constexpr std::size_t reach = PlainPieces<Number>::reach;
    std::array<char, 2 * reach> copy{};
    char* const end = std::copy(text.begin(), text.end(), copy.data());
    *end = separator;
    return PlainPieces<Number>(copy.data(), end, end, separator).read(out, nullptr);
}

std::size_t mostPieces(std::string_view text, char separator) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), separator)) + 1;
}

template <class Number>
void parsePieces(std::string_view text, std::string_view separator, std::vector<Number>& out) {
    out.clear();
    forEachPiece(text, separator, [&out](std::string_view piece) {
        if (!piece.empty()) {
            out.push_back(parseNumber<Number>(piece));
        }
    });
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
bool parsePlainNumbers(std::string_view text, char separator, std::vector<Number>& out) {
    constexpr std::size_t atATime = 1024;                              // the tables of all records at once
    std::array<Number, atATime + PlainPieces<Number>::reach> numbers;  // NOLINT(*-member-init): written before read
    PlainPieces<Number> pieces(text, separator);
    for (bool isFirst = true;; isFirst = false) {
        Number* end = pieces.read(numbers.data(), numbers.data() + atATime);
        const bool isLast = pieces.atLimit();
        if (isLast) {
            end = readLastPieces(pieces.rest(), separator, end);
        }
        if (end == nullptr) {
            return false;
        }
        if (isFirst) {
            out.clear();
            out.reserve(isLast ? 0 : atATime + mostPieces(pieces.rest(), separator));
        }
        out.insert(out.end(), numbers.data(), end);
        if (isLast) {
            return true;
        }
    }
}

template bool parsePlainNumbers(std::string_view text, char separator, std::vector<int>& out);
template bool parsePlainNumbers(std::string_view text, char separator, std::vector<unsigned int>& out);

template <class Number>
void parseNumbers(std::string_view text, std::string_view separator, std::vector<Number>& out) {
    const bool separates = separator.size() == 1 && !isDigit(separator.front());
    if (!separates || !parsePlainNumbers(text, separator.front(), out)) {
        parsePieces(text, separator, out);
    }
}

template void parseNumbers(std::string_view text, std::string_view separator, std::vector<int>& out);
template void parseNumbers(std::string_view text, std::string_view separator, std::vector<unsigned int>& out);

}  // namespace lv::detail

// NOLINTEND(*-pointer-arithmetic)
