#include "ToolTest.h"

#include <tools/lvdata/InputCount.h>
#include <tools/lvdata/Progress.h>

#include <thread>

namespace {

using namespace std::chrono_literals;
using tool::progressText;

TEST(ProgressText, ShowsWhatIsKnown) {
    EXPECT_EQ(progressText(0, std::nullopt, 0s), "0 files");
    EXPECT_EQ(progressText(0, 500, 1s), "0 of 500 files");
    EXPECT_EQ(progressText(120, std::nullopt, 3s), "120 files, 40/s");
    EXPECT_EQ(progressText(120, 500, 3s), "120 of 500 files, 40/s, 10 s left");
    EXPECT_EQ(progressText(500, 500, 3s), "500 of 500 files, 167/s, 0 s left");
    EXPECT_EQ(progressText(6, 12, 60s), "6 of 12 files, 6/min, 1 min 0 s left");
    EXPECT_EQ(progressText(100, 1140100, 1s), "100 of 1140100 files, 100/s, 3 h 10 min left");
}

TEST(ProgressText, HasNoTimeLeftBeyondTheTotal) {
    EXPECT_EQ(progressText(20, 10, 1s), "20 of 10 files, 20/s");  // files came while others were counted
}

/// A terminal and a clock of the test's own.
class ProgressLine : public testing::Test {
protected:
    [[nodiscard]] std::string written() { return std::exchange(written_, ""); }
    void pass(std::chrono::milliseconds time) { now_ += time; }

    tool::Progress::Write write_ = [this](std::string_view text) {
        written_ += text;
    };
    tool::Progress::Now clock_ = [this] {
        return now_;
    };

private:
    std::string written_;
    tool::Progress::Clock::time_point now_;
};

TEST_F(ProgressLine, IsDrawnTenTimesASecondAtMost) {
    tool::Progress progress(write_, clock_);
    progress.show(1, std::nullopt);
    EXPECT_EQ(written(), "");
    pass(100ms);
    progress.show(2, 40);
    EXPECT_EQ(written(), "\r\x1b[K2 of 40 files, 20/s, 2 s left");
    pass(99ms);
    progress.show(3, 40);
    EXPECT_EQ(written(), "");
    pass(1ms);
    progress.show(4, 40);
    EXPECT_EQ(written(), "\r\x1b[K4 of 40 files, 20/s, 2 s left");
}

TEST_F(ProgressLine, IsErasedOnce) {
    tool::Progress progress(write_, clock_);
    progress.hide();
    EXPECT_EQ(written(), "");
    pass(1s);
    progress.show(0, std::nullopt);
    EXPECT_EQ(written(), "\r\x1b[K0 files");
    progress.hide();
    progress.hide();
    EXPECT_EQ(written(), "\r\x1b[K");
}

TEST_F(ProgressLine, IsErasedAtTheEnd) {
    {
        tool::Progress progress(write_, clock_);
        pass(1s);
        progress.show(0, std::nullopt);
    }
    EXPECT_EQ(written(), "\r\x1b[K0 files\r\x1b[K");
}

TEST_F(ProgressLine, IsNotDrawnWithoutTerminal) {
    tool::Progress progress({}, clock_);
    pass(1s);
    progress.show(1, std::nullopt);
    EXPECT_FALSE(progress.isShown());
}

class InputCountTest : public ToolTest {
protected:
    /// Waits for the total for up to ten seconds.
    static std::optional<std::size_t> totalOf(const tool::InputOptions& options) {
        const tool::InputCount count(options);
        for (int tries = 0; tries < 10000 && !count.total(); ++tries) {
            std::this_thread::sleep_for(1ms);
        }
        return count.total();
    }
};

TEST_F(InputCountTest, CountsWhatIsWorkedOn) {
    write("a.xml", "");
    write("b.xml", "");
    write("list", "missing.xml\n");
    EXPECT_EQ(totalOf({{pathText("."), "x.xml", "-"}, {pathText("list")}, false}), 5);
}

TEST_F(InputCountTest, CountsWhatCannotBeWalked) {
    std::filesystem::create_directory(path("empty"));
    EXPECT_EQ(totalOf({{pathText("empty"), "x.xml"}, {}, false}), 2);
}

TEST_F(InputCountTest, DoesNotReadListsThatCanBeReadOnlyOnce) {
    for (const std::string list : {"-", "/dev/null"}) {
        const tool::InputOptions options{{}, {list}, false};
        const tool::InputCount count(options);
        std::this_thread::sleep_for(20ms);
        EXPECT_EQ(count.total(), std::nullopt) << list;
    }
}

}  // namespace
