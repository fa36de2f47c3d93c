#include <lvdata/core/detail/fixed_point.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

using DoubleLimits = std::numeric_limits<double>;

constexpr double two31 = 2147483648.0;
constexpr double two32 = 4294967296.0;
constexpr double two52 = 4503599627370496.0;
constexpr double two53 = 9007199254740992.0;
constexpr double two63 = 9223372036854775808.0;

unsigned int unsignedOf(double value, double factor) {
    return to_fixed<unsigned int>(value, factor);
}

int signedOf(double value, double factor) {
    return to_fixed<int>(value, factor);
}

TEST(ToFixed, RoundsByAddingOneHalfAndTruncating) {
    EXPECT_EQ(unsignedOf(1.0000004, 1e6), 1000000U);
    EXPECT_EQ(unsignedOf(1.0000005, 1e6), 1000001U);
    EXPECT_EQ(unsignedOf(1.2, 100.0), 120U);
    EXPECT_EQ(unsignedOf(0.5, 255.0), 128U);
    EXPECT_EQ(unsignedOf(1.2, 255.0), 306U);
    EXPECT_EQ(unsignedOf(1.5, 255.0), 383U);
    EXPECT_EQ(unsignedOf(0.5, 1e9), 500000000U);
    EXPECT_EQ(unsignedOf(95.047, 1e6), 95047000U);
    EXPECT_EQ(signedOf(0.0000004, 1e6), 0);
    EXPECT_EQ(signedOf(0.0000005, 1e6), 1);
    EXPECT_EQ(signedOf(0.3, 1e6), 300000);
}

/// Halves that wider registers, or a product that is not rounded, get on the wrong side.
TEST(ToFixed, ProductAndSumAreRoundedSeparatelyOnEveryProcessor) {
    EXPECT_EQ(unsignedOf(0.015, 100.0), 2U);
    EXPECT_EQ(unsignedOf(0.145, 100.0), 14U);
    EXPECT_EQ(unsignedOf(0.285, 100.0), 28U);
    EXPECT_EQ(unsignedOf(0.0000015, 1e6), 2U);
    EXPECT_EQ(signedOf(-0.025, 100.0), -2);
    EXPECT_EQ(unsignedOf(0x1.fffffffffffffp-2, 1.0), 1U) << "the sum is rounded, too";
    EXPECT_EQ(unsignedOf(two52 + 1, 1.0), 2U) << "to even";
    EXPECT_EQ(unsignedOf(two52 + 2, 1.0), 2U);
    EXPECT_EQ(signedOf(-(two52 + 1), 1.0), -0) << "to even";
}

/// Products next to a power of two, where a rounding carries into a further bit.
TEST(ToFixed, ConvertsPowersOfTwoExactly) {
    for (const double factor : {3.0, 255.0, 65535.0, 1e6, 16777215.0, 1e9}) {
        for (int power = 0; power < 52; ++power) {
            const double value = std::ldexp(1.0, power) / factor;
            EXPECT_EQ(unsignedOf(value, factor), power < 32 ? 1U << power : 0U) << power << ' ' << factor;
        }
        EXPECT_EQ(unsignedOf(two63 / factor, factor), 0U);
        EXPECT_EQ(unsignedOf(std::nextafter(two63 / factor, two63), factor), 0U);
    }
}

/// The next of a sequence of doubles that lie next to a half of a step, on either side. Made of integers, so that it is
/// the same on every processor.
double sample(std::uint64_t& state, std::uint32_t factor) {
    state = state * 6364136223846793005U + 1442695040888963407U;  // Knuth's MMIX
    const std::uint64_t halfSteps = 2 * (state >> (44 + state % 18)) + 1;
    const std::uint64_t mantissa = (halfSteps << 42U) / (2 * std::uint64_t{factor}) + (state >> 43U) % 2;
    const double value = std::ldexp(static_cast<double>(mantissa), -42);
    return (state >> 42U) % 2 == 0 ? value : -value;
}

