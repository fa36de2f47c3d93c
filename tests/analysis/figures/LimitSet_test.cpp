#include <lvdata/analysis/figures/LimitSet.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::Figure;
using lv::analysis::FigureLimit;
using lv::analysis::FigureLine;
using lv::analysis::judge;
using lv::analysis::JudgedLine;
using lv::analysis::knownLimitSets;
using lv::analysis::LimitSet;
using lv::analysis::LimitSetResult;
using lv::analysis::Mark;
using lv::analysis::readLimitSet;
using lv::analysis::Verdict;
using lv::analysis::verdictOf;

FigureLine lineOf(const Figure& measured, int decimals = 2) {
    FigureLine line;
    line.key = "contrast";
    line.decimals = decimals;
    line.measured = measured;
    return line;
}

LimitSet setOf(const FigureLimit& limit) {
    LimitSet set;
    set.limits = {limit};
    return set;
}

Mark markOf(double value, const FigureLimit& limit) {
    return judge({lineOf({value, ""})}, setOf(limit)).at(0).mark;
}

/// A whole set with these limits, on line 2.
std::string withLimits(const std::string& limits) {
    return "{\"name\": \"a\", \"title\": \"b\", \"notice\": \"c\",\n\"limits\": [" + limits + "]}";
}

/// "2: reason", or nothing when the text is a limit set.
std::string complaintOf(const std::string& text) {
    const LimitSetResult result = readLimitSet(text);
    EXPECT_EQ(result.set.has_value(), result.reason.empty());
    return result.set ? "" : std::to_string(result.line) + ": " + result.reason;
}

}  // namespace

using testing::HasSubstr;

TEST(FigureLimit, HasAText) {
    EXPECT_EQ((FigureLimit{"", {}, 0.005, ""}.text()), "≤ 0.005");
    EXPECT_EQ((FigureLimit{"", 2000, {}, ""}.text()), "≥ 2000");
    EXPECT_EQ((FigureLimit{"", 100, 200, ""}.text()), "100 to 200");
    EXPECT_EQ((FigureLimit{"", 2.3, 2.5, ""}.text()), "2.3 to 2.5");
    EXPECT_EQ((FigureLimit{"", -10, 10, ""}.text()), "-10 to 10");
    EXPECT_EQ((FigureLimit{"", -0.0, {}, ""}.text()), "≥ 0");
    EXPECT_EQ((FigureLimit{"", {}, {}, ""}.text()), "");
}

// Rounded to the digits of its figure, a limit could be told as a number that fails it.
TEST(FigureLimit, HasAllDigitsThatItWasGivenWith) {
    EXPECT_EQ((FigureLimit{"", {}, 0.00506, ""}.text()), "≤ 0.00506");
    EXPECT_EQ((FigureLimit{"", 0.4, {}, ""}.text()), "≥ 0.4");
    EXPECT_EQ((FigureLimit{"", 1e21, {}, ""}.text()), "≥ 1000000000000000000000");
}

TEST(Limits, AreInclusive) {
    EXPECT_EQ(markOf(2, {"contrast", 2, {}, ""}), Mark::passes);
    EXPECT_EQ(markOf(1.99, {"contrast", 2, {}, ""}), Mark::fails);
    EXPECT_EQ(markOf(2, {"contrast", {}, 2, ""}), Mark::passes);
    EXPECT_EQ(markOf(2.01, {"contrast", {}, 2, ""}), Mark::fails);
    EXPECT_EQ(markOf(3, {"contrast", 2, 4, ""}), Mark::passes);
}

TEST(Limits, ApplyToAFigureAsItIsShown) {
    EXPECT_EQ(markOf(2.0049, {"contrast", {}, 2, ""}), Mark::passes);  // shown as 2.00
    EXPECT_EQ(markOf(2.0051, {"contrast", {}, 2, ""}), Mark::fails);   // 2.01
    EXPECT_EQ(markOf(1.9951, {"contrast", 2, {}, ""}), Mark::passes);
    EXPECT_EQ(markOf(1.9949, {"contrast", 2, {}, ""}), Mark::fails);
}

