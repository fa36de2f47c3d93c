#include "OutputTest.h"

#include <csignal>
#include <functional>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using ReplaceFile = OutputTest;

TEST_F(ReplaceFile, OutputReplacesALongerFileCompletely) {
    write("out.xml", large());
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("out.xml"), tidy);
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(ReplaceFile, OutputIntoAnotherFolderLeavesNothingElse) {
    fs::create_directory(path("folder"));
    EXPECT_EQ(formatTo("folder/out.xml"), done());
    EXPECT_EQ(formatTo(path("folder/absolute.xml")), done());
    EXPECT_EQ(read("folder/out.xml"), tidy);
    EXPECT_EQ(read("folder/absolute.xml"), tidy);
    EXPECT_EQ(std::distance(fs::directory_iterator(path("folder")), {}), 2);
    EXPECT_TRUE(holdsBesides({"folder"}));
}

TEST_F(ReplaceFile, OutputMayHaveTheLongestName) {
    const std::string longest(255, 'x');
    EXPECT_EQ(formatTo(longest), done());
    EXPECT_EQ(read(longest), tidy);
}

TEST_F(ReplaceFile, InPlaceFormattingRepeatsWithoutChange) {
    EXPECT_EQ(formatTo("in.xml"), done());
    EXPECT_EQ(read("in.xml"), tidy);
    EXPECT_EQ(formatTo("in.xml"), done());
    EXPECT_EQ(read("in.xml"), tidy);
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(ReplaceFile, ReplacingIsOneStep) {
    write("out.xml", "old");
    fs::create_hard_link(path("out.xml"), path("witness"));
    EXPECT_EQ(formatTo("out.xml"), done());
    EXPECT_EQ(read("witness"), "old") << "the old file was written into";
    EXPECT_EQ(read("out.xml"), tidy);
}

TEST_F(ReplaceFile, PermissionsOfAnExistingFileStay) {
    for (const unsigned int bits : {0600U, 0640U, 0664U, 0755U, 0666U}) {
        write("out.xml", "old");
        fs::permissions(path("out.xml"), fs::perms{bits});
        EXPECT_EQ(formatTo("out.xml"), done());
        EXPECT_EQ(permissionsOf(path("out.xml")), bits);
        EXPECT_EQ(read("out.xml"), tidy);
    }
}

TEST_F(ReplaceFile, PermissionsOfANewFileFollowTheMask) {
    for (const mode_t mask : {mode_t{022}, mode_t{027}, mode_t{077}, mode_t{0}}) {
        fs::remove(path("out.xml"));
        const auto setMask = [mask] {
            return ::umask(mask), true;
        };
        EXPECT_EQ(formatTo("out.xml", {"", "", setMask}), done());
        EXPECT_EQ(permissionsOf(path("out.xml")), 0666U & ~mask);
    }
}

TEST_F(ReplaceFile, OwnerOfAnExistingFileStays) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can give files away";
    }
    write("out.xml", "old");
    ASSERT_EQ(::chown(path("out.xml").c_str(), 1234, 4321), 0);
    fs::permissions(path("out.xml"), fs::perms{04755});
    EXPECT_EQ(formatTo("out.xml"), done());
    struct stat status = {};
    ASSERT_EQ(::stat(path("out.xml").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
    EXPECT_EQ(status.st_mode & 07777U, 04755U);
}

TEST_F(ReplaceFile, WriteProtectionIsRespected) {
    write("out.xml", "old");
    fs::permissions(path("out.xml"), fs::perms{0444});
    const auto outcome = runUnprivileged({"format", "in.xml", "-o", "out.xml"});
    if (!outcome) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome->exitCode, 2);
    EXPECT_THAT(outcome->error, testing::HasSubstr("out.xml: error: Permission denied\n"));
    EXPECT_EQ(read("out.xml"), "old");
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(ReplaceFile, ABadInputKeepsTheOldFile) {
    write("out.xml", "old");
    for (const std::string input : {"broken.xml", "missing.xml", "."}) {
        EXPECT_EQ(run({"format", input, "-o", "out.xml"}).exitCode, 2);
        EXPECT_EQ(read("out.xml"), "old");
    }
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(ReplaceFile, ABadInputMakesNoNewFile) {
    EXPECT_EQ(run({"format", "broken.xml", "-o", "out.xml"}).exitCode, 2);
    EXPECT_EQ(run({"format", "broken.xml", "-o", "broken.xml"}).exitCode, 2);
    EXPECT_EQ(read("broken.xml"), "<AssetInfo>");
    EXPECT_TRUE(holdsBesides({}));
}

TEST_F(ReplaceFile, AFailureWhileWritingKeepsTheOldFile) {
    const Surroundings limited{"", "", limitFileSize};
    write("out.xml", "old");
    EXPECT_EQ(run({"format", "large.xml", "-o", "out.xml"}, limited), failed("out.xml: error: File too large"));
    EXPECT_EQ(run({"format", "large.xml", "-o", "large.xml"}, limited), failed("large.xml: error: File too large"));
    EXPECT_EQ(run({"format", "large.xml", "-o", "new.xml"}, limited), failed("new.xml: error: File too large"));
    EXPECT_EQ(read("out.xml"), "old");
    EXPECT_TRUE(read("large.xml") == large());
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

/// To prepare a run: the tool gets the signal after some milliseconds.
std::function<bool()> signalAfter(int signal, int milliseconds) {
    return [=] {
        const pid_t tool = ::getpid();
        if (::fork() == 0) {
            ::usleep(static_cast<useconds_t>(milliseconds) * 1000);
            if (::getppid() == tool) {
                ::kill(tool, signal);
            }
            ::_exit(0);
        }
        return true;
    };
}

TEST_F(ReplaceFile, ASignalAtAnyTimeLeavesTheOldOrTheNewFile) {
    write("out.xml", "old");
    ASSERT_EQ(run({"format", "large.xml", "-o", "whole.xml"}), done());
    for (int milliseconds = 0; milliseconds < 60; milliseconds += 2) {
        const int signal = milliseconds % 4 == 0 ? SIGINT : SIGTERM;
        const int code =
            run({"format", "large.xml", "-o", "out.xml"}, {"", "", signalAfter(signal, milliseconds)}).exitCode;
        EXPECT_TRUE(code == 0 || code == 128 + signal) << code;
        EXPECT_TRUE((code != 0 && read("out.xml") == "old") || read("out.xml") == read("whole.xml"));
        EXPECT_TRUE(holdsBesides({"out.xml", "whole.xml"}));
        write("out.xml", "old");
    }
}

}  // namespace