/// The same number on every processor: what x86-64 stores with SSE2, by its own multiplication and addition.
TEST(ToFixed, StoresTheSameOnEveryProcessor) {
    std::uint64_t state = 1;
    std::uint64_t sum = 0;
    for (int round = 0; round < 100000; ++round) {
        for (const std::uint32_t factor : {100U, 255U, 10000U, 65535U, 1000000U, 16777215U, 1000000000U}) {
            const double value = sample(state, factor);
            const std::uint32_t stored = scaledBits(value, factor);
#if defined(__SSE2__) && !defined(__FMA__)
            const double product = value * factor;
            ASSERT_EQ(stored, static_cast<std::uint32_t>(static_cast<std::int64_t>(product + 0.5))) << value;
#endif
            sum = sum * 31 + stored;
        }
    }
    EXPECT_EQ(sum, 3839846106589336380U);
}

TEST(ToFixedUnsigned, NegativeValuesGiveZero) {
    for (const double value : {-0.2, -0.0000001, -1.0, -two32, -two63, -1e300, -DoubleLimits::denorm_min()}) {
        EXPECT_EQ(unsignedOf(value, 1e6), 0U) << value;
    }
}

TEST(ToFixedSigned, NegativeValuesAreTruncatedTowardZeroAfterAddingOneHalf) {
    EXPECT_EQ(signedOf(-0.3, 1e6), -299999);
    EXPECT_EQ(signedOf(-1.0, 1e6), -999999);
    EXPECT_EQ(signedOf(-0.7, 1e6), -699999);
    EXPECT_EQ(signedOf(-0.0000012, 1e6), 0);
    EXPECT_EQ(signedOf(-0.0000016, 1e6), -1);
    EXPECT_EQ(signedOf(-2.0, 1.0), -1);
}

TEST(ToFixed, TheSmallestValuesGiveZero) {
    for (const double value : {DoubleLimits::denorm_min(), DoubleLimits::min(), 1e-300, 1e-30, 1e-20, 1e-10}) {
        EXPECT_EQ(unsignedOf(value, 1e6), 0U) << value;
        EXPECT_EQ(signedOf(value, 1e9), 0) << value;
        EXPECT_EQ(signedOf(-value, 1e9), 0) << value;
    }
}

TEST(ToFixed, BothZerosGiveZero) {
    for (const double zero : {0.0, -0.0}) {
        EXPECT_EQ(unsignedOf(zero, 1e6), 0U);
        EXPECT_EQ(signedOf(zero, 1e6), 0);
    }
}

TEST(ToFixed, ValuesBeyond64BitsGiveZero) {
    const double infinity = DoubleLimits::infinity();
    for (const double value : {DoubleLimits::quiet_NaN(), -DoubleLimits::quiet_NaN(), infinity, -infinity,
                               DoubleLimits::max(), DoubleLimits::lowest(), 1e13, -1e13, 1e300, -1e300}) {
        EXPECT_EQ(unsignedOf(value, 1e6), 0U) << value;
        EXPECT_EQ(signedOf(value, 1e6), 0) << value;
    }
}

TEST(ToFixed, TheGreatestValueWithin64BitsIsConverted) {
    const double below63 = std::nextafter(two63, 0.0);  // 2^63 - 1024
    EXPECT_EQ(unsignedOf(below63, 1.0), 4294966272U);
    EXPECT_EQ(signedOf(below63, 1.0), -1024);
    EXPECT_EQ(signedOf(-below63, 1.0), 1024);
    EXPECT_EQ(unsignedOf(two63, 1.0), 0U);
    EXPECT_EQ(unsignedOf(std::nextafter(two63, two63 * 2), 1.0), 0U);
    EXPECT_EQ(signedOf(-two63, 1.0), 0);
}

TEST(ToFixed, ValuesWhoseProductExceeds64BitsGiveZero) {
    EXPECT_EQ(unsignedOf(two63 / 1e6 * 1.01, 1e6), 0U);
    EXPECT_EQ(signedOf(-two63 / 1e6 * 1.01, 1e6), 0);
    EXPECT_EQ(unsignedOf(1e308, 1e6), 0U);  // the product is infinite
}

