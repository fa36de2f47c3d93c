#include <tools/lvdata/Palette.h>
#include <tools/lvdata/batch.h>

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// The options that several subcommands share.
struct SharedOptions {
    tool::BatchOptions batch;
    tool::ColorChoice color = tool::ColorChoice::automatic;

    /// Empty, or what is wrong.
    std::string parse(std::vector<std::string> arguments) {
        CLI::App application;
        CLI::App* const command = application.add_subcommand("probe");
        tool::addBatchOptions(*command, batch);
        tool::addColorOption(*command, color);
        std::reverse(arguments.begin(), arguments.end());  // CLI11 takes them from the end
        arguments.emplace_back("probe");
        try {
            application.parse(arguments);
            return "";
        } catch (const CLI::ParseError& error) {
            return error.what();
        }
    }
};

TEST(SharedOptions, HaveDefaults) {
    SharedOptions options;
    EXPECT_EQ(options.parse({"a.xml"}), "");
    EXPECT_EQ(options.batch.jobs, tool::processorCount());
    EXPECT_EQ(options.color, tool::ColorChoice::automatic);
    EXPECT_THAT(options.batch.inputs.paths, ElementsAre("a.xml"));
    EXPECT_THAT(options.batch.inputs.lists, ElementsAre());
    EXPECT_FALSE(options.batch.inputs.listsAreNulSeparated);
}

TEST(SharedOptions, CanBeSet) {
    SharedOptions options;
    EXPECT_EQ(options.parse({"-j3", "a.xml", "--color", "always", "--files-from", "list", "b", "-0", "--files-from=-"}),
              "");
    EXPECT_EQ(options.batch.jobs, 3);
    EXPECT_EQ(options.color, tool::ColorChoice::always);
    EXPECT_THAT(options.batch.inputs.paths, ElementsAre("a.xml", "b"));
    EXPECT_THAT(options.batch.inputs.lists, ElementsAre("list", "-"));
    EXPECT_TRUE(options.batch.inputs.listsAreNulSeparated);
}

TEST(SharedOptions, NeedAnInput) {
    EXPECT_EQ(SharedOptions().parse({}), "PATH or --files-from is required");
    EXPECT_EQ(SharedOptions().parse({"--files-from", "list"}), "");
    EXPECT_THAT(SharedOptions().parse({"--files-from"}), HasSubstr("--files-from"));
    EXPECT_THAT(SharedOptions().parse({""}), HasSubstr("is empty"));
}

TEST(SharedOptions, ReadStandardInputOnce) {
    EXPECT_EQ(SharedOptions().parse({"-"}), "");
    for (const std::vector<std::string>& twice :
         std::vector<std::vector<std::string>>{{"-", "a.xml", "-"}, {"-", "--files-from", "-"}}) {
        EXPECT_EQ(SharedOptions().parse(twice), "-: standard input can be read only once");
    }
}

TEST(SharedOptions, SeparateByNulOnlyWhatIsInAList) {
    EXPECT_THAT(SharedOptions().parse({"-0", "a.xml"}), HasSubstr("--files-from"));
}

TEST(SharedOptions, RefuseOtherValues) {
    EXPECT_EQ(SharedOptions().parse({"a.xml", "-j", "0"}), "--jobs: '0' is not a number between 1 and 1024");
    EXPECT_EQ(SharedOptions().parse({"a.xml", "-j", "1025"}), "--jobs: '1025' is not a number between 1 and 1024");
    EXPECT_EQ(SharedOptions().parse({"a.xml", "--color", "Auto"}), "--color: 'Auto' is not one of auto|always|never");
}

}  // namespace
