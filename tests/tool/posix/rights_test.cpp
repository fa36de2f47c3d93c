#include "PosixTest.h"

#include <tests/tool/InputWalkTest.h>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

// Users, and what they may do with files.

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;

using Rights = PosixTest;

TEST_F(Rights, PermissionsOfAnExistingFileStay) {
    for (const unsigned int bits : {0600U, 0640U, 0664U, 0755U, 0666U}) {
        write("out.xml", "old");
        fs::permissions(path("out.xml"), fs::perms{bits});
        EXPECT_EQ(formatTo("out.xml"), done());
        EXPECT_EQ(permissionsOf(path("out.xml")), bits);
        EXPECT_EQ(read("out.xml"), tidy);
    }
}

TEST_F(Rights, PermissionsOfANewFileFollowTheMask) {
    for (const mode_t mask : {mode_t{022}, mode_t{027}, mode_t{077}, mode_t{0}}) {
        fs::remove(path("out.xml"));
        const auto setMask = [mask] {
            return ::umask(mask), true;
        };
        EXPECT_EQ(formatTo("out.xml", {"", "", setMask}), done());
        EXPECT_EQ(permissionsOf(path("out.xml")), 0666U & ~mask);
    }
}

TEST_F(Rights, OwnerOfAnExistingFileStays) {
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

TEST_F(Rights, WriteProtectionIsRespected) {
    write("out.xml", "old");
    fs::permissions(path("out.xml"), fs::perms{0444});
    const auto outcome = runUnprivileged({"format", "in.xml", "-o", "out.xml"});
    if (!outcome) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome->exitCode, 2);
    EXPECT_THAT(outcome->error, HasSubstr("out.xml: error: Permission denied\n"));
    EXPECT_EQ(read("out.xml"), "old");
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST_F(Rights, AnUnreadableFileIsReported) {
    fs::permissions(path("in.xml"), fs::perms{0});
    const auto outcome = runUnprivileged({"format", "in.xml"});
    if (!outcome) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome->exitCode, 2);
    EXPECT_THAT(outcome->error, HasSubstr("in.xml: error: Permission denied\n"));
}

TEST_F(Rights, MissingForAFolderAreReportedAndTheOthersAreWorkedOn) {
    fs::create_directories(path("in/closed"));
    fs::create_directories(path("only/closed"));
    write("in/a.xml", "1");
    write("in/z.xml", "333");
    fs::permissions(path("in/closed"), fs::perms::none);
    fs::permissions(path("only/closed"), fs::perms::none);
    const auto outcome = runUnprivileged({"size", "in", "only"}, LVDATA_PROBE);
    if (!outcome) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome, (Outcome{2, "in/a.xml 1\nin/z.xml 3\n",
                                "in/closed: error: Permission denied\nonly/closed: error: Permission denied\n"}));
}

using WalkOfClosedFolders = InputWalkTest;

TEST_F(WalkOfClosedFolders, GoesOnAfterAFolderThatCannotBeRead) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root reads everything";
    }
    make({"in/a.xml", "in/closed/b.xml", "in/z.xml"});
    fs::permissions(path("in/closed"), fs::perms::none);
    EXPECT_THAT(walk(Names{"in", "in/closed"}), ElementsAre("in/a.xml", "in/closed: error: Permission denied",
                                                            "in/z.xml", "in/closed: error: Permission denied"));
    fs::permissions(path("in/closed"), fs::perms::owner_all);
}

}  // namespace
