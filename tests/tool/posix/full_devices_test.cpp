#include "PosixTest.h"

#include <tests/tool/InputWalkTest.h>

#include <lvdata/analysis/files/Descriptor.h>
#include <tools/lvdata/Output.h>

#include <cerrno>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

// What has no room left, and what has no end.

namespace {

namespace fs = std::filesystem;

using FullDevice = PosixTest;

TEST_F(FullDevice, AsStandardOutputIsReported) {
    const std::string studio = exampleData("studio.xml");
    const std::vector<std::vector<std::string>> commands{
        {"--help"},         {"--version"},        {"show", studio},       {"plot", "gamut", studio},
        {"report", studio}, {"format", "in.xml"}, {"format", "large.xml"}};
    for (const auto& command : commands) {
        EXPECT_EQ(run(command, {"", "/dev/full"}), failed("<stdout>: error: No space left on device")) << command[0];
    }
}

TEST_F(FullDevice, FileThatGrowsTooLargeIsReported) {
    EXPECT_EQ(run({"format", "large.xml"}, {"", path("out.xml"), limitFileSize}),
              failed("<stdout>: error: File too large"));
}

TEST_F(FullDevice, AFailureWhileWritingKeepsTheOldFile) {
    const Surroundings limited{"", "", limitFileSize};
    write("out.xml", "old");
    EXPECT_EQ(run({"format", "large.xml", "-o", "out.xml"}, limited), failed("out.xml: error: File too large"));
    EXPECT_EQ(run({"format", "large.xml", "-o", "large.xml"}, limited), failed("large.xml: error: File too large"));
    EXPECT_EQ(run({"format", "large.xml", "-o", "new.xml"}, limited), failed("new.xml: error: File too large"));
    EXPECT_EQ(read("out.xml"), "old");
    EXPECT_TRUE(read("large.xml") == large());
    EXPECT_TRUE(holdsBesides({"out.xml"}));
}

TEST(OutputToAFullDevice, ReportsTheReason) {
    const lv::analysis::Descriptor full(::open("/dev/full", O_WRONLY));  // NOLINT(cppcoreguidelines-pro-type-vararg)
    tool::Output output(full.get());
    output.write("one");
    try {
        output.flush();
        FAIL() << "nothing was thrown";
    } catch (const tool::Failure& failure) {
        EXPECT_EQ(failure.what(), "<stdout>: error: " + std::generic_category().message(ENOSPC));
    }
}

using EndlessInput = PosixTest;

TEST_F(EndlessInput, IsRefused) {
    EXPECT_EQ(run({"format", "/dev/zero"}), failed("/dev/zero: error: more than 67108864 bytes (limit: --max-size)"));
    EXPECT_EQ(run({"report", exampleData("studio.xml"), "--limits", "/dev/zero"}),
              failed("/dev/zero: error: more than 1000000 bytes, too large for a limit set"));
    EXPECT_EQ(run({"check", "--files-from", "/dev/zero"}).error, "/dev/zero: error: name longer than 65536 bytes\n");
}

using WalkOfDevices = InputWalkTest;

TEST_F(WalkOfDevices, IgnoresDevicesAndPipesInFolders) {
    make({"in/b.xml"});
    ASSERT_EQ(::mkfifo(path("in/a.xml").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", path("in/c.xml"));
    EXPECT_THAT(walk(Names{"in"}), testing::ElementsAre("in/b.xml"));
}

}  // namespace
