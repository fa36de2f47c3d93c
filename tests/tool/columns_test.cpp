#include <tools/lvdata/columns.h>

#include <gtest/gtest.h>

namespace {

using tool::Columns;
using tool::Palette;
using tool::shortened;

TEST(Columns, AlignTextsOnTheLeftAndNumbersOnTheRight) {
    Columns columns({"Name", "Y", "Note"}, {1});
    columns.add({"a", "120.03", "x"});
    columns.add({"Größe", "4", ""});
    EXPECT_EQ(columns.text(Palette(false)), "Name        Y  Note\n"
                                            "a      120.03  x\n"
                                            "Größe       4\n");
}

TEST(Columns, HaveColouredHeads) {
    Columns columns({"Name"});
    columns.add({"a"});
    EXPECT_EQ(columns.text(Palette(true)), "\x1b[1mName\x1b[0m\na\n");
}

TEST(Columns, MayHaveEmptyRows) {
    Columns columns({"", "x"});
    columns.add({"", ""});
    EXPECT_EQ(columns.text(Palette(false)), "  x\n\n");
}

TEST(Columns, CountCharactersAndNotBytes) {
    EXPECT_EQ(tool::characterCount("aä€\U0001F3A8"), 4U);
    EXPECT_EQ(tool::characterCount(""), 0U);
}

TEST(Columns, ShortenTextsBetweenCharacters) {
    EXPECT_EQ(shortened("abc", 3), "abc");
    EXPECT_EQ(shortened("abcd", 3), "ab…");
    EXPECT_EQ(shortened("äöü", 3), "äöü");
    EXPECT_EQ(shortened("äöüß", 3), "äö…");
    EXPECT_EQ(shortened("€€", 1), "…");
}

}  // namespace
