#include <lvdata/xml/detail/number_parsing.h>

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <lvdata/xml/lexical_cast.h>
#include <lvdata/xml/split_string.h>

namespace lv::detail {
namespace {

TEST(ParseNumber, StopsAtTheEndOfTheViewNotAtTheEndOfTheTextAroundIt) {
    const std::string_view text = "12|34|56";
    EXPECT_EQ(parseNumber<int>(text.substr(3, 2)), 34);
    EXPECT_EQ(parseNumber<int>(text.substr(0, 1)), 1);
    EXPECT_EQ(parseNumber<unsigned int>(text.substr(6)), 56U);
    EXPECT_EQ(parseNumber<unsigned int>(std::string_view("123456").substr(2, 3)), 345U);
}

TEST(ParseNumber, ViewsThatEndAfterSpaceOrSignGiveZero) {
    EXPECT_EQ(parseNumber<int>(std::string_view()), 0);
    EXPECT_EQ(parseNumber<int>(std::string_view("  5").substr(0, 2)), 0);
    EXPECT_EQ(parseNumber<int>(std::string_view("-5").substr(0, 1)), 0);
    EXPECT_EQ(parseNumber<unsigned int>(std::string_view("+5").substr(0, 1)), 0U);
}

TEST(ParseNumber, ANulEndsTheNumberLikeAnyOtherCharacter) {
    EXPECT_EQ(parseNumber<int>(std::string_view("1\0002", 3)), 1);
    EXPECT_EQ(parseNumber<int>(std::string_view("\0005", 2)), 0);
}

template <class Number>
std::vector<Number> parsed(std::string_view text, std::string_view separator = "|") {
    std::vector<Number> numbers(3, Number{77});
    parseNumbers(text, separator, numbers);
    return numbers;
}

/// The same by the public functions, a string for each piece.
template <class Number>
std::vector<Number> converted(const std::string& text, const std::string& separator = "|") {
    std::vector<Number> numbers;
    for (const std::string& piece : split_string(text, separator)) {
        if (!piece.empty()) {
            numbers.push_back(lexical_cast<Number>(piece));
        }
    }
    return numbers;
}

TEST(ParseNumbers, GiveWhatThePiecesGiveOneByOne) {
    for (const char* text : {"",
                             "|",
                             "||",
                             "1",
                             "1|",
                             "|1",
                             "1||3",
                             "12345678|1234567|123456789|1234567890|12345678901|99999999999999",
                             "4294967295|4294967296|2147483647|2147483648|-2147483648|-2147483649|-1|+7|-",
                             " 5|5 |\t6\n| | 7 8|",
                             "a|1a|a1|1.5|--1|+-1|0x10",
                             "000000000000000001|00000000|000000007|0",
                             "12345678",
                             "123456789",
                             "1234567|",
                             "99999999|999999999|1000000000",
                             "123456789|-12345678|123456789|1",
                             "123456789|12345678||123456789|1",
                             "123456789|12x456789|1|2|3|4|5|6",
                             "12345678|-1234567|12345678|x|12345678",
                             "1 2345678|1",
                             "1/2|3:4|\xFF|1\xFF",
                             "12345678x|2"}) {
        EXPECT_EQ(parsed<int>(text), converted<int>(text)) << text;
        EXPECT_EQ(parsed<unsigned int>(text), converted<unsigned int>(text)) << text;
    }
}

TEST(ParseNumbers, ReadEveryLengthOfNumberInEveryPlace) {
    const std::string digits = "123456789012";
    for (std::size_t first = 0; first <= digits.size(); ++first) {
        for (std::size_t second = 0; second <= digits.size(); ++second) {
            const std::string text = digits.substr(0, first) + '|' + digits.substr(0, second);
            EXPECT_EQ(parsed<int>(text), converted<int>(text)) << text;
            EXPECT_EQ(parsed<unsigned int>(text), converted<unsigned int>(text)) << text;
        }
    }
}

TEST(ParseNumbers, TakeSeparatorsOfNoneAndOfSeveralCharacters) {
    for (const char* separator : {"", "|", ",", ", ", "12", "--"}) {
        for (const char* text : {"1, 2, 3", "1|2", "9123124", "1--2---3", ", "}) {
            EXPECT_EQ(parsed<int>(text, separator), converted<int>(text, separator)) << text << " at " << separator;
        }
    }
}

TEST(ParseNumbers, AMinusSeparatesAsAnyOtherCharacterDoes) {
    for (const char* text :
         {"5-6", "5--6", "-5-6", "12345678--123456789-1", "-", "1-22-22-333--333-44444444-44444444-555555555-1-"}) {
        EXPECT_EQ(parsed<int>(text, "-"), converted<int>(text, "-")) << text;
    }
}

TEST(ParseNumbers, ReadSignsInEveryPlace) {
    for (const char* text : {"-1|2|3", "1|-2|3", "1|2|-3", "-1|-2|-3", "-12345678|-123456789|-1", "-|1", "1|-", "--1|5",
                             "-1 |5", "1|-2147483648", "1|-2147483649", "-0|0"}) {
        EXPECT_EQ(parsed<int>(text), converted<int>(text)) << text;
        EXPECT_EQ(parsed<unsigned int>(text), converted<unsigned int>(text)) << text;
    }
}

TEST(ParseNumbers, ADigitSeparatesAsAnyOtherCharacterDoes) {
    for (const char separator : std::string("0123456789")) {
        for (const char* text : {"1234567890", "1235678905123567890512356789051", "0123456789876543210",
                                 "99999999999999", "123456789|123456789"}) {
            const std::string at(1, separator);
            EXPECT_EQ(parsed<int>(text, at), converted<int>(text, at)) << text << " at " << at;
            EXPECT_EQ(parsed<unsigned int>(text, at), converted<unsigned int>(text, at)) << text << " at " << at;
        }
    }
}

/// A text without a character after it that could be looked at: a sanitizer notices when one is.
template <class Number>
void expectAlikeAtTheEndOfMemory(const std::string& text) {
    const std::vector<char> characters(text.begin(), text.end());
    EXPECT_EQ(parsed<Number>({characters.data(), characters.size()}), converted<Number>(text)) << text;
}

TEST(ParseNumbers, DoNotReadBeyondTheEndOfTheText) {
    const std::string negative = "-1|-22|-333|-4444|-55555|-666666|-7777777|-88888888|-999999999|-1000000000";
    const std::string mixed = "1|22|333|4444|55555|666666|7777777|88888888|999999999|-1000000000|0||-0|00000000012";
    for (const std::string& text : {negative, mixed}) {
        for (std::size_t length = 0; length <= text.size(); ++length) {
            expectAlikeAtTheEndOfMemory<int>(text.substr(0, length));
            expectAlikeAtTheEndOfMemory<unsigned int>(text.substr(text.size() - length));
        }
    }
}

/// So many numbers of so many digits, each with the sign before it.
std::string numbers(std::size_t count, std::size_t digits, const std::string& sign) {
    std::string text;
    for (std::size_t number = 0; number < count; ++number) {
        text += (number == 0 ? "" : "|") + sign + std::string(digits, static_cast<char>('1' + number % 9));
    }
    return text;
}

TEST(ParseNumbers, ReadLongArraysOfEveryLengthOfNumberAndSign) {
    for (std::size_t digits = 1; digits <= 11; ++digits) {
        for (const char* const sign : {"", "-"}) {
            for (const std::size_t count : {20U, 1023U, 1024U, 1025U, 3000U}) {
                expectAlikeAtTheEndOfMemory<int>(numbers(count, digits, sign));
            }
        }
    }
}

TEST(ParseNumbers, ReserveOnlyTheMemoryTheyNeed) {
    for (const std::size_t count : {3U, 256U, 1000U, 3000U}) {
        std::vector<int> values;
        parseNumbers(numbers(count, 6, ""), "|", values);
        EXPECT_EQ(values.capacity(), count);
    }
}

TEST(ParsePlainNumbers, RefuseAnyOtherCharacter) {
    std::vector<int> values = {7};
    for (const char* const text :
         {"+1", ".5", "1|.5", ".12345678901|1", "1|.12345678901", " 1", "x", "--1", "-", "1 |2", "1|2x", "1|+2", "1|-",
          "12345678a", "1&#50;", "123456789012 ", "1|2|3|4|5|6|7|8|9|\n"}) {
        EXPECT_FALSE(parsePlainNumbers(text, '|', values)) << text;
    }
    EXPECT_TRUE(parsePlainNumbers("1|-2||3|", '|', values));
    EXPECT_THAT(values, ::testing::ElementsAre(1, -2, 3));
}

TEST(ParsePlainNumbers, LeaveTheOutputWhenTheFirstIsNotPlain) {
    for (const char* const text : {" ", "x|1|2|3", " 1", "\n"}) {
        std::vector<int> values = {7};
        EXPECT_FALSE(parsePlainNumbers(text, '|', values)) << text;
        EXPECT_THAT(values, ::testing::ElementsAre(7)) << text;
    }
}

TEST(ParseNumbers, StopAtTheEndOfTheView) {
    EXPECT_THAT(parsed<int>(std::string_view("1|23456789").substr(0, 4)), ::testing::ElementsAre(1, 23));
}

}  // namespace
}  // namespace lv::detail
