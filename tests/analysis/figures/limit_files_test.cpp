#include <lvdata/analysis/figures/limit_files.h>

#include <tests/analysis/files/Folder.h>

#include <string>
#include <system_error>

#include <gmock/gmock.h>

namespace {

using lv::analysis::findLimitSet;

}  // namespace

TEST(FindLimitSet, KnowsSetsByName) {
    EXPECT_EQ(findLimitSet("iso14861").set->name, "iso14861");
    EXPECT_EQ(findLimitSet("cake").reason,
              "no file and no limit set has this name; known limit sets: default, iso14861, ebu3320-g1");
    EXPECT_EQ(findLimitSet("/").reason, std::make_error_code(std::errc::is_a_directory).message());
}

TEST(FindLimitSet, ReadsFiles) {
    const lv::test::Folder folder;
    folder.write("wrong.json", "{\n\"nam\": 1}");
    const auto wrong = findLimitSet(folder.path("wrong.json").u8string());
    EXPECT_FALSE(wrong.set);
    EXPECT_NE(wrong.reason, "");
    folder.write("large.json", std::string(1'000'001, ' '));
    EXPECT_EQ(findLimitSet(folder.path("large.json").u8string()).reason,
              "more than 1000000 bytes, too large for a limit set");
    folder.write(
        "mine.json",
        R"({"name": "mine", "title": "Mine", "notice": "", "limits": [{"figure": "contrast", "minimum": 500}]})");
    const auto mine = findLimitSet(folder.path("mine.json").u8string());
    ASSERT_TRUE(mine.set) << mine.reason;
    EXPECT_EQ(mine.set->name, "mine");
}
