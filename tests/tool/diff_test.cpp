#include "ToolTest.h"

#include <tests/analysis/diff/documents.h>

#include <gmock/gmock.h>

namespace {

using lv::test::documentWithGamma;
using testing::HasSubstr;
using testing::StartsWith;

Outcome found(const std::string& text) {
    return {1, text, ""};
}

std::string asset(const std::string& text) {
    return "<AssetInfo><Asset1>" + text + "</Asset1></AssetInfo>";
}

class DiffCommand : public ToolTest {
protected:
    /// Compares two documents in files "a.xml" and "b.xml".
    [[nodiscard]] Outcome diff(const std::string& before, const std::string& after,
                               const std::vector<std::string>& options = {}) const {
        write("a.xml", before);
        write("b.xml", after);
        std::vector<std::string> arguments = {"diff", "a.xml", "b.xml"};
        arguments.insert(arguments.begin() + 1, options.begin(), options.end());
        return run(arguments);
    }
};

TEST_F(DiffCommand, SaysNothingOfEqualRecords) {
    EXPECT_EQ(diff(documentWithGamma("220"), "<!-- the same -->" + documentWithGamma(" 0220 ")), done());
}

TEST_F(DiffCommand, ListsDifferencesInALineEach) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("240")),
              found("ParameterSetting/Gamma/Value: 2.2 -> 2.4\n"));
    EXPECT_EQ(diff(asset("a"), "<AssetInfo Version='2'/>"),
              found("AssetInfo/@Version: 1 -> 2\nAssetInfo/Asset1: cleared, was \"a\"\n"));
}

TEST_F(DiffCommand, LeavesItsInputsAlone) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("240")).exitCode, 1);
    EXPECT_EQ(read("a.xml"), documentWithGamma("220"));
    EXPECT_EQ(read("b.xml"), documentWithGamma("240"));
    EXPECT_EQ(names(), (std::vector<std::string>{"a.xml", "b.xml"}));
}

TEST_F(DiffCommand, ReadsStandardInputOnce) {
    write("a.xml", documentWithGamma("220"));
    EXPECT_EQ(run({"diff", "a.xml", "-"}, {documentWithGamma("240")}),
              found("ParameterSetting/Gamma/Value: 2.2 -> 2.4\n"));
    EXPECT_EQ(run({"diff", "-", "a.xml"}, {documentWithGamma("240")}),
              found("ParameterSetting/Gamma/Value: 2.4 -> 2.2\n"));
    EXPECT_EQ(run({"diff", "-", "-"}, {documentWithGamma("240")}),
              failed("lvdata: error: only one of the two documents can be standard input"));
}

TEST_F(DiffCommand, CountsWhatIsWithinTolerance) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"), {"--tolerance", "gamma=0.1"}),
              printed("not listed: 1 within tolerance\n"));
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("231"), {"--tolerance", "gamma=0.1"}),
              found("ParameterSetting/Gamma/Value: 2.2 -> 2.31\n"));
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"),
                   {"--tolerance", "gamma=0.1", "--tolerance", "duv=1,de00=1"})
                  .exitCode,
              0);
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"), {"--tolerance=duv=1,gamma=0.1"}).exitCode, 0);
}

TEST_F(DiffCommand, RefusesAToleranceOfAnUnknownKind) {
    const Outcome outcome = diff(documentWithGamma("220"), documentWithGamma("230"), {"--tolerance", "colour=1"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.error,
                StartsWith("lvdata: error: --tolerance: unknown kind of tolerance 'colour'; known: candela, "));
    EXPECT_THAT(outcome.error, HasSubstr(", de00, duv, "));
}

TEST_F(DiffCommand, LeavesOutIgnoredPaths) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"), {"--ignore", "ParameterSetting/Gamma"}),
              printed("not listed: 1 ignored\n"));
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"), {"--ignore", "//Value", "--ignore", "//Fixed"})
                  .exitCode,
              0);
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("230"), {"--ignore", ""}).exitCode, 2);
}

TEST_F(DiffCommand, WritesNothingButJSONOnRequest) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("240"), {"--format", "json"}),
              found("{\n"
                    "  \"differences\": [\n"
                    "    {\n"
                    "      \"path\": \"ParameterSetting/Gamma/Value\",\n"
                    "      \"kind\": \"changed\",\n"
                    "      \"before\": \"2.2\",\n"
                    "      \"after\": \"2.4\",\n"
                    "      \"change\": \"0.2\"\n"
                    "    }\n"
                    "  ],\n"
                    "  \"within_tolerance\": 0,\n"
                    "  \"ignored\": 0\n"
                    "}\n"));
    const Outcome none = diff(documentWithGamma("220"), documentWithGamma("220"), {"--format", "json"});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_THAT(none.output, HasSubstr("\"differences\": []"));
}

TEST_F(DiffCommand, RefusesToWriteJSONOfOtherBytesThanUTF8) {
    EXPECT_EQ(diff(asset("a"), asset("\xff"), {"--format", "json"}),
              failed("lvdata: error: a text is not UTF-8, so it cannot be written as JSON"));
}

TEST_F(DiffCommand, KeepsTextsOnOneLine) {
    EXPECT_EQ(diff(asset("a"), asset("b\nc\x1b")), found("AssetInfo/Asset1: \"a\" -> \"b\\x0Ac\\x1B\"\n"));
}

TEST_F(DiffCommand, IsColouredOnRequestOnly) {
    EXPECT_EQ(diff(documentWithGamma("220"), documentWithGamma("240"), {"--color", "always"}),
              found("\x1b[36mParameterSetting/Gamma/Value\x1b[0m: \x1b[33m2.2 -> 2.4\x1b[0m\n"));
    EXPECT_THAT(diff(asset("a"), "<AssetInfo/>", {"--color", "always"}).output, HasSubstr("\x1b[31mcleared"));
    EXPECT_THAT(diff("<AssetInfo/>", asset("a"), {"--color", "always"}).output, HasSubstr("\x1b[32mset to"));
}

TEST_F(DiffCommand, RefusesRecordsOfDifferentClasses) {
    EXPECT_EQ(diff(documentWithGamma("220"), asset("a")),
              failed("b.xml: error: records of different classes: ParameterSetting and AssetInfo"));
}

TEST_F(DiffCommand, SaysWhyADocumentCannotBeRead) {
    EXPECT_EQ(diff("<A", asset("a")).exitCode, 2);
    EXPECT_THAT(diff(asset("a"), "<A").error, StartsWith("b.xml: error: line 1: "));
    EXPECT_EQ(run({"diff", "a.xml", "none.xml"}), failed("none.xml: error: No such file or directory"));
    EXPECT_EQ(diff(asset("a"), asset("b"), {"--max-elements", "1"}).exitCode, 2);
    EXPECT_EQ(run({"diff", "a.xml"}).exitCode, 2);
}

}  // namespace
