#include "PosixTest.h"

#include <tools/lvdata/Palette.h>

#include <cstdlib>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

// What is different on a terminal.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using tool::ColorChoice;

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

const std::string sizes = "in/a.xml 1\nin/deep/b.xml 2\nin/z.xml 3\n";

/// On a terminal, by the command `script`, which records what comes there.
class OnATerminal : public PosixTest {
protected:
    OnATerminal() {
        std::filesystem::create_directories(path("in/deep"));
        write("in/a.xml", "1");
        write("in/deep/b.xml", "22");
        write("in/z.xml", "333");
    }

    [[nodiscard]] std::string recorded(const std::string& arguments) const {
        const Outcome outcome = runBash("unset NO_COLOR; TERM=xterm script -qec '" LVDATA_PROBE " size " + arguments +
                                        "' record </dev/null >/dev/null");
        EXPECT_EQ(outcome.error, "");
        std::string text = read("record");
        text.erase(0, text.find('\n') + 1);  // the first and the last line are by `script` itself
        return text.substr(0, text.rfind("\nScript done"));
    }
};

TEST_F(OnATerminal, ProgressIsShownAndErased) {
    const std::string text = recorded("--wait 60 -j1 in in >output");
    EXPECT_THAT(text, HasSubstr("\r\x1b[K2 of 6 files, "));
    EXPECT_THAT(text, HasSubstr(" left\r\x1b[K"));
    EXPECT_THAT(text, EndsWith("\r\x1b[K"));
    EXPECT_EQ(read("output"), sizes + sizes);
}

TEST_F(OnATerminal, ProgressDoesNotMixWithTheOutput) {
    const std::string text = recorded("--wait 60 -j1 --color never in in");
    EXPECT_THAT(text, HasSubstr(" left\r\x1b[Kin/deep/b.xml 2\r\n"));
    EXPECT_THAT(text, Not(HasSubstr("leftin")));
}

TEST_F(OnATerminal, ProgressDoesNotMixWithMessages) {
    EXPECT_THAT(recorded("--wait 60 -j1 in no.xml in >output"), HasSubstr("\r\x1b[Kno.xml: error: "));
}

TEST_F(OnATerminal, ProgressIsErasedWhenTheReaderIsGone) {
    EXPECT_THAT(recorded("--wait 60 -j1 in in | true"), EndsWith("\r\x1b[K"));
}

TEST_F(OnATerminal, ShortRunsShowNoProgress) {
    EXPECT_EQ(recorded("in/a.xml"), "\x1b[36min/a.xml\x1b[0m 1\r\n");
}

TEST_F(OnATerminal, ProgressIsForTerminalsOnly) {
    EXPECT_EQ(recorded("--wait 60 -j1 --color never in 2>errors"), "in/a.xml 1\r\nin/deep/b.xml 2\r\nin/z.xml 3\r\n");
    EXPECT_EQ(read("errors"), "");
}

}  // namespace
