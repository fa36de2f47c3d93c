#include "PosixTest.h"

#include <tests/tool/help_texts.h>

#include <lvdata/version.h>

#include <regex>

#include <gmock/gmock.h>

namespace {

using testing::ContainsRegex;
using testing::HasSubstr;

constexpr const char* page = LVDATA_TOOL_PAGES "/lvdata.1";

class ManualPage : public PosixTest {
protected:
    void SetUp() override {
        if (runBash("command -v mandoc").exitCode != 0) {
            GTEST_SKIP() << "mandoc is not installed";
        }
    }

    /// The page as it is read, without bold and underlined letters; a line is as long as it needs.
    [[nodiscard]] std::string text() const {
        static const std::regex struckOver(".\b");
        return std::regex_replace(runBash(std::string("mandoc -Tascii -Owidth=1000 ") + page).output, struckOver, "");
    }

    /// The part under that heading, up to the next one.
    [[nodiscard]] static std::string section(const std::string& text, const std::string& heading) {
        const std::string rest = text.substr(text.find('\n' + heading + '\n') + heading.size() + 1);
        static const std::regex nextHeading("\n {0,3}[^ \n]");
        std::smatch end;
        return std::regex_search(rest, end, nextHeading) ? end.prefix().str() : rest;
    }
};

TEST_F(ManualPage, IsWellFormed) {
    EXPECT_EQ(runBash(std::string("mandoc -Tlint -Wstyle ") + page), done());
}

TEST_F(ManualPage, HasTheVersionAndTheUsualSections) {
    const std::string whole = text();
    EXPECT_THAT(whole, HasSubstr(std::string("lvdata ") + lv::versionText));
    for (const std::string heading : {"NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "SUBCOMMANDS", "ENVIRONMENT",
                                      "FILES", "EXIT STATUS", "EXAMPLES"}) {
        EXPECT_THAT(whole, HasSubstr('\n' + heading + '\n'));
    }
}

TEST_F(ManualPage, HasEveryOptionOfEverySubcommand) {
    const std::string whole = text();
    const std::string help = run({"--help"}).output;
    for (const std::string& option : optionsIn(help)) {
        EXPECT_THAT(section(whole, "OPTIONS"), ContainsRegex("(\n     |, )" + option + "[ ,\n]"));
    }
    for (const std::string& subcommand : subcommandsIn(help)) {
        EXPECT_THAT(section(whole, "SYNOPSIS"), HasSubstr("lvdata " + subcommand + " "));
        const std::string options = section(whole, "   lvdata " + subcommand);
        for (const std::string& option : optionsIn(run({subcommand, "--help"}).output)) {
            EXPECT_THAT(options, ContainsRegex("(\n     |, )" + option + "[ ,\n]")) << subcommand;
        }
    }
}

}  // namespace
