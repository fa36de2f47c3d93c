#include "InputWalkTest.h"

#include <cerrno>
#include <system_error>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;

TEST_F(InputWalkTest, KeepsTheOrderOfPaths) {
    make({"b.xml", "a.xml"});
    EXPECT_THAT(walk(Names{"b.xml", "-", "a.xml", "missing.xml"}), ElementsAre("b.xml", "-", "a.xml", "missing.xml"));
}

TEST_F(InputWalkTest, TakesAnyNameThatIsAPath) {
    make({"notes.txt"});
    EXPECT_THAT(walk(Names{"notes.txt"}), ElementsAre("notes.txt"));
}

TEST_F(InputWalkTest, WalksFoldersInTheOrderOfTheBytesOfNames) {
    make({"in/b.xml", "in/a/z.xml", "in/a.xml", "in/Z.xml", "in/\xC3\xA4.xml", "in/c/d/e.xml"});
    EXPECT_THAT(walk(Names{"in"}),
                ElementsAre("in/Z.xml", "in/a/z.xml", "in/a.xml", "in/b.xml", "in/c/d/e.xml", "in/\xC3\xA4.xml"));
}

TEST_F(InputWalkTest, TakesOnlyDocumentsFromFolders) {
    make({"in/a.xml", "in/a.XML", "in/a.xml~", "in/xml", "in/.xml", "in/.hidden/a.xml"});
    EXPECT_THAT(walk(Names{"in/"}), ElementsAre("in/.hidden/a.xml", "in/.xml", "in/a.xml"));
}

TEST_F(InputWalkTest, ReportsFoldersWithoutDocuments) {
    make({"none/notes.txt", "none/deep/notes.txt", "a.xml"});
    fs::create_directory(path("empty"));
    const std::string reason = ": error: no files named *.xml in this folder";
    EXPECT_THAT(walk(Names{"none", "a.xml", "empty"}), ElementsAre("none" + reason, "a.xml", "empty" + reason));
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
    write("zero", "a.xml\0b.xml\nc.xml"s);
    EXPECT_THAT(walkList("zero"), ElementsAre("zero: error: NUL character in a name (separated by NUL: -0)"));
    write("long", std::string(70'000, 'x'));
    EXPECT_THAT(walkList("long"), ElementsAre("long: error: name longer than 65536 bytes"));
}

}  // namespace
