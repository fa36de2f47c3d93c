#include <lvdata/analysis/files/files.h>

#include <lvdata/records/AssetInfo.h>
#include <tests/analysis/files/Folder.h>
#include <tests/analysis/files/in_child.h>

#include <csignal>

#include <array>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using lv::analysis::readDescriptor;
using lv::analysis::readFile;
using lv::analysis::save;
using lv::analysis::SaveResult;
using lv::analysis::writeDescriptor;
using lv::analysis::writeFile;
using lv::test::Folder;
using lv::test::inChild;
using Names = std::vector<std::string>;

int openedForWriting(const fs::path& path) {
    return ::open(path.c_str(), O_WRONLY | O_CREAT, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

std::string nameOf(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

TEST(ReadFile, StopsAtTheSizeThatIsAskedFor) {
    const Folder folder;
    folder.write("in", std::string(100'000, 'x'));
    EXPECT_EQ(readFile(folder.path("in"), 200'000).text.size(), 100'000U);
    EXPECT_EQ(readFile(folder.path("in"), 100'000).text.size(), 100'000U);
    EXPECT_EQ(readFile(folder.path("in"), 99'999).text.size(), 99'999U);
    EXPECT_EQ(readFile(folder.path("in"), 0).text, "");
    EXPECT_EQ(readFile("/dev/zero", 70'000).text.size(), 70'000U);
}

TEST(Load, StopsAtTheLimitOfAFileWithoutEnd) {
    lv::Limits small;
    small.bytes = 42;
    EXPECT_EQ(lv::analysis::load("/dev/zero", small).result.reason, "more than 42 bytes");
}

TEST(ReadFile, SaysWhyItCannotRead) {
    const Folder folder;
    const auto missing = readFile(folder.path("in"), 1);
    EXPECT_FALSE(missing);
    EXPECT_EQ(missing.error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(readFile(folder.path("."), 1).error, std::errc::is_a_directory);
}

TEST(ReadDescriptor, ReadsFromTheCurrentPosition) {
    const Folder folder;
    folder.write("in", "0123456789");
    const int file = ::open(folder.path("in").c_str(), O_RDONLY);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    EXPECT_EQ(readDescriptor(file, 4).text, "0123");
    EXPECT_EQ(readDescriptor(file, 100).text, "456789");
    ::close(file);
    EXPECT_EQ(readDescriptor(file, 1).error, std::errc::bad_file_descriptor);
}

TEST(Save, WritesTheWholeRecord) {
    const Folder folder;
    lv::AssetInfo record;
    record.asset1 = {"one", true};
    EXPECT_TRUE(save(folder.path("out"), record));
    EXPECT_EQ(folder.read("out"), record.toXMLString(true, true));
    EXPECT_TRUE(save(folder.path("out"), record, {false, true}));
    EXPECT_EQ(folder.read("out"), record.toXMLString(false, true));
    EXPECT_TRUE(save(folder.path("out"), record, {false, false}));
    EXPECT_EQ(folder.read("out"), record.toXMLString(false, false) + '\n');
    EXPECT_EQ(folder.names(), Names{"out"});
}

TEST(Save, SaysWhyItCannot) {
    const Folder folder;
    const SaveResult result = save(folder.path("no/out"), lv::AssetInfo());
    EXPECT_FALSE(result);
    EXPECT_EQ(result.error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(result.reason, result.error.message());  // in the language of the user
    EXPECT_FALSE(result.reason.empty());
    EXPECT_EQ(writeFile("", "").error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(writeFile("/", "").error, std::errc::is_a_directory);
    EXPECT_EQ(writeFile(folder.path("."), "").error, std::errc::is_a_directory);
}

TEST(WriteFile, FollowsLinksFromFolderToFolder) {
    const Folder folder;
    fs::create_directories(folder.path("a/b"));
    fs::create_symlink("../out", folder.path("a/b/link"));
    fs::create_symlink("a/b/link", folder.path("link"));
    EXPECT_TRUE(writeFile(folder.path("link"), "one"));
    EXPECT_EQ(folder.read("a/out"), "one");
    EXPECT_TRUE(writeFile(folder.path("link"), "two"));
    EXPECT_EQ(folder.read("a/out"), "two");
    EXPECT_TRUE(fs::is_symlink(folder.path("link")) && fs::is_symlink(folder.path("a/b/link")));
}

TEST(WriteFile, GivesUpAfterTooManyLinks) {
    const Folder folder;
    fs::create_symlink("b", folder.path("a"));
    fs::create_symlink("a", folder.path("b"));
    EXPECT_EQ(writeFile(folder.path("a"), "").error, std::errc::too_many_symbolic_link_levels);
}

TEST(WriteFile, WritesIntoAnOpenFileUnderItsNumber) {
    const Folder folder;
    folder.write("out", "0123456789");
    const int file = openedForWriting(folder.path("out"));
    ASSERT_EQ(::lseek(file, 2, SEEK_SET), 2);
    EXPECT_TRUE(writeFile(nameOf(file), "abc"));
    EXPECT_TRUE(writeFile("/dev/fd/" + std::to_string(file), "de"));
    fs::create_symlink(nameOf(file), folder.path("link"));
    EXPECT_TRUE(writeFile(folder.path("link"), "f"));
    ::close(file);
    EXPECT_EQ(folder.read("out"), "01abcdef89");
    EXPECT_EQ(folder.names(), (Names{"link", "out"}));
}

TEST(WriteFile, WritesIntoAnOpenFileThatHasNoNameAnyMore) {
    const Folder folder;
    const fs::path path = folder.path("out");
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    fs::remove(path);
    EXPECT_TRUE(writeFile(nameOf(file), "text"));
    EXPECT_EQ(folder.names(), Names());
    ASSERT_EQ(::lseek(file, 0, SEEK_SET), 0);
    EXPECT_EQ(readDescriptor(file, 100).text, "text");
    ::close(file);
}

TEST(WriteFile, WritesIntoAnOpenPipe) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    EXPECT_TRUE(writeFile(nameOf(pipe[1]), "text"));
    ::close(pipe[1]);
    EXPECT_EQ(readDescriptor(pipe[0], 100).text, "text");
    ::close(pipe[0]);
}

TEST(WriteFile, DoesNotTouchTheOpenFilesOfOthers) {
    const Folder folder;
    folder.write("out", "old");
    const int file = openedForWriting(folder.path("out"));
    const std::string name = "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(file);
    const int status = inChild([&] {
        ::close(file);
        const SaveResult result = writeFile(name, "new");
        return result.reason.rfind("cannot replace the open file of another process: ", 0) == 0 ? 1 : 2;
    });
    ::close(file);
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(folder.read("out"), "old");
    EXPECT_EQ(folder.names(), Names{"out"});
}

TEST(WriteFile, KeepsAttributes) {
    const Folder folder;
    folder.write("out", "old");
    if (::setxattr(folder.path("out").c_str(), "user.origin", "sensor", 6, 0) != 0) {
        GTEST_SKIP() << "no extended attributes in the folder for temporary files";
    }
    EXPECT_TRUE(writeFile(folder.path("out"), "new"));
    std::array<char, 100> value{};
    EXPECT_EQ(::getxattr(folder.path("out").c_str(), "user.origin", value.data(), value.size()), 6);
    EXPECT_EQ(folder.read("out"), "new");
}

TEST(WriteFile, IsCompleteOrNotDoneWhenASignalArrives) {
    const Folder folder;
    folder.write("out", "old");
    const std::string text(200'000'000, 'x');
    const int status = inChild([&] {
        const pid_t writer = ::getpid();
        if (::fork() == 0) {
            while (::getppid() == writer && folder.names().size() < 2) {
            }
            if (::getppid() == writer) {
                ::kill(writer, SIGINT);
            }
            ::_exit(0);
        }
        static_cast<void>(writeFile(folder.path("out"), text));
        return 0;
    });
    const bool isDone = WIFEXITED(status) && WEXITSTATUS(status) == 0;  // the signal came too late
    EXPECT_TRUE(isDone || (WIFSIGNALED(status) && WTERMSIG(status) == SIGINT)) << status;
    EXPECT_EQ(folder.names(), Names{"out"});
    EXPECT_TRUE(folder.read("out") == (isDone ? text : "old") || folder.read("out") == text);
}

TEST(WriteDescriptor, SaysWhyItCannot) {
    const int full = openedForWriting("/dev/full");
    EXPECT_EQ(writeDescriptor(full, "text").error, std::errc::no_space_on_device);
    EXPECT_TRUE(writeDescriptor(full, ""));
    ::close(full);
    EXPECT_EQ(writeDescriptor(full, "text").error, std::errc::bad_file_descriptor);
}

}  // namespace
