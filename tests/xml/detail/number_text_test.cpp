#include <lvdata/xml/detail/number_text.h>

#include <limits>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

TEST(ParseNumber, StopsAtTheEndOfTheViewNotAtTheEndOfTheTextAroundIt) {
    const std::string_view text = "12|34|56";
    EXPECT_EQ(parseNumber<int>(text.substr(3, 2)), 34);
    EXPECT_EQ(parseNumber<int>(text.substr(0, 1)), 1);
    EXPECT_EQ(parseNumber<unsigned int>(text.substr(6)), 56U);
    EXPECT_EQ(parseNumber<unsigned int>(std::string_view("123456").substr(2, 3)), 345U);
}

TEST(ParseNumber, ViewsThatEndBehindSpaceOrSignGiveZero) {
    EXPECT_EQ(parseNumber<int>(std::string_view()), 0);
    EXPECT_EQ(parseNumber<int>(std::string_view("  5").substr(0, 2)), 0);
    EXPECT_EQ(parseNumber<int>(std::string_view("-5").substr(0, 1)), 0);
    EXPECT_EQ(parseNumber<unsigned int>(std::string_view("+5").substr(0, 1)), 0U);
}

TEST(ParseNumber, ANulEndsTheNumberLikeAnyOtherCharacter) {
    EXPECT_EQ(parseNumber<int>(std::string_view("1\0002", 3)), 1);
    EXPECT_EQ(parseNumber<int>(std::string_view("\0005", 2)), 0);
}

TEST(AppendNumber, KeepsTheTextInFrontOfIt) {
    std::string text = "1|";
    appendNumber(text, -23);
    text += '|';
    appendNumber(text, 4294967295U);
    EXPECT_EQ(text, "1|-23|4294967295");
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
