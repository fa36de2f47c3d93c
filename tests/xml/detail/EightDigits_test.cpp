#include <lvdata/xml/detail/EightDigits.h>

#include <string>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

TEST(EightDigits, CountsTheDigitsBeforeEveryOtherCharacter) {
    for (unsigned int count = 0; count <= EightDigits::size; ++count) {
        for (int other = 0; other < 256; ++other) {
            std::string text(EightDigits::size, '7');
            if (count < text.size() && (other < '0' || other > '9')) {
                text[count] = static_cast<char>(other);
                EXPECT_EQ(EightDigits(text.data()).count(), count) << "character " << other;
            }
        }
    }
    EXPECT_EQ(EightDigits("01234567").count(), 8U);
    EXPECT_EQ(EightDigits("89898989").count(), 8U);
}

TEST(EightDigits, DigitsAfterTheFirstOtherCharacterDoNotCount) {
    EXPECT_EQ(EightDigits("12|34|56").count(), 2U);
    EXPECT_EQ(EightDigits("|1234567").count(), 0U);
    EXPECT_EQ(EightDigits("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF").count(), 0U);
    EXPECT_EQ(EightDigits("1\xC6\xC6\xC6\xC6\xC6\xC6\xC6").count(), 1U);
}

TEST(EightDigits, ValueIsThatOfTheLeadingDigits) {
    const std::string digits = "98765432";
    std::uint32_t expected = 0;
    for (unsigned int count = 1; count <= EightDigits::size; ++count) {
        expected = expected * 10 + static_cast<std::uint32_t>(digits[count - 1] - '0');
        EXPECT_EQ(EightDigits(digits.data()).value(count), expected);
    }
}

TEST(EightDigits, ValueIsRightForEveryDigitInEveryPlace) {
    std::uint32_t place = 10000000;
    for (unsigned int index = 0; index < EightDigits::size; ++index, place /= 10) {
        for (char digit = '0'; digit <= '9'; ++digit) {
            std::string text(EightDigits::size, '0');
            text[index] = digit;
            EXPECT_EQ(EightDigits(text.data()).value(8), place * static_cast<std::uint32_t>(digit - '0'));
        }
    }
}

}  // namespace
}  // namespace lv::detail
