#include <lvdata/xml/lexical_cast.h>

#include <tests/support/stream.h>

#include <cstdint>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using test::extracted;
using test::inserted;

using IntLimits = std::numeric_limits<int>;
constexpr unsigned int unsignedMax = std::numeric_limits<unsigned int>::max();

void expectAsExtracted(const std::string& text) {
    EXPECT_EQ(lexical_cast<int>(text), extracted<int>(text)) << testing::PrintToString(text);
    EXPECT_EQ(lexical_cast<unsigned int>(text), extracted<unsigned int>(text)) << testing::PrintToString(text);
}

/// The same numbers in every run, so that a failure can be seen again.
std::mt19937 repeatableRandom(unsigned int seed) {
    return std::mt19937(seed);
}

/// Every string of up to `length` characters over the alphabet.
std::vector<std::string> allTexts(const std::string& alphabet, std::size_t length) {
    std::vector<std::string> texts = {""};
    for (std::size_t begin = 0, end = 1; length > 0; --length) {
        for (; begin < end; ++begin) {
            for (const char character : alphabet) {
                texts.push_back(texts[begin] + character);
            }
        }
        end = texts.size();
    }
    return texts;
}

/// A global locale that writes and reads 1234567 as "1,234,567", for as long as this object lives.
class GroupingLocale {
public:
    GroupingLocale() : before_(std::locale::global(std::locale(std::locale::classic(), new Grouping))) {}
    ~GroupingLocale() { std::locale::global(before_); }
    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;

private:
    class Grouping : public std::numpunct<char> {
        char do_thousands_sep() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale before_;
};

TEST(LexicalCastToInt, ReadsTheNumberAtTheStartOfTheText) {
    struct Case {
        std::string text;
        int number;
    };
    const std::vector<Case> cases = {{"0", 0},     {"42", 42},  {" 42", 42},   {"\t\n42", 42},
                                     {" 7 ", 7},   {"7 8", 7},  {"12abc", 12}, {"3.9", 3},
                                     {"0x10", 0},  {"+5", 5},   {"-1", -1},    {"-0", 0},
                                     {"007", 7},   {" - 5", 0}, {"5-3", 5},    {"1e3", 1},
                                     {"1,234", 1}, {"1|2", 1},  {"-17", -17},  {"0000000000000000000000042", 42}};
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(lexical_cast<int>(text), number) << text;
    }
}

TEST(LexicalCastToInt, BeyondTheRangeGivesTheNearestLimit) {
    EXPECT_EQ(lexical_cast<int>("2147483647"), IntLimits::max());
    EXPECT_EQ(lexical_cast<int>("2147483648"), IntLimits::max());
    EXPECT_EQ(lexical_cast<int>("99999999999"), IntLimits::max());
    EXPECT_EQ(lexical_cast<int>("-2147483648"), IntLimits::min());
    EXPECT_EQ(lexical_cast<int>("-2147483649"), IntLimits::min());
    EXPECT_EQ(lexical_cast<int>("-99999999999"), IntLimits::min());
}

TEST(LexicalCastToUnsigned, BeyondTheRangeGivesTheGreatestNumber) {
    EXPECT_EQ(lexical_cast<unsigned int>("4294967295"), unsignedMax);
    EXPECT_EQ(lexical_cast<unsigned int>("4294967296"), unsignedMax);
    EXPECT_EQ(lexical_cast<unsigned int>("99999999999"), unsignedMax);
    EXPECT_EQ(lexical_cast<unsigned int>("-4294967296"), unsignedMax);
    EXPECT_EQ(lexical_cast<unsigned int>("-99999999999"), unsignedMax);
}

TEST(LexicalCastToUnsigned, MinusNegatesModuloTwoToThe32) {
    EXPECT_EQ(lexical_cast<unsigned int>("-1"), 4294967295U);
    EXPECT_EQ(lexical_cast<unsigned int>("-2"), 4294967294U);
    EXPECT_EQ(lexical_cast<unsigned int>("-4294967295"), 1U);
    EXPECT_EQ(lexical_cast<unsigned int>("-0"), 0U);
}

TEST(LexicalCast, TextWithoutALeadingDigitGivesZero) {
    for (const char* const text : {"abc", "-", "+", "+-5", "-+5", "--5", "- 5", ".5", "|5", "", "true"}) {
        EXPECT_EQ(lexical_cast<int>(text), 0) << text;
        EXPECT_EQ(lexical_cast<unsigned int>(text), 0U) << text;
    }
}

TEST(LexicalCast, WhiteSpaceAloneGivesZero) {
    for (const char* const text : {" ", "\t", "   ", " \t\n\v\f\r"}) {
        EXPECT_EQ(lexical_cast<int>(text), 0) << testing::PrintToString(text);
        EXPECT_EQ(lexical_cast<unsigned int>(text), 0U) << testing::PrintToString(text);
    }
}

TEST(LexicalCast, SkipsTheSixAsciiWhiteSpaceCharactersAndNoOtherByte) {
    const std::string whiteSpace = " \t\n\v\f\r";
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        const bool skipped = whiteSpace.find(character) != std::string::npos;
        const bool sign = character == '+';
        const std::string text = std::string(1, character) + "5";
        if (character < '0' || character > '9') {
            EXPECT_EQ(lexical_cast<unsigned int>(text) == 5U, skipped || sign) << byte;
        }
    }
}

