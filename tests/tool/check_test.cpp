#include "ToolTest.h"

#include <set>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// As the tool prints it: nothing to be found, remarks included.
const std::string good = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n"
                         "<BasicData Version=\"3\" MinorVersion=\"0\">\n"
                         "    <UsageHours>1204</UsageHours>\n"
                         "</BasicData>\n";

const std::string remark = "<BasicData Version=\"3\" MinorVersion=\"0\"><UsageHours>0042</UsageHours></BasicData>";

const std::string warning = "<BasicData Version=\"3\" MinorVersion=\"0\">\n<UsageHour>5</UsageHour></BasicData>";

const std::string error = "<BasicData Version=\"3\" MinorVersion=\"0\">\n<UsageHours>140,5</UsageHours></BasicData>";

const std::string warningLine = "warning.xml: warning: line 2: unknown element \"UsageHour\" is dropped; did you mean "
                                "\"UsageHours\"? [301] /BasicData/UsageHour\n";

const std::string errorLine =
    "error.xml: error: line 2: the text after the number in \"140,5\" is ignored, reads as 140 "
    "[104] /BasicData/UsageHours\n";

class Check : public ToolTest {
protected:
    Check() {
        write("good.xml", good);
        write("remark.xml", remark);
        write("warning.xml", warning);
        write("error.xml", error);
    }

    [[nodiscard]] Outcome check(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "check");
        return run(arguments);
    }

    /// What a parser that is not ours makes of standard output.
    [[nodiscard]] static json parsed(const Outcome& outcome) { return json::parse(outcome.output, nullptr, false); }
};

TEST_F(Check, FindsNothingInACanonicalDocument) {
    EXPECT_EQ(check({"good.xml"}), printed("1 document, no findings\n"));
    EXPECT_EQ(check({"--info", "--roundtrip", "good.xml"}), printed("1 document, no findings\n"));
}

TEST_F(Check, FindsWarningsAndErrors) {
    EXPECT_EQ(check({"warning.xml"}),
              (Outcome{1, warningLine + "1 document, with findings: 0 errors, 1 warning\n", ""}));
    EXPECT_EQ(check({"error.xml"}), (Outcome{1, errorLine + "1 document, with findings: 1 error, 0 warnings\n", ""}));
}

TEST_F(Check, ListsRemarksWhenAsked) {
    EXPECT_EQ(check({"remark.xml"}), printed("1 document, no findings, 1 remark (--info lists them)\n"));
    EXPECT_EQ(check({"--info", "remark.xml"}),
              printed("remark.xml: info: line 1: \"0042\" is written back as 42 [105] /BasicData/UsageHours\n"
                      "1 document, no findings, 1 remark\n"));
}

TEST_F(Check, LeavesItsInputsAlone) {
    EXPECT_EQ(check({"good.xml", "remark.xml", "warning.xml", "error.xml"}).exitCode, 1);
    EXPECT_EQ(read("warning.xml"), warning);
    EXPECT_EQ(read("error.xml"), error);
    EXPECT_THAT(names(), ElementsAre("error.xml", "good.xml", "remark.xml", "warning.xml"));
}

TEST_F(Check, FailsOnTheSeverityThatIsAskedFor) {
    const auto statusFor = [this](const std::string& failOn, const std::string& file) {
        return check({"--fail-on", failOn, file}).exitCode;
    };
    EXPECT_EQ(statusFor("error", "error.xml"), 1);
    EXPECT_EQ(statusFor("error", "warning.xml"), 0);
    EXPECT_EQ(statusFor("warning", "warning.xml"), 1);
    EXPECT_EQ(statusFor("warning", "remark.xml"), 0);
    EXPECT_EQ(statusFor("never", "error.xml"), 0);
    EXPECT_EQ(statusFor("never", "missing.xml"), 2);
    EXPECT_EQ(check({"--fail-on=never", "error.xml"}).output, check({"error.xml"}).output);
}

