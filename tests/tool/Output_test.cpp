#include "ToolTest.h"

#include <lvdata/analysis/files/Descriptor.h>
#include <tools/lvdata/Failure.h>
#include <tools/lvdata/Output.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A pipe, whose reader can be closed.
class OutputToPipe : public testing::Test {
protected:
    OutputToPipe() : before_(std::signal(SIGPIPE, SIG_IGN)) {
        std::array<int, 2> ends{};
        lv::analysis::checked(::pipe2(ends.data(), O_NONBLOCK));
        reader_.emplace(ends[0]);
        writer_.emplace(ends[1]);
    }

    ~OutputToPipe() override { static_cast<void>(std::signal(SIGPIPE, before_)); }
    OutputToPipe(const OutputToPipe&) = delete;
    OutputToPipe& operator=(const OutputToPipe&) = delete;
    OutputToPipe(OutputToPipe&&) = delete;
    OutputToPipe& operator=(OutputToPipe&&) = delete;

    [[nodiscard]] int writer() const { return writer_->get(); }
    void closeReader() { reader_.reset(); }

    /// What was written since the last time.
    [[nodiscard]] std::string written() const {
        std::array<char, 1000> text{};
        const ssize_t size = ::read(reader_->get(), text.data(), text.size());
        return {text.data(), static_cast<std::size_t>(size < 0 ? 0 : size)};
    }

private:
    void (*before_)(int);
    std::optional<lv::analysis::Descriptor> reader_;
    std::optional<lv::analysis::Descriptor> writer_;
};

TEST_F(OutputToPipe, KeepsTextUntilItIsFlushed) {
    tool::Output output(writer());
    output.write("one");
    output.write(" two");
    EXPECT_EQ(written(), "");
    output.flush();
    EXPECT_EQ(written(), "one two");
}

TEST_F(OutputToPipe, WritesWhatIsLeftAtTheEnd) {
    {
        tool::Output output(writer());
        output.write("one");
    }
    EXPECT_EQ(written(), "one");
}

TEST_F(OutputToPipe, WritesLargeText) {
    tool::Output output(writer());
    output.write(std::string(65536, 'x'));
    EXPECT_EQ(written(), std::string(1000, 'x'));
}

TEST_F(OutputToPipe, CallsBackBeforeItWrites) {
    tool::Output output(writer());
    std::string before = "nothing";
    output.callBeforeWriting([this, &before] { before = "before: " + written(); });
    output.flush();
    EXPECT_EQ(before, "nothing");  // there was nothing to write
    output.write("one");
    output.flush();
    EXPECT_EQ(before, "before: ");
    output.callBeforeWriting({});
    output.write(" two");
    output.flush();
    EXPECT_EQ(written(), "one two");
}

TEST_F(OutputToPipe, IsWrittenBeforeAMessage) {
    tool::Output output(writer());
    std::string before = "nothing";
    output.callBeforeMessages([this, &before] { before = written(); });
    output.write("one");
    output.prepareForMessage();
    EXPECT_EQ(before, "one");
}

TEST_F(OutputToPipe, ReportsThatTheReaderIsGone) {
    tool::Output output(writer());
    closeReader();
    output.write("one");
    EXPECT_THROW(output.flush(), tool::ClosedPipe);
    EXPECT_NO_THROW(output.flush());
}

TEST(Output, ReportsOtherFailures) {
    const lv::analysis::Descriptor full(::open("/dev/full", O_WRONLY));  // NOLINT(cppcoreguidelines-pro-type-vararg)
    tool::Output output(full.get());
    output.write("one");
    try {
        output.flush();
        FAIL() << "nothing was thrown";
    } catch (const tool::Failure& failure) {
        EXPECT_EQ(failure.what(), "<stdout>: error: " + std::generic_category().message(ENOSPC));
    }
}

/// Makes standard output a pipe that nobody reads.
bool closePipe() {
    std::array<int, 2> ends{};
    return ::pipe2(ends.data(), 0) == 0 && ::dup2(ends[1], STDOUT_FILENO) >= 0 && ::close(ends[0]) == 0;
}

bool closePipeAndIgnoreSignal() {
    return closePipe() && std::signal(SIGPIPE, SIG_IGN) != SIG_ERR;
}

using OutputOfTool = ToolTest;

TEST_F(OutputOfTool, EndsQuietlyWhenTheReaderIsGone) {
    write("a.xml", "<AssetInfo/>");
    const std::vector<std::vector<std::string>> commands{{"format", "a.xml"}, {"--help"}, {"--version"}};
    for (const auto& command : commands) {
        for (const auto& prepare : {closePipe, closePipeAndIgnoreSignal}) {
            EXPECT_EQ(run(command, {"", "", prepare}), (Outcome{128 + SIGPIPE, "", ""}));
        }
    }
}

}  // namespace
