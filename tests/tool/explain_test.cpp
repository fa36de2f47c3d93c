#include "ToolTest.h"

#include <tests/support/lines.h>

#include <lvdata/analysis/check/Rule.h>

#include <gmock/gmock.h>

namespace {

using lv::analysis::Rule;
using lv::analysis::rules;
using lv::test::linesOf;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

using Explain = ToolTest;

TEST_F(Explain, ListsAllRules) {
    const Outcome outcome = run({"explain"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(linesOf(outcome.output), SizeIs(rules().size()));
    EXPECT_THAT(outcome.output, StartsWith("001 error: not XML\n002 error: unknown root element\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\n105 info: different spelling\n"));
}

TEST_F(Explain, ExplainsARule) {
    EXPECT_EQ(run({"explain", "302"}),
              printed("302 warning: unknown attribute\n"
                      "\n"
                      "The record does not know an attribute with this name here. It is ignored "
                      "and not\n"
                      "written back.\n"
                      "\n"
                      "With a finding in line 2:\n"
                      "\n"
                      "    <AssetInfo>\n"
                      "        <Asset1 lang=\"en\">Room 4</Asset1>\n"
                      "    </AssetInfo>\n"
                      "\n"
                      "Without:\n"
                      "\n"
                      "    <AssetInfo>\n"
                      "        <Asset1>Room 4</Asset1>\n"
                      "    </AssetInfo>\n"));
}

TEST_F(Explain, ExplainsEachRuleInLinesOfATerminal) {
    for (const Rule& rule : rules()) {
        const Outcome outcome = run({"explain", std::string(rule.id)});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_THAT(outcome.output, StartsWith(std::string(rule.id) + ' '));
        for (const std::string& line : linesOf(outcome.output)) {
            EXPECT_LE(line.size(), 90U) << line;
        }
    }
}

TEST_F(Explain, ShowsBytesThatAreNotUTF8AsEscapes) {
    EXPECT_THAT(run({"explain", "003"}).output, HasSubstr(R"(<Asset1>Z\xFCrich</Asset1>)"));
    EXPECT_THAT(run({"explain", "003"}).output, HasSubstr("<Asset1>Z\u00FCrich</Asset1>"));
}

TEST_F(Explain, RefusesOtherIds) {
    for (const std::string id : {"999", "1", "0001", " 001", "x"}) {
        EXPECT_EQ(run({"explain", id}),
                  failed("lvdata: error: '" + id + "' is not the id of a rule; lvdata explain lists all"));
    }
    EXPECT_EQ(run({"explain", "001", "002"}).exitCode, 2);
}

}  // namespace
