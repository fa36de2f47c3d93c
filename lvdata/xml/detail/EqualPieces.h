#pragma once

#include <lvdata/xml/detail/EightDigits.h>

#include <cstddef>
#include <cstdint>

namespace lv::detail {

/// Pieces of so many digits with a separator after them, recognised by one comparison each. Neighbours of equal length
/// are what makes tables fast: the next piece can be begun before the last one is understood.
class EqualPieces {
public:
    /// \param count  the digits of a piece, from 1 to `EightDigits::size - 1`
    EqualPieces(std::size_t count, char separator)
        : expected_((digitBytes(count) * '0') | at(count, static_cast<unsigned char>(separator))),
          addend_((digitBytes(count) * EightDigits::beyondNine) | at(count, EightDigits::beyondZero)),
          topBits_(digitBytes(count + 1) * EightDigits::topBit),
          shift_(8 * (EightDigits::size - count)) {}

    /// Reads the piece at `text`, which has at least `EightDigits::size` characters. False when it is another one.
    template <class Number>
    [[nodiscard]] bool read(const char* text, Number& out) const {
        const std::uint64_t characters = EightDigits::load(text) ^ expected_;
        if ((((characters + addend_) | characters) & topBits_) != 0) {
            return false;
        }
        out = static_cast<Number>(EightDigits::combined(characters << shift_));
        return true;
    }

private:
    static constexpr std::uint64_t at(std::size_t index, std::uint64_t byte) { return byte << (8 * index); }

    /// A one in each of the lowest `count` bytes.
    static constexpr std::uint64_t digitBytes(std::size_t count) {
        return EightDigits::everyByte >> (8 * (EightDigits::size - count));
    }

    std::uint64_t expected_;
    std::uint64_t addend_;
    std::uint64_t topBits_;
    std::size_t shift_;
};

}  // namespace lv::detail
