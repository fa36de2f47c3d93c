#pragma once

#include <gtest/gtest.h>

#include <limits>

namespace lv::test {

/// The rules that hold for every accessor pair over an unsigned fixed-point number.
///
/// \param stored  hands a value to the setter and returns what the member then holds
/// \param read    puts a number into the member and returns what the getter answers
template <class Stored, class Read>
void expectUnsignedFixedPoint(double factor, Stored stored, Read read) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

    for (const unsigned int number : {0U, 1U, 137U, 4294967295U}) {
        EXPECT_EQ(read(number), number / factor) << "read " << number;
        EXPECT_EQ(stored(number / factor), number) << "stored and read back " << number;
    }
    for (const double share : {0.01, 0.49}) {
        EXPECT_EQ(stored((7.0 + share) / factor), 7U) << "rounded down " << share;
        EXPECT_EQ(stored((8.0 - share) / factor), 8U) << "rounded up " << share;
    }
    for (const double value : {-0.0, -0.2, -1.0, -5000.0, -1e300, -infinity}) {
        EXPECT_EQ(stored(value), 0U) << "negative " << value;
    }
    for (const double value : {notANumber, infinity, 1e300, 9223372036854775808.0 / factor}) {
        EXPECT_EQ(stored(value), 0U) << "without an integer " << value;
    }
    EXPECT_EQ(stored(4294967296.0 / factor), 0U);
    EXPECT_EQ(stored(4294967301.0 / factor), 5U);
}

}  // namespace lv::test
