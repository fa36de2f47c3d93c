#include "PosixTest.h"

#include <tests/tool/InputWalkTest.h>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::EndsWith;

// As outputs.

using SymbolicLink = PosixTest;

TEST_F(SymbolicLink, IsWrittenThrough) {
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

TEST_F(SymbolicLink, IsFormattedInPlace) {
    fs::create_symlink(path("in.xml"), path("link.xml"));
    EXPECT_EQ(run({"format", "--no-declaration", "link.xml", "-o", "link.xml"}), done());
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_EQ(read("in.xml"), tidy);
}

TEST_F(SymbolicLink, KeepsTheFileBehindItAfterAFailure) {
    fs::create_symlink("large.xml", path("link.xml"));
    EXPECT_EQ(run({"format", "link.xml", "-o", "link.xml"}, {"", "", limitFileSize}),
              failed("link.xml: error: File too large"));
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_TRUE(read("large.xml") == large());
    EXPECT_TRUE(holdsBesides({"link.xml"}));
}

TEST_F(SymbolicLink, ToNothingGetsItsFile) {
    fs::create_symlink("new.xml", path("link.xml"));
    EXPECT_EQ(formatTo("link.xml"), done());
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_EQ(read("new.xml"), tidy);
    EXPECT_TRUE(holdsBesides({"link.xml", "new.xml"}));
}

TEST_F(SymbolicLink, InALoopIsReported) {
    fs::create_symlink("b", path("a"));
    fs::create_symlink("a", path("b"));
    EXPECT_EQ(formatTo("a"), failed("a: error: Too many levels of symbolic links"));
    EXPECT_EQ(run({"format", "a"}), failed("a: error: Too many levels of symbolic links"));
    EXPECT_TRUE(holdsBesides({"a", "b"}));
}

TEST_F(SymbolicLink, ToAnInputIsNotOverwritten) {
    write("in.xml", "<MonitorInfo><Owner/></MonitorInfo>");
    fs::create_symlink("in.xml", path("link.xml"));
    const std::string end = "link.xml: error: not overwritten, since it ";
    EXPECT_THAT(run({"format", "in.xml", "-o", "link.xml"}).error,
                EndsWith(end + "would lose what is listed above (allow it: --lossy)\n"));
    EXPECT_THAT(run({"report", "./in.xml", "-o", "link.xml"}).error, EndsWith(end + "is one of the inputs\n"));
    EXPECT_TRUE(fs::is_symlink(path("link.xml")));
    EXPECT_EQ(read("in.xml"), "<MonitorInfo><Owner/></MonitorInfo>");
}

// As inputs.

using WalkOfLinks = InputWalkTest;

TEST_F(WalkOfLinks, IgnoresLinksToFolders) {
    make({"in/deep/a.xml", "other/b.xml"});
    fs::create_directory_symlink("..", path("in/deep/up"));
    fs::create_directory_symlink("../other", path("in/other.xml"));
    EXPECT_THAT(walk(Names{"in"}), ElementsAre("in/deep/a.xml"));
}

TEST_F(WalkOfLinks, FollowsALinkThatIsAPath) {
    make({"in/a.xml"});
    fs::create_directory_symlink("in", path("link"));
    EXPECT_THAT(walk(Names{"link"}), ElementsAre("link/a.xml"));
}

TEST_F(WalkOfLinks, TakesLinksToFilesAndThoseThatLeadNowhere) {
    make({"a.xml", "in/z.xml"});
    fs::create_symlink("../a.xml", path("in/link.xml"));
    fs::create_symlink("missing", path("in/broken.xml"));
    EXPECT_THAT(walk(Names{"in"}), ElementsAre("in/broken.xml", "in/link.xml", "in/z.xml"));
}

}  // namespace
