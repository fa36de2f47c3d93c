#include <lvdata/analysis/utf8.h>

#include <gtest/gtest.h>

using lv::analysis::characterLength;
using lv::analysis::isUTF8;

TEST(UTF8, KnowsTheLengthOfACharacter) {
    EXPECT_EQ(characterLength(""), 0U);
    EXPECT_EQ(characterLength("ab"), 1U);
    EXPECT_EQ(characterLength("\u00e9b"), 2U);
    EXPECT_EQ(characterLength("\u6f22b"), 3U);
    EXPECT_EQ(characterLength("\U0001f3a8b"), 4U);
}

TEST(UTF8, TakesTheFirstAndTheLastOfEachLength) {
    EXPECT_TRUE(isUTF8(""));
    EXPECT_TRUE(isUTF8("\x7f\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbf"));
    EXPECT_TRUE(isUTF8("\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"));
}

TEST(UTF8, RefusesEveryOtherByteSequence) {
    for (const char* const text : {"\x80", "\xbf", "\xc1\xbf", "\xc2", "\xc2\x7f", "\xc2\xc0", "\xe0\x9f\xbf",
                                   "\xe1\x80", "\xe1\x80\x7f", "\xed\xa0\x80", "\xed\xbf\xbf", "\xf0\x8f\xbf\xbf",
                                   "\xf1\x80\x80", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff", "a\xfe"}) {
        EXPECT_FALSE(isUTF8(text));
    }
}
