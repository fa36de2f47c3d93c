#include <lvdata/analysis/files/TemporaryFile.h>

#include <tests/analysis/files/Folder.h>
#include <tests/analysis/files/in_child.h>

#include <csignal>

#include <fcntl.h>
#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

using lv::analysis::Descriptor;
using lv::analysis::TemporaryFile;
using lv::test::Folder;
using lv::test::inChild;
using Names = std::vector<std::string>;

Descriptor opened(const fs::path& folder) {
    return Descriptor(::open(folder.c_str(), O_PATH | O_DIRECTORY));  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

TEST(TemporaryFile, IsRemovedUnlessStored) {
    const Folder folder;
    const Descriptor place = opened(folder.path("."));
    {
        TemporaryFile file(place.get(), 0600);
        file.write("text");
        ASSERT_EQ(folder.names().size(), 1U);
        EXPECT_THAT(folder.names().front(), testing::MatchesRegex("\\.lvdata-......"));
    }
    EXPECT_EQ(folder.names(), Names());
}

TEST(TemporaryFile, TakesThePlaceOfAnother) {
    const Folder folder;
    folder.write("out", "old");
    const Descriptor place = opened(folder.path("."));
    TemporaryFile file(place.get(), 0600);
    file.write("new");
    EXPECT_EQ(folder.read("out"), "old");
    file.storeAs("out");
    EXPECT_EQ(folder.read("out"), "new");
    EXPECT_EQ(folder.names(), Names{"out"});
}

TEST(TemporaryFile, StaysInAFolderThatIsRenamed) {
    const Folder folder;
    fs::create_directory(folder.path("before"));
    const Descriptor place = opened(folder.path("before"));
    {
        TemporaryFile removed(place.get(), 0600);
        TemporaryFile stored(place.get(), 0600);
        stored.write("text");
        fs::rename(folder.path("before"), folder.path("after"));
        fs::create_directory(folder.path("before"));
        stored.storeAs("out");
    }
    EXPECT_EQ(folder.read("after/out"), "text");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path("after")), {}), 1);
    EXPECT_TRUE(fs::is_empty(folder.path("before")));
}

TEST(TemporaryFile, HasAUniqueName) {
    const Folder folder;
    const Descriptor place = opened(folder.path("."));
    const TemporaryFile one(place.get(), 0600);
    const TemporaryFile two(place.get(), 0600);
    EXPECT_EQ(folder.names().size(), 2U);
}

/// The process is asked to end, and then goes on with the file.
int interrupted(const Folder& folder, int signal, void (*goOn)(TemporaryFile& file)) {
    return inChild([&] {
        try {
            const Descriptor place = opened(folder.path("."));
            TemporaryFile file(place.get(), 0600);
            file.write("text");
            ::raise(signal);
            goOn(file);
        } catch (const std::system_error&) {
            return 1;
        }
        return 0;
    });
}

void expectEndedBy(int signal, int status, const Folder& folder) {
    ASSERT_TRUE(WIFSIGNALED(status)) << status;
    EXPECT_EQ(WTERMSIG(status), signal);
    EXPECT_EQ(folder.names(), Names{"out"});
    EXPECT_EQ(folder.read("out"), "old");
}

TEST(TemporaryFile, IsRemovedByASignal) {
    const Folder folder;
    folder.write("out", "old");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        expectEndedBy(signal, interrupted(folder, signal, [](TemporaryFile& file) { file.write("more"); }), folder);
        expectEndedBy(signal, interrupted(folder, signal, [](TemporaryFile& file) { file.storeAs("out"); }), folder);
    }
}

TEST(TemporaryFile, StopsAtASignalWithinABlock) {
    const Folder folder;
    const int status = inChild([&] {
        const Descriptor place = opened(folder.path("."));
        TemporaryFile file(place.get(), 0600);
        ::raise(SIGINT);
        try {
            file.write(std::string(10'000'000, 'x'));
        } catch (const std::system_error& error) {
            ::_exit(error.code() == std::errc::interrupted && fs::file_size(folder.path(folder.names().front())) == 0
                        ? 1
                        : 2);
        }
        return 3;
    });
    ASSERT_TRUE(WIFEXITED(status)) << status;
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

}  // namespace
