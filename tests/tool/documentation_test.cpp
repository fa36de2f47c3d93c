#include "ToolTest.h"
#include "Transcript.h"
#include "help_texts.h"

#include <tests/support/files.h>

#include <gmock/gmock.h>

// The page of the command holds transcripts: what a user types, and what the terminal shows. They are played again
// here, each code block in a folder of its own with the documents of examples/data.

namespace {

namespace fs = std::filesystem;
using lv::test::contentOf;
using testing::ElementsAre;
using Lines = std::vector<std::string>;

std::string pageOfTheTool() {
    return contentOf(LVDATA_TOOL_PAGE);
}

/// Commands that were played leave their streams and exit codes beside the folder of the test.
class Replay : public ToolTest {
protected:
    void play(const Transcript& transcript) const {
        for (const fs::directory_entry& document : fs::directory_iterator(LVDATA_EXAMPLE_DATA)) {
            fs::copy_file(document.path(), path(document.path().filename()), fs::copy_options::overwrite_existing);
        }
        std::string script;
        for (std::size_t index = 0; index < transcript.size(); ++index) {
            const std::string streams = "\"$streams/" + std::to_string(index);
            script += "{ " + transcript[index].text + "\n} >" + streams + ".out\" 2>" + streams +
                      ".err\"; status=$?; echo $status >" + streams + ".status\"; (exit $status)\n";
        }
        EXPECT_EQ(runBash("streams=$(cd .. && pwd)\n" + script + ":").error, "");
    }

    /// What the command of that index left behind.
    [[nodiscard]] Outcome outcome(std::size_t index) const {
        const std::string stem = "../" + std::to_string(index);
        return {std::stoi(read(stem + ".status")), read(stem + ".out"), read(stem + ".err")};
    }
};

/// A command that does nothing but run the tool.
bool isToolAlone(const std::string& command) {
    return command.rfind("lvdata ", 0) == 0 && command.find('|') == std::string::npos;
}

/// Whether a failure comes with a message, and a success without one.
bool hasItsStatus(const Outcome& outcome) {
    return outcome.exitCode == 1 || (outcome.exitCode == 2) == !outcome.error.empty();
}

class Documentation : public Replay, public testing::WithParamInterface<Transcript> {};

TEST_P(Documentation, TranscriptIsWhatTheCommandsPrint) {
    const Transcript& transcript = GetParam();
    play(transcript);
    for (std::size_t index = 0; index < transcript.size(); ++index) {
        const TypedCommand& command = transcript[index];
        const Outcome real = outcome(index);
        EXPECT_TRUE(showsStreams(command.shown, linesOf(real.output), linesOf(real.error)))
            << "line " << command.line << ": $ " << command.text << '\n'
            << testing::PrintToString(real);
        if (isToolAlone(command.text)) {
            EXPECT_TRUE(hasItsStatus(real)) << command.text << testing::PrintToString(real);
        }
    }
}

std::string nameOf(const testing::TestParamInfo<Transcript>& test) {
    return "Line" + std::to_string(test.param.front().line);
}

INSTANTIATE_TEST_SUITE_P(Page, Documentation, testing::ValuesIn(transcriptsIn(pageOfTheTool())), nameOf);
INSTANTIATE_TEST_SUITE_P(Readme, Documentation, testing::ValuesIn(transcriptsIn(contentOf(LVDATA_README))), nameOf);

TEST_F(Replay, HasATranscriptForEachSubcommand) {
    std::string commands;
    for (const Transcript& transcript : transcriptsIn(pageOfTheTool())) {
        for (const TypedCommand& command : transcript) {
            commands += '\n' + command.text;
        }
    }
    const Lines subcommands = subcommandsIn(run({"--help"}).output);
    EXPECT_THAT(subcommands, testing::Contains("format"));
    for (const std::string& subcommand : subcommands) {
        EXPECT_THAT(commands, testing::HasSubstr("\nlvdata " + subcommand + ' '));
    }
}

TEST_F(Replay, RunsTheCommandsOfABlockInOneShell) {
    play({{1, "word=one; cat <<EOF\ntwo\nEOF", {}}, {2, "echo $word; echo x >&2; false", {}}, {3, "echo $?", {}}});
    EXPECT_EQ(outcome(0), printed("two\n"));
    EXPECT_EQ(outcome(1), (Outcome{1, "one\n", "x\n"}));
    EXPECT_EQ(outcome(2), printed("1\n"));
}

TEST(Transcripts, AreBlocksThatStartWithAPrompt) {
    const auto found =
        transcriptsIn("# Page\n\n    usage\n\n    $ indented\n\nText\n\n    $ one\n    1\n\n    $ two\n\nText\n"
                      "```\n$ fenced\nshown\n\n```\nText\n");
    ASSERT_EQ(found.size(), 2U);
    ASSERT_EQ(found[0].size(), 2U);
    EXPECT_EQ(found[0][0].line, 9);
    EXPECT_EQ(found[0][0].text, "one");
    EXPECT_THAT(found[0][0].shown, ElementsAre("1"));
    EXPECT_EQ(found[0][1].text, "two");
    EXPECT_THAT(found[0][1].shown, ElementsAre());
    ASSERT_EQ(found[1].size(), 1U);
    EXPECT_EQ(found[1][0].line, 16);
    EXPECT_EQ(found[1][0].text, "fenced");
    EXPECT_THAT(found[1][0].shown, ElementsAre("shown"));
}

TEST(Transcripts, HaveCommandsOfSeveralLines) {
    const auto found =
        transcriptsIn("    $ cat <<'END'\n    > <a/>\n    >\n    > END\n    > shown\n    $ one \\\n    > two\n");
    ASSERT_EQ(found.size(), 1U);
    ASSERT_EQ(found[0].size(), 2U);
    EXPECT_EQ(found[0][0].text, "cat <<'END'\n<a/>\n\nEND");
    EXPECT_THAT(found[0][0].shown, ElementsAre("> shown"));
    EXPECT_EQ(found[0][1].text, "one \\\ntwo");
}

TEST(Transcripts, DoNotEndAtAHereString) {
    const auto found = transcriptsIn("    $ cat <<< a\n    > a\n");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_THAT(found[0][0].shown, ElementsAre("> a"));
}

TEST(Transcripts, ShowBothStreams) {
    EXPECT_TRUE(showsStreams({}, {}, {}));
    EXPECT_TRUE(showsStreams({"e1", "o1", "e2", "o2"}, {"o1", "o2"}, {"e1", "e2"}));
    EXPECT_FALSE(showsStreams({"o2", "o1"}, {"o1", "o2"}, {}));
    EXPECT_FALSE(showsStreams({"o1"}, {"o1", "o2"}, {}));
    EXPECT_FALSE(showsStreams({"o1", "o2"}, {"o1"}, {}));
    EXPECT_FALSE(showsStreams({"o1"}, {"o1"}, {"e1"}));
}

TEST(Transcripts, LeaveLinesOut) {
    EXPECT_TRUE(showsStreams({"a", "...", "d"}, {"a", "b", "c", "d"}, {}));
    EXPECT_TRUE(showsStreams({"a", "..."}, {"a"}, {}));
    EXPECT_FALSE(showsStreams({"a", "...", "d"}, {"a", "b"}, {}));
    EXPECT_FALSE(showsStreams({"..."}, {"a"}, {"e"}));
}

}  // namespace
