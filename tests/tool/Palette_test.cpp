#include <tools/lvdata/Palette.h>

#include <gtest/gtest.h>

namespace {

using tool::ColorChoice;

TEST(Palette, PutsEscapeSequencesAroundText) {
    const tool::Palette palette(true);
    EXPECT_EQ(palette.paint(tool::Style::heading, "x"), "\x1b[1mx\x1b[0m");
    EXPECT_EQ(palette.paint(tool::Style::error, "x y"), "\x1b[1;31mx y\x1b[0m");
    EXPECT_EQ(palette.paint(tool::Style::error, ""), "");
}

TEST(Palette, LeavesTextAsItIs) {
    EXPECT_EQ(tool::Palette(false).paint(tool::Style::error, "x"), "x");
    EXPECT_EQ(tool::Palette(ColorChoice::never).paint(tool::Style::error, "x"), "x");
}

}  // namespace
