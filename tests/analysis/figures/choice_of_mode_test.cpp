#include <lvdata/analysis/figures/choice_of_mode.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::chooseMode;
using lv::analysis::ModeFigures;
using lv::analysis::modesOfIndex;

std::vector<ModeFigures> modes(const std::vector<std::string>& indices) {
    std::vector<ModeFigures> result;
    for (const std::string& index : indices) {
        result.emplace_back().index = index;
    }
    return result;
}

}  // namespace

TEST(ChoiceOfMode, FindsAllOfAnIndex) {
    EXPECT_EQ(modesOfIndex(modes({"1", "2", "1"}), "1").size(), 2U);
    EXPECT_TRUE(modesOfIndex(modes({"1"}), "").empty());
}

TEST(ChoiceOfMode, TakesTheFirstWithAResult) {
    auto some = modes({"1", "2", "3"});
    EXPECT_EQ(chooseMode(some, "").mode, &some[0]);
    some[1].calibratedTime = "2024-05-02";
    some[2].calibratedTime = "2024-05-02";
    EXPECT_EQ(chooseMode(some, "").mode, &some[1]);
    EXPECT_EQ(chooseMode(some, "3").mode, &some[2]);
    EXPECT_EQ(chooseMode(some, "3").reason, "");
}

TEST(ChoiceOfMode, SaysWhichThereAre) {
    EXPECT_EQ(chooseMode({}, "").reason, "there are no colour modes");
    EXPECT_EQ(chooseMode({}, "1").reason, "no colour mode has the index 1; no mode has an index");
    EXPECT_EQ(chooseMode(modes({"0", "", "2"}), "1").reason, "no colour mode has the index 1; known indices: 0, 2");
    const std::string many = whyNoModeOfIndex(modes(std::vector<std::string>(30, "7")), "1");
    EXPECT_EQ(many.substr(many.size() - 10), " 7, 7, ...") << many;
}
