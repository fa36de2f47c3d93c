#include "ToolTest.h"

#include <tests/support/parameter_names.h>

#include <lvdata/version.h>

#include <algorithm>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

using CommandLine = ToolTest;

TEST_F(CommandLine, PrintsItsVersion) {
    EXPECT_EQ(run({"--version"}), printed(std::string("lvdata ") + lv::versionText + '\n'));
}

TEST_F(CommandLine, HelpNamesTheSubcommands) {
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, AllOf(HasSubstr("Usage: lvdata "), HasSubstr("--version"), HasSubstr("format")));
    EXPECT_EQ(help.error, "");
}

TEST_F(CommandLine, HelpOfASubcommandNamesItsOptions) {
    const Outcome help = run({"format", "--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, AllOf(HasSubstr("Usage: lvdata format "), HasSubstr("FILE"), HasSubstr("--compact"),
                                   HasSubstr("--no-declaration"), HasSubstr("-o,--output"), HasSubstr("--max-size N"),
                                   HasSubstr("--max-elements N"), HasSubstr("--max-attributes N"),
                                   HasSubstr("--max-broken-references N")));
    EXPECT_EQ(help.error, "");
}

TEST_F(CommandLine, HelpTakesPrecedence) {
    EXPECT_EQ(run({"-h"}), run({"--help"}));
    EXPECT_EQ(run({"format", "-h", "missing.xml"}), run({"format", "--help"}));
}

TEST_F(CommandLine, TakesWhatFollowsTwoDashesForAFile) {
    write("--compact", "<AssetInfo/>");
    EXPECT_EQ(run({"format", "--no-declaration", "--", "--compact"}),
              printed("<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"));
}

TEST_F(CommandLine, TakesAFileThatIsNamedAsASubcommandIs) {
    write("format", "<AssetInfo/>");
    EXPECT_EQ(run({"format", "--no-declaration", "format"}),
              printed("<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"));
}

struct Misuse {
    std::string name;
    std::vector<std::string> arguments;
    std::string reason;  // what the message must contain
};

void PrintTo(const Misuse& misuse, std::ostream* out) {
    *out << misuse.name;
}

class BadUsage : public ToolTest, public testing::WithParamInterface<Misuse> {};

TEST_P(BadUsage, IsOneLineAndChangesNothing) {
    write("a.xml", "<AssetInfo/>");
    write("b.xml", "<AssetInfo/>");
    const Outcome outcome = run(GetParam().arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.error, AllOf(StartsWith("lvdata: error: "), HasSubstr(GetParam().reason)));
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1);
    EXPECT_EQ(outcome.error.back(), '\n');
    EXPECT_EQ(names(), (std::vector<std::string>{"a.xml", "b.xml"}));
    EXPECT_EQ(read("a.xml"), "<AssetInfo/>");
}

const std::vector<Misuse> misuses{
    {"NoSubcommand", {}, "subcommand"},
    {"UnknownSubcommand", {"frob", "a.xml"}, "subcommand or option: frob"},
    {"UnknownOption", {"--frob"}, "--frob"},
    {"UnknownOptionBeforeTheSubcommand", {"--frob", "format", "a.xml"}, "--frob"},
    {"UnknownOptionOfASubcommand", {"format", "--frob", "a.xml"}, "--frob"},
    {"OptionOfASubcommandBeforeIt", {"--compact", "format", "a.xml"}, "--compact"},
    {"NoFile", {"format"}, "FILE"},
    {"NoFileButOptions", {"format", "--compact", "-o", "b.xml"}, "FILE"},
    {"TwoFiles", {"format", "a.xml", "b.xml"}, "b.xml"},
    {"TwoOutputs", {"format", "a.xml", "-o", "b.xml", "-o", "c.xml"}, "--output"},
    {"OutputWithoutName", {"format", "a.xml", "-o"}, "--output"},
    {"OutputWithEmptyName", {"format", "a.xml", "-o", ""}, "--output"},
    {"LimitThatIsNoNumber", {"format", "a.xml", "--max-size", "1e3"}, "--max-size: '1e3' is not a number"},
    {"LimitWithAUnit", {"format", "a.xml", "--max-size", "64M"}, "--max-size: '64M' is not a number"},
    {"LimitInOctalDigits", {"format", "a.xml", "--max-elements", "010"}, "--max-elements: '010' is not a number"},
    {"LimitThatIsNegative", {"format", "a.xml", "--max-attributes", "-1"}, "--max-attributes: '-1' is not a number"},
    {"LimitWithoutValue", {"format", "a.xml", "--max-attributes"}, "--max-attributes"},
    {"LimitThatIsEmpty", {"format", "a.xml", "--max-attributes", ""}, "--max-attributes: '' is not a number"},
    {"LimitBeyondAGibibyte",
     {"format", "a.xml", "--max-broken-references", "1073741825"},
     "'1073741825' is not a number between 0 and 1073741824"},
    {"LimitBeyondAllNumbers", {"format", "a.xml", "--max-size", "99999999999999999999"}, "--max-size: '9999999"},
    {"EmptyFileName", {"format", ""}, "FILE"},
    {"LineBreakInAnArgument", {"format", "a.xml", "x\ny"}, "x\\x0Ay"},
};

INSTANTIATE_TEST_SUITE_P(CommandLine, BadUsage, testing::ValuesIn(misuses), lv::test::nameOfParameter);

}  // namespace
