#include <lvdata/xml/split_string.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using Pieces = std::vector<std::string>;

TEST(SplitString, GivesThePiecesBetweenTheSeparators) {
    EXPECT_EQ(split_string("1|2|3", "|"), (Pieces{"1", "2", "3"}));
    EXPECT_EQ(split_string("a, b", ","), (Pieces{"a", " b"}));
}

TEST(SplitString, TextWithoutSeparatorIsOnePiece) {
    EXPECT_EQ(split_string("abc", "|"), Pieces{"abc"});
    EXPECT_EQ(split_string("1,2", "|"), Pieces{"1,2"});
    EXPECT_EQ(split_string("a", "abc"), Pieces{"a"});
}

TEST(SplitString, KeepsEmptyPieces) {
    EXPECT_EQ(split_string("1||3", "|"), (Pieces{"1", "", "3"}));
    EXPECT_EQ(split_string("|1", "|"), (Pieces{"", "1"}));
    EXPECT_EQ(split_string("||", "|"), (Pieces{"", "", ""}));
}

TEST(SplitString, TrailingSeparatorYieldsALastEmptyPiece) {
    EXPECT_EQ(split_string("a|b|", "|"), (Pieces{"a", "b", ""}));
    EXPECT_EQ(split_string("|", "|"), (Pieces{"", ""}));
}

TEST(SplitString, EmptyTextYieldsOneEmptyPiece) {
    EXPECT_EQ(split_string("", "|"), Pieces{""});
    EXPECT_EQ(split_string("", "::"), Pieces{""});
}

TEST(SplitString, LongerSeparatorResumesOneCharacterAfterItsStart) {
    EXPECT_EQ(split_string("a::b::c", "::"), (Pieces{"a", ":b", ":c"}));
    EXPECT_EQ(split_string("a:::b", "::"), (Pieces{"a", "", ":b"}));
    EXPECT_EQ(split_string("1, 2, 3", ", "), (Pieces{"1", " 2", " 3"}));
    EXPECT_EQ(split_string("aXYZ", "XYZ"), (Pieces{"a", "YZ"}));
}

TEST(SplitString, EmptySeparatorGivesTheWholeTextAsOnePiece) {
    EXPECT_EQ(split_string("abc", ""), Pieces{"abc"});
    EXPECT_EQ(split_string("", ""), Pieces{""});
}

TEST(SplitString, AnyByteMayBePartOfPieceOrSeparator) {
    EXPECT_EQ(split_string("\xC2\xB5|\xFF", "|"), (Pieces{"\xC2\xB5", "\xFF"}));
    const std::string withNul("a\0b|c", 5);
    EXPECT_EQ(split_string(withNul, "|"), (Pieces{std::string("a\0b", 3), "c"}));
    EXPECT_EQ(split_string(withNul, std::string(1, '\0')), (Pieces{"a", "b|c"}));
}

}  // namespace
}  // namespace lv
