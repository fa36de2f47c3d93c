#include <lvdata/analysis/files/DocumentWalk.h>

#include <tests/analysis/files/Folder.h>

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

using lv::analysis::DocumentWalk;
using testing::ElementsAre;

/// What a walk finds below a path, without the path; reasons stand in brackets.
std::vector<std::string> found(const std::string& path) {
    DocumentWalk walk;
    walk.start(path);
    std::vector<std::string> result;
    while (const auto each = walk.next()) {
        const std::string name = fs::path(each->path).lexically_relative(path);
        result.push_back(name + (each->reason.empty() ? "" : " (" + each->reason + ")"));
        EXPECT_EQ(each->reason.empty(), !each->error);
    }
    EXPECT_FALSE(walk.next());
    return result;
}

}  // namespace

TEST(DocumentWalk, TakesFilesAndFoldersInTheOrderOfTheBytesOfTheirNames) {
    const lv::test::Folder folder;
    fs::create_directories(folder.path("b/a"));
    for (const char* const name : {"c.xml", "a.xml", "b/z.xml", "b/a/x.xml", "B.xml", "note.txt"}) {
        folder.write(name, "");
    }
    fs::create_directory_symlink(folder.path("b"), folder.path("link"));
    EXPECT_THAT(found(folder.path(".")), ElementsAre("B.xml", "a.xml", "b/a/x.xml", "b/z.xml", "c.xml"));
    EXPECT_THAT(found(folder.path("link")), ElementsAre("a/x.xml", "z.xml"));
}

TEST(DocumentWalk, TakesAFileAsItIs) {
    EXPECT_THAT(found("missing.txt"), ElementsAre("."));
}

TEST(DocumentWalk, SaysThatAFolderHoldsNoDocument) {
    const lv::test::Folder folder;
    fs::create_directory(folder.path("inside"));
    EXPECT_THAT(found(folder.path(".")), ElementsAre(". (no files named *.xml in this folder)"));
}

TEST(DocumentWalk, DropsWhatIsLeftWhenItStartsAgain) {
    const lv::test::Folder folder;
    folder.write("a.xml", "");
    folder.write("b.xml", "");
    DocumentWalk walk;
    walk.start(folder.path("."));
    EXPECT_EQ(fs::path(walk.next()->path).filename(), "a.xml");
    walk.start("other");
    EXPECT_EQ(walk.next()->path, "other");
    EXPECT_FALSE(walk.next());
}