TEST(Limits, HaveNoMarkForFiguresWithoutThem) {
    const LimitSet set = setOf({"contrast", 2, {}, ""});
    FigureLine other = lineOf({1, ""});
    other.key = "white_x";
    const std::vector<JudgedLine> judged = judge({other, lineOf({{}, "no black"})}, set);
    EXPECT_EQ(judged.at(0).mark, Mark::none);
    EXPECT_EQ(judged.at(0).limit, nullptr);
    EXPECT_EQ(judged.at(1).mark, Mark::notAvailable);
    EXPECT_EQ(judged.at(1).limit, set.limits.data());
}

TEST(Verdict, IsThatOfTheWorstFigure) {
    EXPECT_EQ((Verdict{3, 1, 2}.mark()), Mark::fails);
    EXPECT_EQ((Verdict{3, 0, 2}.mark()), Mark::notAvailable);
    EXPECT_EQ((Verdict{3, 0, 0}.mark()), Mark::passes);
    EXPECT_EQ((Verdict{}.mark()), Mark::none);
}

TEST(Verdict, CountsMarks) {
    std::vector<JudgedLine> lines;
    for (const Mark mark : {Mark::none, Mark::passes, Mark::fails, Mark::passes, Mark::notAvailable, Mark::passes}) {
        lines.push_back({{}, nullptr, mark});
    }
    const Verdict verdict = verdictOf(lines);
    EXPECT_EQ(verdict.passed, 3U);
    EXPECT_EQ(verdict.failed, 1U);
    EXPECT_EQ(verdict.notAvailable, 1U);
}

TEST(LimitSet, IsReadFromJSON) {
    const LimitSetResult result =
        readLimitSet(withLimits("{\"figure\": \"white_delta_uv\", \"maximum\": 0.005, \"source\": \"us\"},"
                                "{\"figure\": \"contrast\", \"minimum\": 100, \"maximum\": 2e3}"));
    ASSERT_TRUE(result.set) << result.reason;
    EXPECT_EQ(result.set->name, "a");
    EXPECT_EQ(result.set->title, "b");
    EXPECT_EQ(result.set->notice, "c");
    ASSERT_EQ(result.set->limits.size(), 2U);
    EXPECT_EQ(result.set->limits[0].key, "contrast");  // by key
    EXPECT_EQ(result.set->limitOf("contrast")->minimum, 100.0);
    EXPECT_EQ(result.set->limitOf("contrast")->maximum, 2000.0);
    EXPECT_EQ(result.set->limitOf("white_delta_uv")->minimum, std::nullopt);
    EXPECT_EQ(result.set->limitOf("white_delta_uv")->source, "us");
    EXPECT_EQ(result.set->limitOf("white_x"), nullptr);
}

TEST(LimitSet, MayBeEmpty) {
    EXPECT_EQ(complaintOf(withLimits("")), "");
}

TEST(LimitSet, HasNoUnknownKeys) {
    EXPECT_EQ(complaintOf("{\n\"nam\": 1}"), "2: unknown key 'nam'");
    EXPECT_EQ(complaintOf("{\n\"figure\": 1}"), "2: unknown key 'figure'");
    EXPECT_EQ(complaintOf(withLimits("{\"name\": 1}")), "2: unknown key 'name'");
    EXPECT_EQ(complaintOf("{\"name\": \"a\",\n\"name\": \"b\"}"), "2: duplicate key 'name'");
    EXPECT_EQ(complaintOf(withLimits("{\"source\": \"a\", \"source\": \"b\"}")), "2: duplicate key 'source'");
}

TEST(LimitSet, HasAllThatIsNeeded) {
    EXPECT_EQ(complaintOf("{\"title\": \"b\", \"notice\": \"c\", \"limits\": []}"), "1: missing key 'name'");
    EXPECT_EQ(complaintOf("{\"name\": \"b\", \"notice\": \"c\", \"limits\": []}"), "1: missing key 'title'");
    EXPECT_EQ(complaintOf("{\"name\": \"b\", \"title\": \"c\", \"limits\": []}"), "1: missing key 'notice'");
    EXPECT_EQ(complaintOf("{\"name\": \"b\", \"title\": \"c\", \"notice\": \"d\"}"), "1: missing key 'limits'");
    EXPECT_EQ(complaintOf(withLimits("{\"minimum\": 1}")), "2: a limit has no 'figure'");
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": \"contrast\"}")),
              "2: the limit of 'contrast' has neither 'minimum' nor 'maximum'");
}

