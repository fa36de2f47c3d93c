#include "OutputTest.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// Runs the command of the tests over documents in a folder "in".
class ManyDocuments : public OutputTest {
protected:
    ManyDocuments() {
        fs::create_directories(path("in/deep"));
        write("in/a.xml", "1");
        write("in/deep/b.xml", "22");
        write("in/z.xml", "333");
    }

    [[nodiscard]] Outcome size(std::vector<std::string> arguments, const Surroundings& around = {}) const {
        arguments.insert(arguments.begin(), "size");
        return runProgram(LVDATA_PROBE, arguments, around);
    }
};

constexpr const char* sizes = "in/a.xml 1\nin/deep/b.xml 2\nin/z.xml 3\n";

TEST_F(ManyDocuments, AreFoundInFolders) {
    EXPECT_EQ(size({"in"}), printed(sizes));
    EXPECT_EQ(size({"in", "-j1"}), printed(sizes));
}

TEST_F(ManyDocuments, ComeFromStandardInputToo) {
    EXPECT_EQ(size({"in/z.xml", "-"}, {"4444", "",
                                       [] {
                                           return true;
                                       }}),
              printed("in/z.xml 3\n<stdin> 4\n"));
}

TEST_F(ManyDocuments, CanBeNamedOnStandardInput) {
    const std::string listed = "in/z.xml\nin/deep\n";
    EXPECT_EQ(size({"--files-from", "-"}, {listed, "",
                                           [] {
                                               return true;
                                           }}),
              printed("in/z.xml 3\nin/deep/b.xml 2\n"));
    EXPECT_EQ(size({"-0", "--files-from=-"}, {std::string("in/z.xml\0in/a.xml", 17), "",
                                              [] {
                                                  return true;
                                              }}),
              printed("in/z.xml 3\nin/a.xml 1\n"));
}

TEST_F(ManyDocuments, SetTheExitStatus) {
    write("in/m.xml", "");
    EXPECT_EQ(size({"in/m.xml", "in/a.xml"}), (Outcome{1, "in/m.xml 0\nin/a.xml 1\n", ""}));
    EXPECT_EQ(size({"in/m.xml", "no.xml", "in/a.xml"}),
              (Outcome{2, "in/m.xml 0\nin/a.xml 1\n", "no.xml: error: No such file or directory\n"}));
}

TEST_F(ManyDocuments, AreDeliveredInOrderWithMessages) {
    EXPECT_EQ(runBash(LVDATA_PROBE " size in/a.xml no.xml in/z.xml 2>&1"),
              (Outcome{2, "in/a.xml 1\nno.xml: error: No such file or directory\nin/z.xml 3\n", ""}));
}

TEST_F(ManyDocuments, AreWorkedOnThoughAFolderCannotBeRead) {
    fs::create_directories(path("only/closed"));
    fs::permissions(path("in/deep"), fs::perms::none);
    fs::permissions(path("only/closed"), fs::perms::none);
    const auto prepare = [] {
        constexpr uid_t nobody = 65534;
        return ::geteuid() != 0 || ::setuid(nobody) == 0;
    };
    fs::permissions(path("."), fs::perms{0755});
    fs::permissions(path(".."), fs::perms{0755});
    const Outcome outcome = size({"in", "only"}, {"", "", prepare});
    fs::permissions(path("in/deep"), fs::perms::owner_all);
    if (outcome.exitCode == notStarted) {
        GTEST_SKIP() << noUnprivilegedRun;
    }
    EXPECT_EQ(outcome, (Outcome{2, "in/a.xml 1\nin/z.xml 3\n",
                                "in/deep: error: Permission denied\nonly/closed: error: Permission denied\n"}));
}

TEST_F(ManyDocuments, EndQuietlyWhenTheReaderIsGone) {
    const Outcome outcome = runBash("printf 'in/a.xml\\n%.0s' {1..20000} >list\n" LVDATA_PROBE
                                    " size --files-from list | head -n 1; echo ${PIPESTATUS[0]}");
    EXPECT_EQ(outcome, printed("in/a.xml 1\n141\n"));
}

TEST_F(ManyDocuments, AreColoredOnRequest) {
    EXPECT_EQ(size({"in/a.xml", "--color=always"}), printed("\x1b[36min/a.xml\x1b[0m 1\n"));
    EXPECT_EQ(size({"in/a.xml", "--color", "auto"}), printed("in/a.xml 1\n"));
}

/// On a terminal, by the command `script`, which records what comes there.
class OnATerminal : public ManyDocuments {
protected:
    [[nodiscard]] std::string recorded(const std::string& arguments) const {
        const Outcome outcome = runBash("unset NO_COLOR; TERM=xterm script -qec '" LVDATA_PROBE " size " + arguments +
                                        "' record </dev/null >/dev/null");
        EXPECT_EQ(outcome.error, "");
        std::string text = read("record");
        text.erase(0, text.find('\n') + 1);  // the first and the last line are by `script` itself
        return text.substr(0, text.rfind("\nScript done"));
    }
};

TEST_F(OnATerminal, ProgressIsShownAndErased) {
    const std::string text = recorded("--wait 60 -j1 in in >output");
    EXPECT_THAT(text, HasSubstr("\r\x1b[K2 of 6 files, "));
    EXPECT_THAT(text, HasSubstr(" left\r\x1b[K"));
    EXPECT_THAT(text, EndsWith("\r\x1b[K"));
    EXPECT_EQ(read("output"), std::string(sizes) + sizes);
}

TEST_F(OnATerminal, ProgressDoesNotMixWithTheOutput) {
    const std::string text = recorded("--wait 60 -j1 --color never in in");
    EXPECT_THAT(text, HasSubstr(" left\r\x1b[Kin/deep/b.xml 2\r\n"));
    EXPECT_THAT(text, Not(HasSubstr("leftin")));
}

TEST_F(OnATerminal, ProgressDoesNotMixWithMessages) {
    EXPECT_THAT(recorded("--wait 60 -j1 in no.xml in >output"), HasSubstr("\r\x1b[Kno.xml: error: "));
}

TEST_F(OnATerminal, ProgressIsErasedWhenTheReaderIsGone) {
    EXPECT_THAT(recorded("--wait 60 -j1 in in | true"), EndsWith("\r\x1b[K"));
}

TEST_F(OnATerminal, ShortRunsShowNoProgress) {
    EXPECT_EQ(recorded("in/a.xml"), "\x1b[36min/a.xml\x1b[0m 1\r\n");
}

TEST_F(OnATerminal, ProgressIsForTerminalsOnly) {
    EXPECT_EQ(recorded("--wait 60 -j1 --color never in 2>errors"), "in/a.xml 1\r\nin/deep/b.xml 2\r\nin/z.xml 3\r\n");
    EXPECT_EQ(read("errors"), "");
}

}  // namespace
