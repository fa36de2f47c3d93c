#include "OutputTest.h"

#include <array>
#include <csignal>
#include <functional>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using Files = OutputTest;

TEST_F(Files, OutputGoesIntoANewFile) {
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("out.xml"), tidy);
    EXPECT_EQ(read("in.xml"), untidy);
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(Files, OutputHasALongOption) {
    EXPECT_EQ(run({"format", "--no-declaration", "--output", "one.xml", "in.xml"}), done());
    EXPECT_EQ(run({"format", "--no-declaration", "--output=two.xml", "in.xml"}), done());
    EXPECT_EQ(read("one.xml"), tidy);
    EXPECT_EQ(read("two.xml"), tidy);
}

TEST_F(Files, OutputMayBeStandardOutput) {
    EXPECT_EQ(formatTo("-"), printed(tidy));
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, AnUnreadableFileIsReported) {
    fs::permissions(path("in.xml"), fs::perms{0});
    const auto outcome = runUnprivileged({"format", "in.xml"});
    if (!outcome) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome->exitCode, 2);
    EXPECT_THAT(outcome->error, testing::HasSubstr("in.xml: error: Permission denied\n"));
}

TEST_F(Files, AMissingFolderIsReported) {
    EXPECT_EQ(formatTo("no/out.xml"), failed("no/out.xml: error: No such file or directory"));
    EXPECT_EQ(formatTo("no/"), failed("no/: error: No such file or directory"));
    EXPECT_EQ(formatTo("in.xml/out.xml"), failed("in.xml/out.xml: error: Not a directory"));
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, AFolderIsNotReplaced) {
    fs::create_directory(path("folder"));
    EXPECT_EQ(formatTo("folder"), failed("folder: error: Is a directory"));
    EXPECT_EQ(formatTo("folder/"), failed("folder/: error: Is a directory"));
    EXPECT_TRUE(fs::is_empty(path("folder")));
    EXPECT_TRUE(holdsBesides({"folder"}));
}

TEST_F(Files, ASymbolicLinkIsWrittenThrough) {
    fs::create_directory(path("folder"));
    write("folder/file.xml", "old");
    fs::permissions(path("folder/file.xml"), fs::perms{0640});
    fs::create_symlink("file.xml", path("folder/near"));
    fs::create_symlink("folder/near", path("link.xml"));
    EXPECT_EQ(formatTo("link.xml"), done());
    EXPECT_EQ(fs::read_symlink(path("link.xml")), "folder/near");
    EXPECT_EQ(fs::read_symlink(path("folder/near")), "file.xml");
    EXPECT_FALSE(fs::is_symlink(path("folder/file.xml")));
    EXPECT_EQ(read("folder/file.xml"), tidy);
    EXPECT_EQ(permissionsOf(path("folder/file.xml")), 0640U);
    EXPECT_EQ(std::distance(fs::directory_iterator(path("folder")), {}), 2);
    EXPECT_TRUE(holdsBesides({"folder", "link.xml"}));
}

TEST_F(Files, ASymbolicLinkIsFormattedInPlace) {
    fs::create_symlink(path("in.xml"), path("link.xml"));
    EXPECT_EQ(run({"format", "--no-declaration", "link.xml", "-o", "link.xml"}), done());
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_EQ(read("in.xml"), tidy);
}

TEST_F(Files, AFailureThroughASymbolicLinkKeepsTheOldFile) {
    fs::create_symlink("large.xml", path("link.xml"));
    EXPECT_EQ(run({"format", "link.xml", "-o", "link.xml"}, {"", "", limitFileSize}),
              failed("link.xml: error: File too large"));
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_TRUE(read("large.xml") == large());
    EXPECT_TRUE(holdsBesides({"link.xml"}));
}

TEST_F(Files, ASymbolicLinkToNothingGetsItsFile) {
    fs::create_symlink("new.xml", path("link.xml"));
    EXPECT_EQ(formatTo("link.xml"), done());
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_EQ(read("new.xml"), tidy);
    EXPECT_TRUE(holdsBesides({"link.xml", "new.xml"}));
}

TEST_F(Files, ALoopOfSymbolicLinksIsReported) {
    fs::create_symlink("b", path("a"));
    fs::create_symlink("a", path("b"));
    EXPECT_EQ(formatTo("a"), failed("a: error: Too many levels of symbolic links"));
    EXPECT_EQ(run({"format", "a"}), failed("a: error: Too many levels of symbolic links"));
    EXPECT_TRUE(holdsBesides({"a", "b"}));
}

TEST_F(Files, ADeviceIsWrittenInto) {
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

TEST_F(Files, APipeIsWrittenInto) {
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

TEST_F(Files, StandardOutputIsNotReplacedUnderItsOtherName) {
    write("log", "before\n");
    fs::create_symlink("/proc/self/fd/1", path("stdout"));  // as /dev/stdout is
    EXPECT_EQ(formatTo("stdout", {"", path("log")}), done());
    EXPECT_EQ(read("log"), "before\n" + tidy);
    EXPECT_EQ(formatTo("log", {"", path("log")}), done());
    EXPECT_EQ(read("log"), "before\n" + tidy + tidy);
}

TEST_F(Files, AnOpenFileWithoutANameIsWrittenInto) {
    const int file = ::open(path("log").c_str(), O_RDWR | O_CREAT, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    fs::remove(path("log"));
    EXPECT_EQ(formatTo("/dev/fd/" + std::to_string(file)), done());
    std::string received(2 * tidy.size(), ' ');
    EXPECT_EQ(::pread(file, received.data(), received.size(), 0), static_cast<ssize_t>(tidy.size()));
    EXPECT_EQ(received.substr(0, tidy.size()), tidy);
    ::close(file);
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, StandardOutputWithoutANameIsWrittenInto) {
    write("log", "");
    const auto removeName = [this] {
        return fs::remove(path("log"));
    };
    EXPECT_EQ(formatTo("/dev/stdout", {"", path("log"), removeName}), done());
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(Files, APipeWithoutReaderEndsTheCommandQuietly) {
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

TEST_F(Files, AFailingStandardOutputIsReported) {
    EXPECT_EQ(run({"format", "in.xml"}, {"", "/dev/full"}), failed("<stdout>: error: No space left on device"));
    EXPECT_EQ(run({"format", "large.xml"}, {"", "/dev/full"}), failed("<stdout>: error: No space left on device"));
    EXPECT_EQ(run({"format", "large.xml"}, {"", path("out.xml"), limitFileSize}),
              failed("<stdout>: error: File too large"));
}

TEST_F(Files, ClosedStandardStreamsAreReported) {
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

TEST_F(Files, AFailureHasTheSameStatusWithClosedStandardError) {
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

}  // namespace