TEST(LimitSet, HasTheRightTypes) {
    EXPECT_EQ(complaintOf("[]"), "1: the text is an array, not an object");
    EXPECT_EQ(complaintOf("7"), "1: the text is a number, not an object");
    EXPECT_EQ(complaintOf("{\"name\": 7}"), "1: 'name' is a number, not a text");
    EXPECT_EQ(complaintOf("{\"name\": null}"), "1: 'name' is null, not a text");
    EXPECT_EQ(complaintOf("{\"notice\": true}"), "1: 'notice' is true or false, not a text");
    EXPECT_EQ(complaintOf("{\"limits\": {}}"), "1: 'limits' is an object, not an array");
    EXPECT_EQ(complaintOf("{\"limits\": \"a\"}"), "1: 'limits' is a text, not an array");
    EXPECT_EQ(complaintOf(withLimits("[]")), "2: an entry of 'limits' is an array, not an object");
    EXPECT_EQ(complaintOf(withLimits("\"a\"")), "2: an entry of 'limits' is a text, not an object");
    EXPECT_EQ(complaintOf(withLimits("{\"minimum\": \"1\"}")), "2: 'minimum' is a text, not a number");
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": 1}")), "2: 'figure' is a number, not a text");
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": [[")), "2: 'figure' is an array, not a text");
}

TEST(LimitSet, HasFiguresThatThereAre) {
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": \"white\", \"minimum\": 1}")), "2: unknown figure 'white'");
    const std::string twice = "{\"figure\": \"contrast\", \"minimum\": 1}";
    EXPECT_EQ(complaintOf(withLimits(twice + ",\n" + twice)), "3: the figure 'contrast' has two limits");
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": \"contrast\", \"minimum\": 2, \"maximum\": 1}")),
              "2: the minimum of 'contrast' is above the maximum");
    EXPECT_EQ(complaintOf(withLimits("{\"figure\": \"contrast\", \"minimum\": 1, \"maximum\": 1}")), "");
    EXPECT_LT(complaintOf(withLimits("{\"figure\": \"" + std::string(10000, 'a') + "\"}")).size(), 100U);
}

TEST(LimitSet, IsJSON) {
    EXPECT_THAT(complaintOf(""), HasSubstr("1: not JSON"));
    EXPECT_THAT(complaintOf("{\n}x"), HasSubstr("2: "));
    EXPECT_THAT(complaintOf(withLimits("{\"figure\": \"contrast\", \"minimum\": 1e999}")), "2: number out of range");
    EXPECT_THAT(complaintOf(std::string(100000, '[')), "1: the text is an array, not an object");
}

TEST(KnownLimitSets, AreAllListed) {
    std::vector<std::string> names;
    for (const LimitSet& set : knownLimitSets()) {
        names.push_back(set.name);
    }
    EXPECT_THAT(names, testing::ElementsAre("default", "iso14861", "ebu3320-g1"));
}

TEST(KnownLimitSets, SayThatTheStandardsThemselvesWereNotRead) {
    for (const LimitSet& set : knownLimitSets()) {
        const bool isOfStandard = set.name != "default";
        EXPECT_EQ(set.notice.find("were not read in the original") != std::string::npos, isOfStandard) << set.name;
        for (const FigureLimit& limit : set.limits) {
            const bool isSecondHand = limit.source.find("as a summary or an excerpt has it") != std::string::npos;
            EXPECT_EQ(isSecondHand, isOfStandard) << set.name << ' ' << limit.key;
        }
    }
}

TEST(KnownLimitSets, SayThatTheyAreNotATestAgainstAStandard) {
    for (const LimitSet& set : knownLimitSets()) {
        EXPECT_THAT(set.notice, HasSubstr("not a test against")) << set.name;
        for (const FigureLimit& limit : set.limits) {
            EXPECT_FALSE(limit.source.empty()) << set.name << ' ' << limit.key;
        }
    }
}
