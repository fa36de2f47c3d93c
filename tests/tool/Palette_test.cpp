#include <tools/lvdata/Palette.h>

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

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

/// Has a terminal as standard output where `useTerminal` was called; all is put back at the end.
class ColorTest : public testing::Test {
protected:
    ColorTest() : output_(::dup(STDOUT_FILENO)) {
        ::setenv("TERM", "xterm", 1);
        ::unsetenv("NO_COLOR");
    }
    ~ColorTest() override {
        ::dup2(output_, STDOUT_FILENO);
        ::close(output_);
    }
    ColorTest(const ColorTest&) = delete;
    ColorTest& operator=(const ColorTest&) = delete;
    ColorTest(ColorTest&&) = delete;
    ColorTest& operator=(ColorTest&&) = delete;

    void SetUp() override {
        const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
        if (terminal < 0) {
            GTEST_SKIP() << "there are no terminals here";
        }
        ::dup2(terminal, STDOUT_FILENO);
        ::close(terminal);
    }

private:
    int output_;
};

TEST_F(ColorTest, IsOnByDefaultOnATerminal) {
    EXPECT_TRUE(tool::isColored(ColorChoice::automatic));
    EXPECT_FALSE(tool::isColored(ColorChoice::never));
}

TEST_F(ColorTest, IsOffByDefaultElsewhere) {
    const int file = ::open("/dev/null", O_WRONLY);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    ::dup2(file, STDOUT_FILENO);
    ::close(file);
    EXPECT_FALSE(tool::isColored(ColorChoice::automatic));
    EXPECT_TRUE(tool::isColored(ColorChoice::always));
}

TEST_F(ColorTest, FollowsTheVariableNoColorUnlessItIsEmpty) {
    ::setenv("NO_COLOR", "1", 1);
    EXPECT_FALSE(tool::isColored(ColorChoice::automatic));
    EXPECT_TRUE(tool::isColored(ColorChoice::always));
    ::setenv("NO_COLOR", "", 1);
    EXPECT_TRUE(tool::isColored(ColorChoice::automatic));
}

TEST_F(ColorTest, DependsOnTheKindOfTerminal) {
    ::setenv("TERM", "dumb", 1);
    EXPECT_FALSE(tool::isColored(ColorChoice::automatic));
    ::unsetenv("TERM");
    EXPECT_FALSE(tool::isColored(ColorChoice::automatic));
}

}  // namespace