TEST(LexicalCast, EveryByteAfterANumberEndsItUnlessItIsADigit) {
    for (int byte = 0; byte < 256; ++byte) {
        expectAsExtracted(std::string("1") + static_cast<char>(byte) + "2");
    }
}

TEST(LexicalCast, BytesAbove127AreNeitherDigitsNorWhiteSpace) {
    const std::string noBreakSpace = "\xC2\xA0";
    const std::string arabicFive = "\xD9\xA5";
    for (const std::string& text : {noBreakSpace + "5", arabicFive, std::string("\x85"), "\xFF" + arabicFive}) {
        EXPECT_EQ(lexical_cast<int>(text), 0) << testing::PrintToString(text);
        EXPECT_EQ(lexical_cast<unsigned int>(text), 0U) << testing::PrintToString(text);
    }
    EXPECT_EQ(lexical_cast<int>("5\xC2\xB5"), 5);
}

TEST(LexicalCast, ReadsEveryShortTextAsAClassicStreamDoes) {
    const std::vector<std::string> texts = allTexts("019+- \tx.", 4);
    ASSERT_EQ(texts.size(), 1U + 9U + 81U + 729U + 6561U);
    for (const std::string& text : texts) {
        expectAsExtracted(text);
    }
}

TEST(LexicalCast, ReadsLongerTextsAsAClassicStreamDoes) {
    const std::string alphabet = "00112233445566778899+- \t\n\v\f\rx.,e|\x80\xC2\xFF";
    std::mt19937 random = repeatableRandom(20240229);
    std::uniform_int_distribution<std::size_t> character(0, alphabet.size() - 1);
    std::uniform_int_distribution<std::size_t> length(5, 30);
    for (int count = 0; count < 20000; ++count) {
        std::string text(length(random), ' ');
        for (char& at : text) {
            at = alphabet[character(random)];
        }
        expectAsExtracted(text);
    }
}

TEST(LexicalCast, ReadsLongRunsOfDigitsAsAClassicStreamDoes) {
    std::mt19937 random = repeatableRandom(20240301);
    std::uniform_int_distribution<int> digit('0', '9');
    for (std::size_t length = 1; length <= 60; ++length) {
        for (const char* const before : {"", "-", "+", " -", "000", "-000000000000"}) {
            std::string digits(length, '9');
            expectAsExtracted(before + digits);
            for (char& at : digits) {
                at = static_cast<char>(digit(random));
            }
            expectAsExtracted(before + digits);
        }
    }
}

TEST(LexicalCast, ReadsTheNeighbourhoodOfEveryLimitAsAClassicStreamDoes) {
    for (const unsigned int bits : {0U, 31U, 32U, 33U, 53U, 63U}) {
        const std::uint64_t limit = std::uint64_t{1} << bits;
        for (std::uint64_t number = limit - 1; number <= limit + 20; ++number) {
            for (const char* const before : {"", "-", "+", "0000000000000000000000", "-000000000000000000000"}) {
                expectAsExtracted(before + std::to_string(number));
                expectAsExtracted(before + std::to_string(number) + "0");
            }
        }
    }
    for (const char* const text : {"18446744073709551615", "18446744073709551616", "-18446744073709551617"}) {
        expectAsExtracted(text);
    }
}

TEST(LexicalCastToString, WritesPlainDecimal) {
    EXPECT_EQ(lexical_cast<std::string>(0), "0");
    EXPECT_EQ(lexical_cast<std::string>(-5), "-5");
    EXPECT_EQ(lexical_cast<std::string>(-17), "-17");
    EXPECT_EQ(lexical_cast<std::string>(1234567), "1234567");
    EXPECT_EQ(lexical_cast<std::string>(0U), "0");
    EXPECT_EQ(lexical_cast<std::string>(4294967295U), "4294967295");
    EXPECT_EQ(lexical_cast<std::string>(IntLimits::max()), "2147483647");
    EXPECT_EQ(lexical_cast<std::string>(IntLimits::min()), "-2147483648");
}

TEST(LexicalCastToString, WritesAsAClassicStreamDoesAndReadsBack) {
    std::mt19937 random = repeatableRandom(20240302);
    for (int count = 0; count < 20000; ++count) {
        const auto number = static_cast<unsigned int>(random() >> (count % 32));
        const auto signedNumber = static_cast<int>(number);
        ASSERT_EQ(lexical_cast<std::string>(number), inserted(number));
        ASSERT_EQ(lexical_cast<std::string>(signedNumber), inserted(signedNumber));
        ASSERT_EQ(lexical_cast<unsigned int>(inserted(number)), number);
        ASSERT_EQ(lexical_cast<int>(inserted(signedNumber)), signedNumber);
    }
}

TEST(LexicalCast, AGlobalLocaleThatGroupsDigitsChangesNothing) {
    const GroupingLocale grouping;
    ASSERT_EQ((std::ostringstream() << 1234567).str(), "1,234,567") << "the locale is not in force";
    EXPECT_EQ(lexical_cast<std::string>(1234567), "1234567");
    EXPECT_EQ(lexical_cast<std::string>(-1234567), "-1234567");
    EXPECT_EQ(lexical_cast<std::string>(4294967295U), "4294967295");
    EXPECT_EQ(lexical_cast<int>("1234567"), 1234567);
    EXPECT_EQ(lexical_cast<int>("1,234,567"), 1);
    EXPECT_EQ(lexical_cast<int>("-1,234"), -1);
    EXPECT_EQ(lexical_cast<unsigned int>("4,294,967,295"), 4U);
}

}  // namespace
}  // namespace lv
