#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// Numbers are written in place, through a pointer that advances in a buffer of sufficient size.
// NOLINTBEGIN(*-pointer-arithmetic)

namespace lv::detail {

/// The most characters that the decimal text of an int or an unsigned int takes: ten digits and a sign.
inline constexpr std::size_t maxDecimalLength = 11;

/// "000102...99": numbers are written two digits at a time.
inline constexpr std::array<char, 200> digitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t number = 0; number < 100; ++number) {
        pairs[2 * number] = static_cast<char>('0' + number / 10);
        pairs[2 * number + 1] = static_cast<char>('0' + number % 10);
    }
    return pairs;
}();

inline char* writePair(unsigned int belowHundred, char* out) {
    std::memcpy(out, &digitPairs[std::size_t{2} * belowHundred], 2);
    return out + 2;
}

inline char* writeOneOrTwo(unsigned int belowHundred, char* out) {
    if (belowHundred >= 10) {
        return writePair(belowHundred, out);
    }
    *out = static_cast<char>('0' + belowHundred);
    return out + 1;
}

/// Up to four digits, without leading zeros.
inline char* writeFirstDigits(unsigned int belowTenThousand, char* out) {
    if (belowTenThousand < 100) {
        return writeOneOrTwo(belowTenThousand, out);
    }
    return writePair(belowTenThousand % 100, writeOneOrTwo(belowTenThousand / 100, out));
}

inline char* writeFourDigits(unsigned int belowTenThousand, char* out) {
    return writePair(belowTenThousand % 100, writePair(belowTenThousand / 100, out));
}

/// Writes the decimal text to `out`, which has room for it, and returns its end.
inline char* writeDecimal(unsigned int value, char* out) {
    constexpr unsigned int fourDigits = 10'000;
    constexpr unsigned int eightDigits = fourDigits * fourDigits;
    if (value < fourDigits) {
        return writeFirstDigits(value, out);
    }
    if (value < eightDigits) {
        return writeFourDigits(value % fourDigits, writeFirstDigits(value / fourDigits, out));
    }
    const unsigned int rest = value % eightDigits;
    out = writeOneOrTwo(value / eightDigits, out);
    return writeFourDigits(rest % fourDigits, writeFourDigits(rest / fourDigits, out));
}

inline char* writeDecimal(int value, char* out) {
    const auto magnitude = static_cast<unsigned int>(value);
    if (value >= 0) {
        return writeDecimal(magnitude, out);
    }
    *out = '-';
    return writeDecimal(0U - magnitude, out + 1);
}

/// The decimal text of `value`: short enough for a string to hold it without allocating.
template <class Number>
[[nodiscard]] std::string decimalText(Number value) {
    std::array<char, maxDecimalLength> digits{};
    return {digits.data(), writeDecimal(value, digits.data())};
}

/// The decimal texts of all values, joined by the separator.
template <class Number>
[[nodiscard]] std::string joinNumbers(const std::vector<Number>& values, std::string_view separator) {
    std::string text(values.size() * (maxDecimalLength + separator.size()), '\0');
    char* end = text.data();
    for (const Number value : values) {
        end = writeDecimal(value, end);
        end = separator.copy(end, separator.size()) + end;
    }
    text.resize(values.empty() ? 0 : static_cast<std::size_t>(end - text.data()) - separator.size());
    return text;
}

}  // namespace lv::detail

// NOLINTEND(*-pointer-arithmetic)
