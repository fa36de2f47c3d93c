#include "PosixTest.h"

#include <array>
#include <csignal>
#include <functional>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

// Standard streams, devices and pipes.

namespace {

namespace fs = std::filesystem;

using Streams = PosixTest;

TEST_F(Streams, ADeviceIsWrittenInto) {
    // As a user who cannot rename anything in /dev: a tool that went wrong would replace the machine's own devices.
    const auto written = runUnprivileged({"format", "in.xml", "-o", "/dev/null"});
    if (!written) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(written->exitCode, 0) << written->error;
    const auto refused = runUnprivileged({"format", "in.xml", "-o", "/dev/full"});
    EXPECT_EQ(refused->exitCode, 2);
    EXPECT_THAT(refused->error, testing::HasSubstr("/dev/full: error: No space left on device\n"));
}

TEST_F(Streams, APipeIsWrittenInto) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): that is how open is declared
    const int reader = ::open(path("pipe").c_str(), O_RDWR | O_NONBLOCK);  // holds both ends, so that nobody waits
    ASSERT_GE(reader, 0);
    EXPECT_EQ(formatTo("pipe"), done());
    std::string received(2 * tidy.size(), ' ');
    EXPECT_EQ(::read(reader, received.data(), received.size()), static_cast<ssize_t>(tidy.size()));
    EXPECT_EQ(received.substr(0, tidy.size()), tidy);
    ::close(reader);
    EXPECT_TRUE(fs::is_fifo(path("pipe")));
    EXPECT_TRUE(holdsBesides({"pipe"}));
}

TEST_F(Streams, StandardOutputIsNotReplacedUnderItsOtherName) {
    write("log", "before\n");
    fs::create_symlink("/proc/self/fd/1", path("stdout"));  // as /dev/stdout is
    EXPECT_EQ(formatTo("stdout", {"", path("log")}), done());
    EXPECT_EQ(read("log"), "before\n" + tidy);
    EXPECT_EQ(formatTo("log", {"", path("log")}), done());
    EXPECT_EQ(read("log"), "before\n" + tidy + tidy);
}

TEST_F(Streams, AnOpenFileWithoutANameIsWrittenInto) {
    const int file = ::open(path("log").c_str(), O_RDWR | O_CREAT, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    fs::remove(path("log"));
    EXPECT_EQ(formatTo("/dev/fd/" + std::to_string(file)), done());
    std::string received(2 * tidy.size(), ' ');
    EXPECT_EQ(::pread(file, received.data(), received.size(), 0), static_cast<ssize_t>(tidy.size()));
    EXPECT_EQ(received.substr(0, tidy.size()), tidy);
    ::close(file);
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Streams, StandardOutputWithoutANameIsWrittenInto) {
    write("log", "");
    const auto removeName = [this] {
        return fs::remove(path("log"));
    };
    EXPECT_EQ(formatTo("/dev/stdout", {"", path("log"), removeName}), done());
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Streams, APipeWithoutReaderEndsTheCommandQuietly) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    ::close(pipe[0]);
    const auto asStandardOutput = [&pipe] {
        return ::dup2(pipe[1], STDOUT_FILENO) >= 0;
    };
    const auto withSignalIgnored = [&asStandardOutput] {
        return std::signal(SIGPIPE, SIG_IGN) != SIG_ERR && asStandardOutput();
    };
    for (const std::function<bool()>& prepare : {std::function<bool()>(asStandardOutput), {withSignalIgnored}}) {
        EXPECT_EQ(formatTo("-", {"", "", prepare}), (Outcome{128 + SIGPIPE, "", ""}));
        EXPECT_EQ(formatTo("/dev/fd/" + std::to_string(pipe[1]), {"", "", prepare}), (Outcome{128 + SIGPIPE, "", ""}));
    }
    ::close(pipe[1]);
}

TEST_F(Streams, ClosedStandardStreamsAreReported) {
    const auto close = [](int stream) {
        return Surroundings{untidy, "", [stream] {
                                return ::close(stream) == 0;
                            }};
    };
    EXPECT_EQ(run({"format", "in.xml"}, close(STDOUT_FILENO)), failed("<stdout>: error: Bad file descriptor"));
    EXPECT_EQ(run({"format", "-"}, close(STDIN_FILENO)), failed("<stdin>: error: Bad file descriptor"));
    EXPECT_EQ(formatTo("out.xml", close(STDOUT_FILENO)), done());
    EXPECT_EQ(read("out.xml"), tidy);
}

TEST_F(Streams, AFailureHasTheSameStatusWithClosedStandardError) {
    const auto closeError = [] {
        return ::close(STDERR_FILENO) == 0;
    };
    write("out.xml", "old");
    EXPECT_EQ(run({"format", "large.xml", "-o", "out.xml"}, {"", "",
                                                             [&] {
                                                                 return limitFileSize() && closeError();
                                                             }}),
              (Outcome{2, "", ""}));
    EXPECT_EQ(read("out.xml"), "old");
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(Streams, IsExceededByOneByteAtMostWhileReading) {
    write("in.xml", std::string(300'000, ' '));
    for (const off_t limit : {0, 10, 65'535, 65'536, 200'000}) {
        const int file = ::open(path("in.xml").c_str(), O_RDONLY);  // NOLINT(cppcoreguidelines-pro-type-vararg)
        const auto shareItsPosition = [file] {
            return ::dup2(file, STDIN_FILENO) >= 0;
        };
        EXPECT_EQ(run({"format", "-", "--max-size", std::to_string(limit)}, {"", "", shareItsPosition}).exitCode, 2);
        EXPECT_EQ(::lseek(file, 0, SEEK_CUR), limit + 1);
        ::close(file);
    }
}

TEST_F(Streams, OutputAndErrorHaveResultsAndMessagesInOrder) {
    write("a.xml", "1");
    write("z.xml", "333");
    EXPECT_EQ(runBash(LVDATA_PROBE " size a.xml no.xml z.xml 2>&1"),
              (Outcome{2, "a.xml 1\nno.xml: error: No such file or directory\nz.xml 3\n", ""}));
}

}  // namespace
