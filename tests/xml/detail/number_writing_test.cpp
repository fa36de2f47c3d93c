#include <lvdata/xml/detail/number_writing.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

template <class Number>
std::string written(Number number) {
    std::string text(maxDecimalLength, '#');
    return {text.data(), writeDecimal(number, text.data())};
}

TEST(WriteDecimal, WritesEveryNumberOfFourDigitsInEveryPlace) {
    for (unsigned int number = 0; number < 10000; ++number) {
        ASSERT_EQ(written(number), std::to_string(number));
        ASSERT_EQ(written(number * 10000), std::to_string(number * 10000));
        ASSERT_EQ(written(99990000 + number), std::to_string(99990000 + number));
        ASSERT_EQ(written(4200000000U + number), std::to_string(4200000000U + number));
    }
}

TEST(WriteDecimal, WritesTheFirstAndTheLastNumberOfEveryLength) {
    for (std::uint64_t power = 10; power <= 10'000'000'000; power *= 10) {
        for (const std::uint64_t number : {power / 10, power / 10 + 1, power - 1}) {
            const auto stored = static_cast<unsigned int>(number);
            EXPECT_EQ(written(stored), std::to_string(stored));
            EXPECT_EQ(written(static_cast<int>(stored)), std::to_string(static_cast<int>(stored)));
        }
    }
}

TEST(WriteDecimal, WritesNegativeNumbers) {
    EXPECT_EQ(written(-1), "-1");
    EXPECT_EQ(written(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(JoinNumbers, PutTheSeparatorBetweenThem) {
    using Limits = std::numeric_limits<int>;
    EXPECT_EQ(joinNumbers(std::vector<int>{}, "|"), "");
    EXPECT_EQ(joinNumbers(std::vector<int>{5}, "|"), "5");
    EXPECT_EQ(joinNumbers(std::vector<int>{Limits::min(), 0, Limits::max()}, "|"), "-2147483648|0|2147483647");
    EXPECT_EQ(joinNumbers(std::vector<unsigned int>{4294967295U, 4294967295U}, "|"), "4294967295|4294967295");
    EXPECT_EQ(joinNumbers(std::vector<unsigned int>{1, 2, 3}, ", "), "1, 2, 3");
    EXPECT_EQ(joinNumbers(std::vector<unsigned int>{1, 2, 3}, ""), "123");
}

TEST(JoinNumbers, LongSeparatorsHaveTheirRoom) {
    std::string expected;
    for (int number = 0; number < 20; ++number) {
        expected += (number == 0 ? "" : " and ") + std::string("-1000000007");
    }
    EXPECT_EQ(joinNumbers(std::vector<int>(20, -1000000007), " and "), expected);
}

TEST(JoinNumbers, WriteEveryLengthOfNumberAndSign) {
    std::vector<int> values;
    std::string expected;
    for (int value = 1; value < 1000000000; value = value * 10 + 7) {
        for (const int each : {value, -value}) {
            values.push_back(each);
            expected += (expected.empty() ? "" : "|") + std::to_string(each);
        }
    }
    EXPECT_EQ(joinNumbers(values, "|"), expected);
}

TEST(DecimalText, TheLongestNumbersAreWhole) {
    EXPECT_EQ(decimalText(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(decimalText(std::numeric_limits<int>::max()), "2147483647");
    EXPECT_EQ(decimalText(std::numeric_limits<unsigned int>::max()), "4294967295");
}

TEST(DecimalText, FitsIntoAStringWithoutAllocating) {
    EXPECT_EQ(decimalText(std::numeric_limits<int>::min()).capacity(), std::string().capacity());
}

}  // namespace
}  // namespace lv::detail
