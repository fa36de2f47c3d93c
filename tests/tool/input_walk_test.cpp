#include "ToolTest.h"

#include <tools/lvdata/Failure.h>
#include <tools/lvdata/InputOptions.h>
#include <tools/lvdata/InputWalk.h>

#include <cerrno>
#include <system_error>

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using Names = std::vector<std::string>;

/// A folder with some documents, seen from inside.
class InputWalkTest : public ToolTest {
protected:
    InputWalkTest() : before_(fs::current_path()) { fs::current_path(path(".")); }
    ~InputWalkTest() override { fs::current_path(before_); }
    InputWalkTest(const InputWalkTest&) = delete;
    InputWalkTest& operator=(const InputWalkTest&) = delete;
    InputWalkTest(InputWalkTest&&) = delete;
    InputWalkTest& operator=(InputWalkTest&&) = delete;

    /// The inputs in their order; failures stand among them.
    static Names walk(const tool::InputOptions& options) {
        Names found;
        tool::InputWalk inputs(options);
        while (takeNext(inputs, found)) {
        }
        return found;
    }

    static Names walk(const Names& paths) { return walk(tool::InputOptions{paths, {}, false}); }
    static Names walkList(const std::string& list, bool nulSeparated = false) {
        return walk(tool::InputOptions{{}, {list}, nulSeparated});
    }

    /// Empty files; folders are made where needed.
    void make(const Names& names) const {
        for (const std::string& name : names) {
            fs::create_directories(path(name).parent_path());
            write(name, "");
        }
    }

private:
    static bool takeNext(tool::InputWalk& inputs, Names& found) {
        try {
            const auto input = inputs.next();
            if (input) {
                found.push_back(input->file);
            }
            return input.has_value();
        } catch (const tool::Failure& failure) {
            found.emplace_back(failure.what());
            return true;
        }
    }

    fs::path before_;
};

TEST_F(InputWalkTest, KeepsTheOrderOfPaths) {
    make({"b.xml", "a.xml"});
    EXPECT_THAT(walk(Names{"b.xml", "-", "a.xml", "missing.xml"}), ElementsAre("b.xml", "-", "a.xml", "missing.xml"));
}

TEST_F(InputWalkTest, TakesAnyNameThatIsAPath) {
    make({"notes.txt"});
    EXPECT_THAT(walk(Names{"notes.txt"}), ElementsAre("notes.txt"));
}

TEST_F(InputWalkTest, WalksFoldersInTheOrderOfTheBytesOfNames) {
    make({"in/b.xml", "in/a/z.xml", "in/a.xml", "in/B.xml", "in/\xC3\xA4.xml", "in/c/d/e.xml"});
    EXPECT_THAT(walk(Names{"in"}),
                ElementsAre("in/B.xml", "in/a/z.xml", "in/a.xml", "in/b.xml", "in/c/d/e.xml", "in/\xC3\xA4.xml"));
}

TEST_F(InputWalkTest, TakesOnlyDocumentsFromFolders) {
    make({"in/a.xml", "in/a.XML", "in/a.xml~", "in/xml", "in/.xml", "in/.hidden/a.xml"});
    EXPECT_THAT(walk(Names{"in/"}), ElementsAre("in/.hidden/a.xml", "in/.xml", "in/a.xml"));
}

TEST_F(InputWalkTest, IgnoresDevicesAndPipesInFolders) {
    make({"in/b.xml"});
    ASSERT_EQ(::mkfifo(path("in/a.xml").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", path("in/c.xml"));
    EXPECT_THAT(walk(Names{"in"}), ElementsAre("in/b.xml"));
}

TEST_F(InputWalkTest, ReportsFoldersWithoutDocuments) {
    make({"none/notes.txt", "none/deep/notes.txt", "a.xml"});
    fs::create_directory(path("empty"));
    const std::string reason = ": error: no files named *.xml in this folder";
    EXPECT_THAT(walk(Names{"none", "a.xml", "empty"}), ElementsAre("none" + reason, "a.xml", "empty" + reason));
}

TEST_F(InputWalkTest, IgnoresLinksToFolders) {
    make({"in/deep/a.xml", "other/b.xml"});
    fs::create_directory_symlink("..", path("in/deep/up"));
    fs::create_directory_symlink("../other", path("in/other.xml"));
    EXPECT_THAT(walk(Names{"in"}), ElementsAre("in/deep/a.xml"));
}

TEST_F(InputWalkTest, FollowsALinkThatIsAPath) {
    make({"in/a.xml"});
    fs::create_directory_symlink("in", path("link"));
    EXPECT_THAT(walk(Names{"link"}), ElementsAre("link/a.xml"));
}

TEST_F(InputWalkTest, TakesLinksToFilesAndThoseThatLeadNowhere) {
    make({"a.xml", "in/z.xml"});
    fs::create_symlink("../a.xml", path("in/link.xml"));
    fs::create_symlink("missing", path("in/broken.xml"));
    EXPECT_THAT(walk(Names{"in"}), ElementsAre("in/broken.xml", "in/link.xml", "in/z.xml"));
}

TEST_F(InputWalkTest, GoesOnAfterAFolderThatCannotBeRead) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root reads everything";
    }
    make({"in/a.xml", "in/closed/b.xml", "in/z.xml"});
    fs::permissions(path("in/closed"), fs::perms::none);
    EXPECT_THAT(walk(Names{"in", "in/closed"}), ElementsAre("in/a.xml", "in/closed: error: Permission denied",
                                                            "in/z.xml", "in/closed: error: Permission denied"));
    fs::permissions(path("in/closed"), fs::perms::owner_all);
}

TEST_F(InputWalkTest, TakesNamesFromAListAfterThePaths) {
    make({"in/a.xml"});
    write("list", "in\n\nb c.xml\n-\nlast.xml");
    EXPECT_THAT(walk(tool::InputOptions{{"first.xml"}, {"list"}, false}),
                ElementsAre("first.xml", "in/a.xml", "b c.xml", "./-", "last.xml"));
}

TEST_F(InputWalkTest, TakesNamesThatAreSeparatedByNul) {
    using namespace std::string_literals;
    write("list", "a\nb.xml\0\0c.xml\0"s);
    EXPECT_THAT(walkList("list", true), ElementsAre("a\nb.xml", "c.xml"));
}

TEST_F(InputWalkTest, TakesLongLists) {
    std::string list;
    Names names;
    for (int index = 0; index < 3000; ++index) {
        names.push_back(std::to_string(index) + ".xml");
        list += names.back() + '\n';
    }
    write("list", list);
    EXPECT_EQ(walkList("list"), names);
}

TEST_F(InputWalkTest, ReportsListsThatCannotBeRead) {
    fs::create_directory(path("in"));
    write("list", "a.xml\n");
    EXPECT_THAT(walk(tool::InputOptions{{}, {"missing", "in", "list"}, false}),
                ElementsAre("missing: error: " + std::generic_category().message(ENOENT),
                            "in: error: " + std::generic_category().message(EISDIR), "a.xml"));
}

TEST_F(InputWalkTest, RefusesWhatCannotBeAName) {
    using namespace std::string_literals;
    write("nul", "a.xml\0b.xml\nc.xml"s);
    EXPECT_THAT(walkList("nul"), ElementsAre("nul: error: NUL character in a name (separated by NUL: -0)"));
    EXPECT_THAT(walkList("/dev/zero"), ElementsAre("/dev/zero: error: name longer than 65536 bytes"));
}

}  // namespace
