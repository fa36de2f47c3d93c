#pragma once

#include <lvdata/xml/detail/bits.h>

#include <cstddef>
#include <cstdint>

namespace lv::detail {

/// Eight characters in one 64-bit register: a number is read without a branch for every digit.
class EightDigits {
public:
    static constexpr std::size_t size = 8;

    /// \param text  at least `size` characters
    explicit EightDigits(const char* text) : digits_(load(text) ^ everyByte * '0') {}

    /// How many of the first characters are digits.
    [[nodiscard]] std::size_t count() const {
        // The top bit of each byte beyond 9. A carry out of such a byte only disturbs those after it.
        const std::uint64_t others = ((digits_ + everyByte * beyondNine) | digits_) & (everyByte * topBit);
        return others == 0 ? size : static_cast<std::size_t>(trailingZeros(others)) / 8;
    }

    /// The number that the first `count` digits make; at least one.
    [[nodiscard]] std::uint32_t value(std::size_t count) const {
        return combined(digits_ << (8 * (size - count)));  // leading zeros up to eight digits
    }

private:
    friend class EqualPieces;

    static constexpr std::uint64_t everyByte = 0x0101010101010101;
    static constexpr std::uint64_t topBit = 0x80;
    static constexpr std::uint64_t beyondNine = topBit - 10;  // what makes the top bit of a byte say "more than 9"
    static constexpr std::uint64_t beyondZero = topBit - 1;

    /// The first character becomes the lowest byte, on every processor; compilers make one load of it.
    static std::uint64_t load(const char* text) {
        std::uint64_t characters = 0;
        for (std::size_t index = 0; index < size; ++index) {
            const auto character = static_cast<unsigned char>(text[index]);  // NOLINT(*-pointer-arithmetic)
            characters |= std::uint64_t{character} << (8 * index);
        }
        return characters;
    }

    /// The number of eight digits, the first in the lowest byte: they are joined to pairs, fours and eight.
    static std::uint32_t combined(std::uint64_t digits) {
        const std::uint64_t pairs = (digits * (1 + (10U << 8U)) >> 8U) & 0x00FF00FF00FF00FF;
        const std::uint64_t fours = (pairs * (1 + (100U << 16U)) >> 16U) & 0x0000FFFF0000FFFF;
        return static_cast<std::uint32_t>(fours * (1 + (std::uint64_t{10000} << 32U)) >> 32U);
    }

    std::uint64_t digits_;
};

}  // namespace lv::detail
