#pragma once

#include <cstddef>
#include <cstdint>

namespace lv::detail {

/// Decimal digits, eight characters at a time in one 64-bit register: a number without a branch for every digit.
///
/// The first character is in the lowest byte, on every processor; compilers make one load of it.
class EightDigits {
    // NOLINTBEGIN(*-pointer-arithmetic): characters are taken and given by the eight, and callers vouch for the room.
public:
    static constexpr std::size_t size = 8;

    /// \param text  at least `size` characters
    explicit EightDigits(const char* text) {
        for (std::size_t index = 0; index < size; ++index) {
            digits_ |= std::uint64_t{static_cast<unsigned char>(text[index])} << (8 * index);
        }
        digits_ ^= everyByte * '0';  // digits become their values, everything else is more than 9
    }

    /// \param number  below 10 to the power of `size`; zeros are put in front
    explicit EightDigits(std::uint32_t number) {
        std::uint64_t digits = number / 10000U | std::uint64_t{number % 10000U} << 32U;  // two fours of digits
        const std::uint64_t hundreds = (digits * 5243U >> 19U) & 0x0000007F0000007F;     // 5243 / 2^19: divided by 100
        digits = hundreds | (digits - hundreds * 100U) << 16U;                           // four pairs
        const std::uint64_t tens = (digits * 103U >> 10U) & 0x000F000F000F000F;          // 103 / 2^10: divided by 10
        digits_ = tens | (digits - tens * 10U) << 8U;
    }

    /// Writes the characters without the zeros in front, all eight places of `out` being overwritten; returns the end.
    char* writeNumber(char* out) const {
        const std::uint64_t last = std::uint64_t{1} << (8 * (size - 1));  // 0 is written, too
        const auto zeros = static_cast<std::size_t>(__builtin_ctzll(digits_ | last)) / 8;
        const std::uint64_t characters = (digits_ >> (8 * zeros)) + everyByte * '0';
        for (std::size_t index = 0; index < size; ++index) {
            out[index] = static_cast<char>(characters >> (8 * index));
        }
        return out + (size - zeros);
    }

    // NOLINTEND(*-pointer-arithmetic)

    /// How many of the characters in front are digits.
    [[nodiscard]] std::size_t count() const {
        // The top bit of a byte beyond 9; a carry out of such a byte disturbs only those behind it.
        const std::uint64_t others = ((digits_ + everyByte * (0x80 - 10)) | digits_) & (everyByte * 0x80);
        return others == 0 ? size : static_cast<std::size_t>(__builtin_ctzll(others)) / 8;
    }

    /// The number that the first `count` digits make; at least one.
    [[nodiscard]] std::uint32_t value(std::size_t count) const {
        std::uint64_t digits = digits_ << (8 * (size - count));  // zeros in front up to eight digits
        digits = digits * 10 + (digits >> 8U);                   // pairs, in every other byte
        const std::uint64_t pairs = 0x000000FF000000FF;
        const std::uint64_t high = (digits & pairs) * (100 + (std::uint64_t{1000000} << 32U));
        const std::uint64_t low = ((digits >> 16U) & pairs) * (1 + (std::uint64_t{10000} << 32U));
        return static_cast<std::uint32_t>((high + low) >> 32U);
    }

private:
    static constexpr std::uint64_t everyByte = 0x0101010101010101;

    std::uint64_t digits_ = 0;
};

}  // namespace lv::detail
