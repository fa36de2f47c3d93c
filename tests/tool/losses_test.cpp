#include "ToolTest.h"

#include <tests/support/repeated.h>

#include <gmock/gmock.h>

// What `lvdata format` says and does when the record cannot keep all that the document says.

namespace {

namespace fs = std::filesystem;
using lv::test::repeated;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

const std::string lossy = "<AssetInfo Version=\"1\" MinorVersion=\"0\">\n"
                          "    <Asset1>one</Asset1>\n"
                          "    <Owner>me</Owner>\n"
                          "</AssetInfo>\n";

const std::string kept = "<AssetInfo Version=\"1\" MinorVersion=\"0\">\n"
                         "    <Asset1>one</Asset1>\n"
                         "</AssetInfo>\n";

const std::string message = "in.xml: warning: line 3: unknown element \"Owner\" is dropped [301]\n";

std::string targetSetting(const std::string& gamma) {
    return "<TargetSetting Version=\"1\" MinorVersion=\"0\">\n"
           "    <Gamma>\n"
           "        <Red Type=\"Value\"/>\n" +
           gamma + "    </Gamma>\n</TargetSetting>\n";
}

class Losses : public ToolTest {
protected:
    Losses() { write("in.xml", lossy); }

    [[nodiscard]] Outcome format(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"format", "--no-declaration"});
        return run(arguments);
    }

    /// Formats "in.xml" into itself by another name.
    void expectRefused(const std::string& output) const {
        EXPECT_EQ(format({"in.xml", "-o", output}),
                  (Outcome{2, "",
                           message + output +
                               ": error: not overwritten, since it would lose what is listed above (allow it: "
                               "--lossy)\n"}));
        EXPECT_EQ(read("in.xml"), lossy);
    }
};

TEST_F(Losses, AreWarnings) {
    EXPECT_EQ(format({"in.xml"}), (Outcome{1, kept, message}));
    EXPECT_EQ(format({"-"}).exitCode, 2) << "an empty standard input";
}

TEST_F(Losses, AreWrittenIntoAnotherFile) {
    EXPECT_EQ(format({"in.xml", "-o", "out.xml"}), (Outcome{1, "", message}));
    EXPECT_EQ(read("out.xml"), kept);
    EXPECT_EQ(read("in.xml"), lossy);
}

TEST_F(Losses, CanBeAccepted) {
    EXPECT_EQ(format({"in.xml", "--lossy"}), (Outcome{0, kept, message}));
    EXPECT_EQ(format({"in.xml", "--lossy", "-o", "in.xml"}), (Outcome{0, "", message}));
    EXPECT_EQ(read("in.xml"), kept);
}

TEST_F(Losses, DoNotOverwriteTheDocumentUnderAnyOfItsNames) {
    fs::create_hard_link(path("in.xml"), path("hard.xml"));
    for (const std::string name : {"in.xml", "./in.xml", "hard.xml"}) {
        expectRefused(name);
    }
}

TEST_F(Losses, DoNotOverwriteTheDocumentOnStandardInput) {
    EXPECT_EQ(run({"format", "-", "-o", "in.xml"}, withInputFrom(path("in.xml"))).exitCode, 2);
    EXPECT_EQ(read("in.xml"), lossy);
}

TEST_F(Losses, AreNotReportedWhenOnlySpellingChanges) {
    write("in.xml", "<BasicData><UsageHours> +042</UsageHours></BasicData>");
    EXPECT_EQ(format({"in.xml", "-o", "in.xml"}), done());
    EXPECT_THAT(read("in.xml"), HasSubstr("<UsageHours>42</UsageHours>"));
}

TEST_F(Losses, AreNotReportedForValuesThatAreKept) {
    write("in.xml", "<CorrelationInfo><CorrelationDate>May \xFF</CorrelationDate></CorrelationInfo>");
    EXPECT_EQ(format({"in.xml"}).exitCode, 0);
    EXPECT_EQ(format({"in.xml"}).error, "");
}

TEST_F(Losses, AreListedInTenLinesAtMostWithACount) {
    write("in.xml", "<AssetInfo>" + repeated("\n<a/>", 10) + "</AssetInfo>");
    const std::string ten = format({"in.xml"}).error;
    EXPECT_THAT(ten, EndsWith("in.xml: warning: line 11: unknown element \"a\" is dropped [301]\n"));
    write("in.xml", "<AssetInfo>" + repeated("\n<a/>", 11) + "</AssetInfo>");
    EXPECT_EQ(format({"in.xml"}).error, ten + "in.xml: warning: 1 more change, see lvdata check\n");
    write("in.xml", "<AssetInfo>" + repeated("\n<a/>", 5'000) + "</AssetInfo>");
    EXPECT_EQ(format({"in.xml"}).error, ten + "in.xml: warning: 4990 more changes, see lvdata check\n");
}

TEST_F(Losses, OnStandardInputAreReportedUnderItsName) {
    EXPECT_THAT(run({"format", "-"}, {lossy}).error, testing::StartsWith("<stdin>: warning: line 3: "));
}

TEST_F(Losses, AreOnOneLine) {
    write("in.xml", "<AssetInfo><Asset1 lang='a&#10;b'/><B\xFF\u2028/></AssetInfo>");
    EXPECT_THAT(format({"in.xml"}).error, HasSubstr(R"(unknown element "B\xFF\xE2\x80\xA8" is dropped)"));
}

const std::string gammaLine = "        <HLGSystemGamma>120</HLGSystemGamma>\n";

TEST_F(Losses, DoNotIncludeTheHLGSystemGamma) {
    write("in.xml", targetSetting(gammaLine));
    const std::string text = format({"in.xml"}).output;
    EXPECT_THAT(text, HasSubstr("<HLGSystemGamma>120</HLGSystemGamma>"));
    EXPECT_EQ(format({"in.xml"}), printed(text));
    EXPECT_EQ(format({"in.xml", "--hlg-system-gamma"}), printed(text));
}

TEST_F(Losses, AddNoHLGSystemGammaUnlessAskedFor) {
    write("in.xml", targetSetting(""));
    EXPECT_THAT(format({"in.xml"}).output, Not(HasSubstr("HLGSystemGamma")));
    EXPECT_THAT(format({"in.xml", "--hlg-system-gamma"}).output, HasSubstr("<HLGSystemGamma>0</HLGSystemGamma>"));
}

TEST_F(Losses, OfTheHLGSystemGammaCanBeAskedFor) {
    write("in.xml", targetSetting(gammaLine));
    const Outcome without = format({"in.xml", "--no-hlg-system-gamma"});
    EXPECT_EQ(without, printed(without.output));
    EXPECT_THAT(without.output, Not(HasSubstr("HLGSystemGamma")));
    EXPECT_EQ(format({"in.xml", "--no-hlg-system-gamma", "--hlg-system-gamma"}).exitCode, 2);
}

TEST_F(Losses, AreNoneInTheSampleOfAStudio) {
    fs::copy_file(fs::u8path(exampleData("studio.xml")), path("studio.xml"));
    EXPECT_TRUE(run({"format", "studio.xml"}) == printed(read("studio.xml")));
}

}  // namespace
