#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace lv::detail {

/// A number that is not negative, exact: 96 bits before the point and 96 after it. Rounds to any number of bits, so
/// that tests can say what every kind of processor would compute. Uses integers alone, a digit of 32 bits at a time.
class ExactNumber {
public:
    /// A value that is not negative and has no bits beyond those kept.
    explicit ExactNumber(double value) {
        int exponent = 0;
        const double fraction = std::frexp(value, &exponent);
        auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, doubleBits));
        for (int bit = exponent - doubleBits + fractionBits; mantissa != 0; ++bit, mantissa >>= 1U) {
            digits_[at(bit)] |= (mantissa & 1U) != 0 ? mask(bit) : 0U;
        }
    }

    void multiplyBy(std::uint32_t factor) {
        std::uint64_t carry = 0;
        for (std::uint32_t& digit : digits_) {
            carry += std::uint64_t{digit} * factor;
            digit = static_cast<std::uint32_t>(carry);
            carry >>= 32U;
        }
    }

    /// What is left over sets the last bit, which decides where a rounding would be a tie.
    void divideBy(std::uint32_t divisor) {
        std::uint64_t rest = 0;
        for (std::size_t index = digits_.size(); index-- > 0;) {
            rest = rest << 32U | digits_[index];
            digits_[index] = static_cast<std::uint32_t>(rest / divisor);
            rest %= divisor;
        }
        digits_[0] |= rest != 0 ? 1U : 0U;
    }

    void addHalf() { add(fractionBits - 1); }

    /// Of a number that is not less than one half.
    void subtractHalf() {
        std::uint32_t borrow = mask(fractionBits - 1);
        for (std::size_t index = at(fractionBits - 1); borrow != 0; ++index) {
            const bool isLess = digits_[index] < borrow;
            digits_[index] -= borrow;
            borrow = isLess ? 1 : 0;
        }
    }

    /// To the nearest that has so many bits from the highest one on; of two, the one whose last bit is 0.
    void roundTo(int bits) {
        const int last = highestBit() - bits + 1;
        if (last <= 0) {
            return;
        }
        const bool isHalf = isSet(last - 1);
        const bool isMore = clearBelow(last - 1);
        clearBelow(last);
        if (isHalf && (isMore || isSet(last))) {
            add(last);
        }
    }

    [[nodiscard]] bool isAtLeastHalf() const { return highestBit() >= fractionBits - 1; }

    /// The integer before the point, 64 bits of it.
    [[nodiscard]] std::uint64_t whole() const { return std::uint64_t{digits_[4]} << 32U | digits_[3]; }

    /// Of a number that was rounded to at most the bits of a double.
    [[nodiscard]] double toDouble() const {
        double value = 0;
        for (std::size_t index = 0; index < digits_.size(); ++index) {
            value += std::ldexp(digits_[index], static_cast<int>(index) * 32 - fractionBits);
        }
        return value;
    }

    static constexpr int doubleBits = 53;

private:
    static constexpr int fractionBits = 96;

    static std::size_t at(int bit) { return static_cast<std::size_t>(bit) / 32; }
    static std::uint32_t mask(int bit) { return 1U << (static_cast<unsigned int>(bit) % 32); }

    [[nodiscard]] bool isSet(int bit) const { return (digits_[at(bit)] & mask(bit)) != 0; }

    /// -1 of 0.
    [[nodiscard]] int highestBit() const {
        int bit = static_cast<int>(digits_.size()) * 32 - 1;
        while (bit >= 0 && !isSet(bit)) {
            bit -= digits_[at(bit)] == 0 ? 32 : 1;
        }
        return bit;
    }

    /// Answers whether one of them was set.
    bool clearBelow(int bit) {
        std::uint32_t cleared = digits_[at(bit)] & (mask(bit) - 1);
        digits_[at(bit)] -= cleared;
        for (std::size_t index = 0; index < at(bit); ++index) {
            cleared |= digits_[index];
            digits_[index] = 0;
        }
        return cleared != 0;
    }

    void add(int bit) {
        std::uint64_t carry = mask(bit);
        for (std::size_t index = at(bit); carry != 0; ++index) {
            carry += digits_[index];
            digits_[index] = static_cast<std::uint32_t>(carry);
            carry >>= 32U;
        }
    }

    std::array<std::uint32_t, 6> digits_{};  // the lowest first
};

}  // namespace lv::detail
