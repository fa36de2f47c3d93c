#include "PosixTest.h"

#include <tests/tool/help_texts.h>

#include <algorithm>
#include <sstream>

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
using Words = std::vector<std::string>;

constexpr const char* bashScript = LVDATA_TOOL_PAGES "/bash/lvdata";
constexpr const char* zshScript = LVDATA_TOOL_PAGES "/zsh/_lvdata";
constexpr const char* fishScript = LVDATA_TOOL_PAGES "/fish/lvdata.fish";

class Completion : public PosixTest {
protected:
    [[nodiscard]] std::string help(const std::string& subcommand) const {
        return subcommand.empty() ? run({"--help"}).output : run({subcommand, "--help"}).output;
    }

    [[nodiscard]] Words subcommands() const { return subcommandsIn(help("")); }

    /// What bash offers for the last of the words.
    [[nodiscard]] Words bashOffers(const std::string& words) const {
        return lines(runBash(std::string("source ") + bashScript + "; COMP_WORDS=(" + words +
                             "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _lvdata; printf '%s\\n' \"${COMPREPLY[@]}\""));
    }

    /// What fish offers at the end of the line, without explanations.
    [[nodiscard]] Words fishOffers(const std::string& line) const {
        return lines(runBash(std::string("fish --private -c 'source ") + fishScript + "; complete -C \"" + line +
                             "\"' | cut -f 1"));
    }

    [[nodiscard]] bool has(const std::string& program) const { return runBash("command -v " + program).exitCode == 0; }

private:
    static Words lines(const Outcome& outcome) {
        EXPECT_EQ(outcome.error, "");
        Words result;
        std::istringstream text(outcome.output);
        for (std::string line; std::getline(text, line);) {
            result.push_back(line);
        }
        return result;
    }
};

TEST_F(Completion, ForBashIsAScript) {
    EXPECT_EQ(runBash(std::string("bash -n ") + bashScript), done());
    EXPECT_EQ(runBash(std::string("source ") + bashScript + "; complete -p lvdata"),
              printed("complete -F _lvdata lvdata\n"));
}

TEST_F(Completion, ForBashOffersSubcommandsAndEveryOption) {
    EXPECT_THAT(bashOffers("lvdata ''"), IsSupersetOf(subcommands()));
    EXPECT_THAT(bashOffers("lvdata -"), UnorderedElementsAreArray(optionsIn(help(""))));
    for (const std::string& subcommand : subcommands()) {
        EXPECT_THAT(bashOffers("lvdata " + subcommand + " -"), UnorderedElementsAreArray(optionsIn(help(subcommand))));
    }
}

TEST_F(Completion, ForBashOffersValues) {
    write("some name.xml", "");
    EXPECT_THAT(bashOffers("lvdata format so"), ElementsAre("some name.xml"));
    EXPECT_THAT(bashOffers("lvdata format --compact -o so"), ElementsAre("some name.xml"));
    EXPECT_THAT(bashOffers("lvdata format --output = so"), ElementsAre("some name.xml"));
    EXPECT_THAT(bashOffers("lvdata format --output ="), UnorderedElementsAreArray(names()));
    EXPECT_THAT(bashOffers("lvdata format --max-size ''"), ElementsAre(""));  // a number
    EXPECT_THAT(bashOffers("lvdata format --max-size = so"), ElementsAre(""));
    EXPECT_THAT(bashOffers("lvdata for"), ElementsAre("format"));
}

TEST_F(Completion, ForFishOffersSubcommandsAndEveryOption) {
    if (!has("fish")) {
        GTEST_SKIP() << "fish is not installed";
    }
    EXPECT_EQ(runBash(std::string("fish -n ") + fishScript), done());
    EXPECT_THAT(fishOffers("lvdata "), UnorderedElementsAreArray(subcommands()));
    EXPECT_THAT(fishOffers("lvdata -"), UnorderedElementsAreArray(optionsIn(help(""))));
    for (const std::string& subcommand : subcommands()) {
        EXPECT_THAT(fishOffers("lvdata " + subcommand + " -"), UnorderedElementsAreArray(optionsIn(help(subcommand))));
    }
}

TEST_F(Completion, ForFishOffersValues) {
    if (!has("fish")) {
        GTEST_SKIP() << "fish is not installed";
    }
    write("some.xml", "");
    EXPECT_THAT(fishOffers("lvdata format so"), ElementsAre("some.xml"));
    EXPECT_THAT(fishOffers("lvdata format --output so"), ElementsAre("some.xml"));
    EXPECT_THAT(fishOffers("lvdata format --max-size so"), ElementsAre());
}

TEST_F(Completion, ForZshOffersEveryOption) {
    if (has("zsh")) {
        EXPECT_EQ(runBash(std::string("zsh -n ") + zshScript), done());
    }
    const std::string script = runBash(std::string("cat ") + zshScript).output;
    for (const std::string& subcommand : subcommands()) {
        EXPECT_THAT(script, HasSubstr("\n            '" + subcommand + ":"));
        const std::size_t start = script.find("\n        " + subcommand + ")\n");
        ASSERT_NE(start, std::string::npos);
        const std::string section = script.substr(start, script.find(";;", start) - start);
        for (const std::string& option : optionsIn(help(subcommand))) {
            EXPECT_THAT(section, testing::ContainsRegex("[)*]" + option + "[+=]?\\[")) << subcommand;
        }
    }
    for (const std::string& option : optionsIn(help(""))) {
        EXPECT_THAT(script, HasSubstr(')' + option + '['));
    }
}

}  // namespace
