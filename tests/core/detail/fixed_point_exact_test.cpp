#include <tests/core/detail/ExactNumber.h>

#include <lvdata/core/detail/fixed_point.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// The stored numbers, and the values that come back, against computations that are exact. No processor's own arithmetic
// takes part, so that the tests say the same everywhere.

namespace lv::detail {
namespace {

/// How a processor rounds the product and the sum: to so many bits, one after the other.
struct Processor {
    std::string name;
    std::vector<int> product;
    std::vector<int> sum;
};

const Processor ieee = {"IEEE 754 doubles", {53}, {53}};

/// What others would compute. Each of them differs from doubles for some values.
const std::vector<Processor> others = {
    {"fused multiply-add", {}, {53}},
    {"x87, all in registers", {64}, {64}},
    {"x87, each result stored as a double", {64, 53}, {64, 53}},
    {"x87, the product alone stored as a double", {64, 53}, {64}},
};

constexpr int rounds = 6000;
constexpr std::uint32_t factors[] = {100, 255, 10000, 65535, 1000000, 16777215, 1000000000};

std::uint32_t storedBy(const Processor& processor, double value, std::uint32_t factor) {
    ExactNumber number(std::fabs(value));
    number.multiplyBy(factor);
    for (const int bits : processor.product) {
        number.roundTo(bits);
    }
    if (value < 0 && !number.isAtLeastHalf()) {
        return 0;
    }
    value < 0 ? number.subtractHalf() : number.addHalf();
    for (const int bits : processor.sum) {
        number.roundTo(bits);
    }
    const auto stored = static_cast<std::uint32_t>(number.whole());
    return value < 0 ? 0U - stored : stored;
}

std::uint64_t next(std::uint64_t& state) {
    state = state * 6364136223846793005U + 1442695040888963407U;  // Knuth's MMIX
    return state >> 12U;
}

/// Small and large ones alike.
std::uint32_t anyNumber(std::uint64_t& state) {
    return static_cast<std::uint32_t>((next(state) & 0xFFFFFFFFU) >> next(state) % 32);
}

/// The three doubles next to half a step, of either sign.
std::vector<double> valuesNearHalf(std::uint64_t& state, std::uint32_t factor) {
    ExactNumber half(2.0 * (anyNumber(state) / 2) + 1.0);
    half.divideBy(2 * factor);
    half.roundTo(ExactNumber::doubleBits);
    const double value = half.toDouble() * (next(state) % 2 == 0 ? 1 : -1);
    return {std::nextafter(value, 0.0), value, std::nextafter(value, 2 * value)};
}

TEST(ToFixed, IsWhatExactComputationGives) {
    std::uint64_t state = 1;
    std::map<std::string, int> differing;
    for (int round = 0; round < rounds; ++round) {
        for (const std::uint32_t factor : factors) {
            for (const double value : valuesNearHalf(state, factor)) {
                const std::uint32_t expected = storedBy(ieee, value, factor);
                ASSERT_EQ(scaledBits(value, factor), expected) << value << " * " << factor;
                for (const Processor& other : others) {
                    differing[other.name] += storedBy(other, value, factor) != expected ? 1 : 0;
                }
            }
        }
    }
    for (const Processor& other : others) {
        EXPECT_GT(differing[other.name], 0) << "no value tells them apart: " << other.name;
    }
}

TEST(NearestStep, IsWhatExactComputationGives) {
    std::uint64_t state = 1;
    for (int round = 0; round < rounds; ++round) {
        for (const std::uint32_t factor : factors) {
            for (const double value : valuesNearHalf(state, factor)) {
                ExactNumber product(std::fabs(value));
                product.multiplyBy(factor);
                product.roundTo(ExactNumber::doubleBits);
                product.addHalf();
                const auto steps = static_cast<std::int64_t>(product.whole());
                ASSERT_EQ(nearestStep(value, factor), value < 0 ? -steps : steps) << value << " * " << factor;
            }
        }
    }
}

/// The quotient, rounded to so many bits, one after the other.
double quotientOf(std::uint32_t stored, std::uint32_t factor, const std::vector<int>& roundings) {
    ExactNumber number(stored);
    number.divideBy(factor);
    for (const int bits : roundings) {
        number.roundTo(bits);
    }
    return number.toDouble();
}

TEST(FromFixed, IsTheDoubleNextToTheExactQuotient) {
    std::uint64_t state = 1;
    int roundedTwice = 0;
    for (int round = 0; round < rounds; ++round) {
        for (const std::uint32_t factor : factors) {
            const std::uint32_t stored = anyNumber(state);
            const double expected = quotientOf(stored, factor, {53});
            ASSERT_EQ(from_fixed(stored, factor), expected) << stored << " / " << factor;
            ASSERT_EQ(quotient(stored, factor), expected) << stored << " / " << factor;
            const auto asSigned = static_cast<int>(stored / 2);
            ASSERT_EQ(from_fixed(-asSigned, factor), -quotientOf(stored / 2, factor, {53})) << -asSigned;
            roundedTwice += quotientOf(stored, factor, {64, 53}) != expected ? 1 : 0;
        }
    }
    EXPECT_GT(roundedTwice, 0) << "no number tells x87 apart";
}

}  // namespace
}  // namespace lv::detail
