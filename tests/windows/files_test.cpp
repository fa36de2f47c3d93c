#include "Folder.h"

#include <lvdata/analysis/files/DocumentWalk.h>
#include <lvdata/analysis/files/files.h>

#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

namespace lv::test {
namespace {

using analysis::readFile;
using analysis::SaveResult;
using analysis::writeFile;
using testing::ElementsAre;

constexpr std::size_t most = 1000;

TEST(FilesOnWindows, NamesBeyondASCIIAreWrittenReadAndReplaced) {
    const Folder folder;
    EXPECT_TRUE(writeFile(folder.path("Größe 日本 😀.xml"), "one\n"));
    EXPECT_TRUE(writeFile(folder.path("Größe 日本 😀.xml"), "two\n"));
    EXPECT_EQ(readFile(folder.path("Größe 日本 😀.xml"), most).text, "two\n");
    EXPECT_THAT(folder.names(), ElementsAre("Größe 日本 😀.xml"));
}

TEST(FilesOnWindows, LineBreaksStayAsTheyAre) {
    const Folder folder;
    EXPECT_TRUE(writeFile(folder.path("a"), "1\n2\r\n\x1a 3\n"));
    EXPECT_EQ(folder.read("a"), "1\n2\r\n\x1a 3\n");
    EXPECT_EQ(readFile(folder.path("a"), most).text, "1\n2\r\n\x1a 3\n");
}

TEST(FilesOnWindows, LineBreaksStayAsTheyAreAlsoInADescriptorInTextMode) {
    const Folder folder;
    const int text = ::_wopen(folder.path("a").c_str(), _O_WRONLY | _O_CREAT | _O_TEXT, 0600);
    ASSERT_GE(text, 0);
    EXPECT_TRUE(analysis::writeDescriptor(text, "1\n2\n"));
    ::_close(text);
    EXPECT_EQ(folder.read("a"), "1\n2\n");
}

TEST(FilesOnWindows, ReasonsAreThoseOfOtherSystems) {
    const Folder folder;
    EXPECT_EQ(readFile(folder.path("none"), most).error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(readFile(folder.path("none"), most).error.message(), "No such file or directory");
    EXPECT_EQ(readFile(folder.path("."), most).error, std::errc::is_a_directory);
    EXPECT_EQ(writeFile(folder.path("."), "text").error, std::errc::is_a_directory);
    EXPECT_EQ(writeFile(folder.path("none/a"), "text").error, std::errc::no_such_file_or_directory);
}

TEST(FilesOnWindows, AReadOnlyFileIsNotReplaced) {
    const Folder folder;
    folder.write("a", "old");
    ASSERT_NE(::SetFileAttributesW(folder.path("a").c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(writeFile(folder.path("a"), "new").error, std::errc::permission_denied);
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
    ::SetFileAttributesW(folder.path("a").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(FilesOnWindows, AFileThatSomebodyReadsKeepsItsOldContentUntilItIsWhole) {
    const Folder folder;
    folder.write("a", "old");
    HANDLE const reader = ::CreateFileW(folder.path("a").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_FALSE(writeFile(folder.path("a"), "new"));  // the reader allows nobody to replace it
    ::CloseHandle(reader);
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(FilesOnWindows, WhatIsNoFileIsWrittenInto) {
    EXPECT_TRUE(writeFile("NUL", "text"));
}

TEST(FilesOnWindows, FoldersAreWalkedByNamesInUTF8) {
    const Folder folder;
    folder.write("é.xml", "");
    folder.write("日本.xml", "");
    folder.write("other.txt", "");
    analysis::DocumentWalk walk;
    walk.start(folder.path("").parent_path().u8string());
    std::vector<std::string> found;
    while (const auto next = walk.next()) {
        found.push_back(std::filesystem::u8path(next->path).filename().u8string());
    }
    EXPECT_THAT(found, ElementsAre("é.xml", "日本.xml"));
}

}  // namespace
}  // namespace lv::test
