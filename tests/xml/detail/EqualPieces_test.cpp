#include <lvdata/xml/detail/EqualPieces.h>

#include <string>

#include <gtest/gtest.h>

namespace lv::detail {
namespace {

const std::string digits = "98765432";

/// A piece of so many digits, its separator, and other characters up to eight.
std::string piece(std::size_t count) {
    return (digits.substr(0, count) + "|99999999").substr(0, EightDigits::size);
}

TEST(EqualPieces, ReadsAPieceOfTheirLength) {
    for (std::size_t count = 1; count < EightDigits::size; ++count) {
        unsigned int number = 0;
        EXPECT_TRUE(EqualPieces(count, '|').read(piece(count).data(), number)) << count;
        EXPECT_EQ(std::to_string(number), digits.substr(0, count));
    }
}

TEST(EqualPieces, RefusesPiecesOfADifferentLength) {
    for (std::size_t count = 1; count < EightDigits::size; ++count) {
        const EqualPieces pieces(count, '|');
        int number = -7;
        EXPECT_FALSE(pieces.read(piece(count - 1).data(), number)) << count;
        EXPECT_FALSE(pieces.read(piece(count + 1).data(), number)) << count;
        EXPECT_EQ(number, -7);
    }
}

TEST(EqualPieces, RefusesEveryOtherCharacterInEveryPlace) {
    const std::size_t count = 4;
    const EqualPieces pieces(count, '|');
    for (std::size_t place = 0; place <= count; ++place) {
        for (int character = 0; character < 256; ++character) {
            std::string text = piece(count);
            text[place] = static_cast<char>(character);
            const bool isDigit = character >= '0' && character <= '9';
            const bool fits = place == count ? character == '|' : isDigit;
            unsigned int number = 0;
            EXPECT_EQ(pieces.read(text.data(), number), fits) << character << " at " << place;
        }
    }
}

TEST(EqualPieces, CharactersAfterTheSeparatorDoNotMatter) {
    for (const char* const text : {"12|\xFF\xFF\xFF\xFF\xFF", "12|00000", "12||||||"}) {
        unsigned int number = 0;
        EXPECT_TRUE(EqualPieces(2, '|').read(text, number));
        EXPECT_EQ(number, 12U);
    }
}

}  // namespace
}  // namespace lv::detail