TEST(ToFixedUnsigned, Beyond32BitsTheLow32BitsAreKept) {
    EXPECT_EQ(unsignedOf(4294.967295, 1e6), 4294967295U);
    EXPECT_EQ(unsignedOf(4294.967296, 1e6), 0U);
    EXPECT_EQ(unsignedOf(4295.0, 1e6), 32704U);
    EXPECT_EQ(unsignedOf(42949672.95, 100.0), 4294967295U);
    EXPECT_EQ(unsignedOf(42949672.97, 100.0), 1U);
    EXPECT_EQ(unsignedOf(4.294967297, 1e9), 1U);
    EXPECT_EQ(unsignedOf(two31, 1.0), 2147483648U);
    EXPECT_EQ(unsignedOf(two32 - 1, 1.0), 4294967295U);
    EXPECT_EQ(unsignedOf(two32 - 0.5, 1.0), 0U);
    EXPECT_EQ(unsignedOf(two32, 1.0), 0U);
    EXPECT_EQ(unsignedOf(two32 + 1, 1.0), 1U);
    EXPECT_EQ(unsignedOf(two32 * 5 + 7, 1.0), 7U);
}

TEST(ToFixedSigned, Beyond32BitsTheLow32BitsAreReadAsSigned) {
    EXPECT_EQ(signedOf(two31 - 1, 1.0), 2147483647);
    EXPECT_EQ(signedOf(two31, 1.0), std::numeric_limits<int>::min());
    EXPECT_EQ(signedOf(two31 + 1, 1.0), -2147483647);
    EXPECT_EQ(signedOf(two32 - 1, 1.0), -1);
    EXPECT_EQ(signedOf(two32 + 3, 1.0), 3);
    EXPECT_EQ(signedOf(-two31 - 0.5, 1.0), std::numeric_limits<int>::min());
    EXPECT_EQ(signedOf(-two31 - 1.5, 1.0), 2147483647);
    EXPECT_EQ(signedOf(-two32 - 3.5, 1.0), -3);
    EXPECT_EQ(signedOf(2147.483648, 1e6), std::numeric_limits<int>::min());
}

TEST(ToFixed, NearTheEndOfExactDoublesTheSumIsRounded) {
    EXPECT_EQ(unsignedOf(two52, 1.0), 0U);
    EXPECT_EQ(unsignedOf(two52 + 1, 1.0), 2U);  // 2^52 + 1.5 is a tie, and goes to the even neighbour
    EXPECT_EQ(unsignedOf(two53 - 1, 1.0), 0U);
    EXPECT_EQ(unsignedOf(two53, 1.0), 0U);
    EXPECT_EQ(unsignedOf(two53 + 2, 1.0), 2U);
    EXPECT_EQ(signedOf(-two53 - 2, 1.0), -2);
}

TEST(ToFixed, TheProductIsRoundedBeforeTheSum) {
    // Rounded only once, as a fused multiply-add does, each of these gives the neighbouring integer.
    EXPECT_EQ(unsignedOf(0.0049999999999999992, 100.0), 1U);
    EXPECT_EQ(unsignedOf(4.9999999999999993e-10, 1e9), 1U);
    EXPECT_EQ(unsignedOf(4503599627.3704967, 1e6), 2U);
    EXPECT_EQ(signedOf(-0.00085, 1e4), -8);
    EXPECT_EQ(signedOf(-1.65e-8, 1e9), -16);
    EXPECT_EQ(std::trunc(std::fma(-0.00085, 1e4, 0.5)), -7.0);
}

std::optional<unsigned int> checkedUnsigned(double value, std::uint32_t factor) {
    return checkedFixed<unsigned int>(value, factor);
}

TEST(NearestStep, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(nearestStep(0.5, 1), 1);
    EXPECT_EQ(nearestStep(-0.5, 1), -1);
    EXPECT_EQ(nearestStep(2.5, 1), 3);
    EXPECT_EQ(nearestStep(-2.5, 1), -3);
    EXPECT_EQ(nearestStep(0x1.fffffffffffffp-2, 1), 0) << "the sum is not rounded";
    EXPECT_EQ(nearestStep(-0.7, 1000000), -700000);
    EXPECT_EQ(nearestStep(0.145, 100), 14) << "the product is less than 14.5";
    EXPECT_EQ(nearestStep(0.0049999999999999992, 100), 0) << "the product is less than one half";
}

