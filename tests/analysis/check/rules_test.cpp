#include <lvdata/analysis/check/check.h>

#include <tests/analysis/catalogue.h>

#include <algorithm>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using lv::analysis::check;
using lv::analysis::CheckOptions;
using lv::analysis::Finding;
using lv::analysis::Findings;
using lv::analysis::Rule;
using lv::analysis::rules;
using lv::analysis::Severity;
using lv::test::catalogue;

namespace {

/// Whether findings of the rule are in that line, and in no other.
bool areOnlyIn(int line, const Findings& findings, const Rule& rule) {
    std::set<int> lines;
    for (const Finding& finding : findings.listed) {
        if (finding.rule == &rule) {
            lines.insert(finding.line);
        }
    }
    return lines == std::set<int>{line};
}

bool isAnywhere(const Findings& findings, const Rule& rule) {
    return std::any_of(findings.listed.begin(), findings.listed.end(),
                       [&](const Finding& finding) { return finding.rule == &rule; });
}

class EveryRule : public testing::TestWithParam<Rule> {
protected:
    [[nodiscard]] CheckOptions options() const {
        CheckOptions options;
        options.roundtrip = GetParam().id == "320";
        return options;
    }

    [[nodiscard]] const Rule& rule() const { return *lv::analysis::findRule(GetParam().id); }
};

TEST_P(EveryRule, HasAFindingInItsFailingSample) {
    const Findings findings = check(std::string(rule().failing), catalogue(), options());
    EXPECT_TRUE(areOnlyIn(rule().line, findings, rule()));
}

TEST_P(EveryRule, HasNoneInItsPassingSample) {
    const Findings findings = check(std::string(rule().passing), catalogue(), options());
    EXPECT_FALSE(isAnywhere(findings, rule()));
    EXPECT_EQ(findings.countFrom(Severity::warning), 0U) << "the passing sample has another fault";
}

TEST_P(EveryRule, CanBeIgnored) {
    CheckOptions ignoring = options();
    ignoring.ignored.insert(std::string(rule().id));
    const std::string text(rule().failing);
    const Findings all = check(text, catalogue(), options());
    const Findings others = check(text, catalogue(), ignoring);
    EXPECT_FALSE(isAnywhere(others, rule()));
    EXPECT_LT(others.count(), all.count());
}

TEST_P(EveryRule, IsExplained) {
    EXPECT_THAT(rule().id, testing::SizeIs(3));
    EXPECT_FALSE(rule().title.empty());
    EXPECT_THAT(std::string(rule().explanation), testing::EndsWith("."));
}

INSTANTIATE_TEST_SUITE_P(Rules, EveryRule, testing::ValuesIn(rules()),
                         [](const testing::TestParamInfo<Rule>& rule) { return "Rule" + std::string(rule.param.id); });

}  // namespace

TEST(Rules, AreInTheOrderOfTheirIds) {
    EXPECT_TRUE(std::is_sorted(rules().begin(), rules().end(),
                               [](const Rule& left, const Rule& right) { return left.id < right.id; }));
    EXPECT_EQ(lv::analysis::findRule("999"), nullptr);
    EXPECT_EQ(lv::analysis::findRule(""), nullptr);
}