TEST_F(Check, ContinuesAfterErrorsAndHasTheWorstStatus) {
    const Outcome outcome = check({"missing.xml", "warning.xml", "good.xml"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output,
              warningLine + "2 documents, 1 of them with findings: 0 errors, 1 warning, 1 could not be read\n");
    EXPECT_EQ(outcome.error, "missing.xml: error: No such file or directory\n");
    EXPECT_EQ(check({"good.xml", "missing.xml"}).exitCode, 2);
    EXPECT_EQ(check({"good.xml", "warning.xml"}).exitCode, 1);
}

TEST_F(Check, ReportsDocumentsBeyondALimit) {
    const Outcome outcome = check({"--max-elements", "1", "warning.xml"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.output, "0 documents, no findings, 1 could not be read\n");
    EXPECT_EQ(outcome.error, "warning.xml: error: line 2: more than 1 element (limit: --max-elements)\n");
}

TEST_F(Check, ReportsDocumentsThatAreNotRecords) {
    write("text.xml", "Room 4");
    write("zero.xml", good + '\0');
    EXPECT_THAT(check({"text.xml"}).output,
                StartsWith("text.xml: error: line 1: there is text where the root element belongs [001]\n"));
    EXPECT_THAT(check({"zero.xml"}).output, StartsWith("zero.xml: error: line 5: NUL character [003]\n"));
    EXPECT_THAT(run({"check", "-"}, {"<Assetinfo/>"}).output,
                StartsWith("<stdin>: error: line 1: unknown root element \"Assetinfo\"; known: AssetInfo, "));
    EXPECT_EQ(check({"text.xml", "zero.xml"}).exitCode, 1);
}

TEST_F(Check, IgnoresRules) {
    EXPECT_EQ(check({"--ignore", "301", "warning.xml"}), printed("1 document, no findings\n"));
    EXPECT_EQ(check({"--ignore", "104,301", "warning.xml", "error.xml"}), printed("2 documents, no findings\n"));
    EXPECT_EQ(check({"warning.xml", "--ignore=104", "--ignore=301"}), printed("1 document, no findings\n"));
    EXPECT_EQ(check({"--ignore", "104", "warning.xml"}).exitCode, 1);
    EXPECT_EQ(check({"--ignore", "999", "good.xml"}), failed("lvdata: error: --ignore: '999' is not the id of a rule"));
}

TEST_F(Check, ComparesWithTheCanonicalFormWhenAsked) {
    write("spaced.xml", good + '\n');
    EXPECT_EQ(check({"spaced.xml"}).exitCode, 0);
    EXPECT_EQ(check({"--roundtrip", "spaced.xml"}),
              (Outcome{1,
                       "spaced.xml: warning: line 5: from here on, the text differs from what lvdata format prints "
                       "[320]\n1 document, with findings: 0 errors, 1 warning\n",
                       ""}));
}

TEST_F(Check, TakesFoldersAndStandardInput) {
    fs::create_directory(path("folder"));
    fs::rename(path("warning.xml"), path("folder/b.xml"));
    fs::rename(path("good.xml"), path("folder/a.xml"));
    EXPECT_THAT(check({"folder"}).output,
                AllOf(StartsWith("folder/b.xml: warning: "), HasSubstr("\n2 documents, 1 of")));
    EXPECT_THAT(run({"check", "-"}, {warning}).output, StartsWith("<stdin>: warning: line 2: "));
    EXPECT_EQ(check({}).exitCode, 2);
}

TEST_F(Check, SaysHowManyFindingsItDoesNotList) {
    std::string document = "<BasicData Version=\"3\" MinorVersion=\"0\">";
    for (int number = 0; number < 1'001; ++number) {
        document += "<a b=''/><UsageHours> 5</UsageHours>";
    }
    write("many.xml", document + "<UsageHours>x</UsageHours></BasicData>");
    const std::string output = check({"--ignore", "303", "many.xml"}).output;
    EXPECT_THAT(output, HasSubstr("\nmany.xml: 1 more finding\n1 document, with findings: 0 errors, 1001 warnings"));
    EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 1'002);
}

TEST_F(Check, CutsLongTextsInFindings) {
    write("hostile.xml", "<AssetInfo><" + std::string(100'000, 'a') + "/><B\x1B[31m\u2028\xFF x='1'/></AssetInfo>");
    const std::string output = check({"--color", "never", "hostile.xml"}).output;
    EXPECT_LT(output.size(), 1'000U);
    EXPECT_THAT(output, Not(HasSubstr("\x1B")));
    write("bytes.xml", "<AssetInfo><Asset1 \xFF\xFE='1'/></AssetInfo>");
    EXPECT_THAT(check({"bytes.xml"}).output, HasSubstr(R"(unknown attribute "\xFF\xFE" is dropped)"));
}

TEST_F(Check, ColoursItsOutputOnRequest) {
    EXPECT_THAT(check({"--color", "always", "warning.xml"}).output, HasSubstr("\x1B["));
    EXPECT_THAT(check({"--color", "auto", "warning.xml"}).output, Not(HasSubstr("\x1B[")));
}

TEST_F(Check, PrintsJSON) {
    const Outcome outcome = check({"--format", "json", "remark.xml", "warning.xml", "good.xml", "error.xml"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(parsed(outcome), json::parse(R"({
        "findings": [
            {"id": "105", "severity": "info", "file": "remark.xml", "line": 1, "path": "/BasicData/UsageHours",
             "message": "\"0042\" is written back as 42"},
            {"id": "301", "severity": "warning", "file": "warning.xml", "line": 2, "path": "/BasicData/UsageHour",
             "message": "unknown element \"UsageHour\" is dropped; did you mean \"UsageHours\"?"},
            {"id": "104", "severity": "error", "file": "error.xml", "line": 2, "path": "/BasicData/UsageHours",
             "message": "the text after the number in \"140,5\" is ignored, reads as 140"}
        ],
        "documents": 4, "unreadable": 0, "documents_with_findings": 2, "errors": 1, "warnings": 1, "infos": 1
    })"));
}

TEST_F(Check, PrintsJSONWithoutFindingsAndAfterErrors) {
    json nothing = json::parse(
        R"({"findings": [], "documents": 1, "unreadable": 0, "documents_with_findings": 0, "errors": 0, "warnings": 0, "infos": 0})");
    EXPECT_EQ(parsed(check({"--format=json", "good.xml"})), nothing);
    const Outcome trouble = check({"--format=json", "missing.xml", "good.xml"});
    nothing["unreadable"] = 1;
    EXPECT_EQ(parsed(trouble), nothing);
    EXPECT_EQ(trouble.exitCode, 2);
    EXPECT_EQ(trouble.error, "missing.xml: error: No such file or directory\n");
}

TEST_F(Check, CountsWhatCannotBeRead) {
    write("a.xml", "<AssetInfo Version='1' MinorVersion='0'/>");
    const Outcome text = check({"none.xml", "a.xml"});
    EXPECT_EQ(text.exitCode, 2);
    EXPECT_EQ(text.output, "1 document, no findings, 1 could not be read\n");
    EXPECT_EQ(text.error, "none.xml: error: No such file or directory\n");
    EXPECT_THAT(check({"--format", "json", "none.xml", "a.xml"}).output, HasSubstr("\"unreadable\": 1"));
}

}  // namespace