TEST(NearestStep, EndsWhereNoNumberIsStored) {
    EXPECT_EQ(nearestStep(2 * two32 - 1, 1), 8589934591);
    EXPECT_EQ(nearestStep(2 * two32, 1), std::nullopt);
    EXPECT_EQ(nearestStep(-2 * two32, 1), std::nullopt);
    EXPECT_EQ(nearestStep(1e300, 1000000), std::nullopt);
    EXPECT_EQ(nearestStep(DoubleLimits::infinity(), 1), std::nullopt);
    EXPECT_EQ(nearestStep(DoubleLimits::quiet_NaN(), 1), std::nullopt);
    EXPECT_EQ(nearestStep(1.0, 0), std::nullopt);
    EXPECT_EQ(nearestStep(-0.0, 1), 0);
    EXPECT_EQ(nearestStep(DoubleLimits::denorm_min(), 4294967295U), 0);
}

/// The same number on every processor: what rounding the product as a double gives.
TEST(NearestStep, IsTheSameOnEveryProcessor) {
    std::uint64_t state = 1;
    std::int64_t sum = 0;
    for (int round = 0; round < 100000; ++round) {
        for (const std::uint32_t factor : {100U, 255U, 10000U, 65535U, 1000000U, 16777215U}) {
            const double value = sample(state, factor);
            const std::optional<std::int64_t> step = nearestStep(value, factor);
#if defined(__SSE2__)
            const double product = value * factor;
            ASSERT_EQ(step, std::fabs(product) < 2 * two32 ? std::optional(std::llround(product)) : std::nullopt);
#endif
            sum += step.value_or(1);
        }
    }
    EXPECT_EQ(sum, -152688434);
}

TEST(CheckedFixed, IsNothingWhereTheNumberDoesNotFit) {
    EXPECT_EQ(checkedUnsigned(4294967295.25, 1), 4294967295U);
    EXPECT_EQ(checkedUnsigned(4294967295.5, 1), std::nullopt);
    EXPECT_EQ(checkedUnsigned(-0.25, 1), 0U);
    EXPECT_EQ(checkedUnsigned(-0.5, 1), std::nullopt);
    EXPECT_EQ(checkedFixed<int>(-2147483648.25, 1), std::numeric_limits<int>::min());
    EXPECT_EQ(checkedFixed<int>(-2147483648.5, 1), std::nullopt);
    EXPECT_EQ(checkedFixed<int>(2147483647.5, 1), std::nullopt);
}

TEST(FromFixed, DividesByTheFactor) {
    EXPECT_EQ(from_fixed(500000000U, 1e9), 0.5);
    EXPECT_EQ(from_fixed(500000U, 1e6), 0.5);
    EXPECT_EQ(from_fixed(120U, 100.0), 1.2);
    EXPECT_EQ(from_fixed(4294967295U, 1e6), 4294.967295);
    EXPECT_EQ(from_fixed(-299999, 1e6), -0.299999);
    EXPECT_EQ(from_fixed(128U, 255.0), 128 / 255.0);
    EXPECT_EQ(from_fixed(0, 1e6), 0.0);
}

TEST(FromFixed, EveryStoredUnsignedNumberComesBackFromItsDouble) {
    for (const double factor : {100.0, 255.0, 1e4, 65535.0, 16777215.0, 1e6, 1e9}) {
        for (std::uint64_t stored = 0; stored < std::uint64_t{1} << 32U; stored += 99991) {
            const auto number = static_cast<unsigned int>(stored);
            ASSERT_EQ(unsignedOf(from_fixed(number, factor), factor), number) << factor;
        }
        ASSERT_EQ(unsignedOf(from_fixed(4294967295U, factor), factor), 4294967295U) << factor;
    }
}

TEST(FixedPointTable, ConvertsEntryByEntryAtAnyLength) {
    EXPECT_TRUE(to_fixed<unsigned int>(std::vector<double>(), 1e6).empty());
    EXPECT_EQ(to_fixed<unsigned int>({0.5, -1.0, 4295.0}, 1e6), (std::vector<unsigned int>{500000, 0, 32704}));
    EXPECT_EQ(to_fixed<int>({0.5, -1.0}, 1e6), (std::vector<int>{500000, -999999}));
    EXPECT_TRUE(from_fixed(std::vector<int>(), 1e6).empty());
    EXPECT_EQ(from_fixed(std::vector<int>{500000, -250000}, 1e6), (std::vector<double>{0.5, -0.25}));
}

}  // namespace
}  // namespace lv::detail
