#include "ToolTest.h"

#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/MeasurementData.h>

#include <gmock/gmock.h>

namespace {

const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)";

/// A document in another layout than the tool's, which loses nothing.
const std::string untidy = "<AssetInfo MinorVersion='3'\n  Version='1'><Asset2>two</Asset2>\n\n"
                           "<Asset1>one</Asset1></AssetInfo>";

const std::string tidy = "<AssetInfo Version=\"1\" MinorVersion=\"3\">\n"
                         "    <Asset1>one</Asset1>\n"
                         "    <Asset2>two</Asset2>\n"
                         "</AssetInfo>\n";

const std::string compact = "<AssetInfo Version=\"1\" MinorVersion=\"3\"><Asset1>one</Asset1><Asset2>two</Asset2>"
                            "</AssetInfo>";

class Format : public ToolTest {
protected:
    /// What becomes of a document in a file "in.xml".
    [[nodiscard]] Outcome format(const std::string& document) const {
        write("in.xml", document);
        return run({"format", "--no-declaration", "in.xml"});
    }

    /// The same, where the record holds nothing but "Asset1".
    [[nodiscard]] std::string asset1Of(const std::string& document) const {
        lv::AssetInfo record;
        EXPECT_TRUE(record.parseXMLString(format(document).output));
        EXPECT_TRUE(record.asset1.hasValue);
        return record.asset1.value;
    }
};

TEST_F(Format, PrintsIndentedWithDeclaration) {
    write("in.xml", untidy);
    EXPECT_EQ(run({"format", "in.xml"}), printed(declaration + '\n' + tidy));
}

TEST_F(Format, PrintsWithoutDeclaration) {
    write("in.xml", untidy);
    EXPECT_EQ(run({"format", "--no-declaration", "in.xml"}), printed(tidy));
}

TEST_F(Format, PrintsCompact) {
    write("in.xml", untidy);
    EXPECT_EQ(run({"format", "--compact", "in.xml"}), printed(declaration + compact + '\n'));
}

TEST_F(Format, PrintsCompactWithoutDeclaration) {
    write("in.xml", untidy);
    EXPECT_EQ(run({"format", "in.xml", "--no-declaration", "--compact"}), printed(compact + '\n'));
}

TEST_F(Format, LeavesItsInputAlone) {
    write("in.xml", untidy);
    EXPECT_EQ(run({"format", "in.xml"}).exitCode, 0);
    EXPECT_EQ(read("in.xml"), untidy);
    EXPECT_EQ(names(), std::vector<std::string>{"in.xml"});
}

TEST_F(Format, ReadsStandardInput) {
    EXPECT_EQ(run({"format", "-"}, {untidy}), printed(declaration + '\n' + tidy));
    EXPECT_EQ(names(), std::vector<std::string>{});
}

TEST_F(Format, ReadsAFileNamedLikeStandardInputByItsPath) {
    write("-", untidy);
    EXPECT_EQ(run({"format", "--no-declaration", "./-"}, {"<CorrelationInfo/>"}), printed(tidy));
}

TEST_F(Format, ReadsLineBreaksOfOtherSystems) {
    EXPECT_EQ(format("<?xml version=\"1.0\"?>\r\n<AssetInfo Version=\"1\" MinorVersion=\"3\">\r\n"
                     "\t<Asset1>one</Asset1>\r\n\t<Asset2>two</Asset2>\r\n</AssetInfo>\r\n"),
              printed(tidy));
    EXPECT_EQ(asset1Of("<AssetInfo>\r\n<Asset1>one\r\ntwo\rthree</Asset1>\r\n</AssetInfo>"), "one\ntwo\nthree");
}

TEST_F(Format, ReadsPastAByteOrderMark) {
    EXPECT_EQ(format("\xEF\xBB\xBF" + untidy), printed(tidy));
    EXPECT_EQ(format("\xEF\xBB\xBF" + declaration + "\n" + untidy), printed(tidy));
}

TEST_F(Format, KeepsTextOfEveryKind) {
    EXPECT_EQ(asset1Of("<AssetInfo><Asset1>&lt;a&gt; &amp; &quot;b&quot; &apos;c&apos;</Asset1></AssetInfo>"),
              "<a> & \"b\" 'c'");
    EXPECT_EQ(asset1Of("<AssetInfo><Asset1>Größe &#xE9;&#233; 色</Asset1></AssetInfo>"), "Größe éé 色");
    EXPECT_EQ(asset1Of("<AssetInfo><Asset1><![CDATA[<a> & b]]></Asset1></AssetInfo>"), "<a> & b");
    EXPECT_EQ(asset1Of("<AssetInfo><Asset1>  two\n lines </Asset1></AssetInfo>"), "  two\n lines ");
}

TEST_F(Format, FormattingAgainChangesNothing) {
    const std::vector<std::vector<std::string>> styles{
        {}, {"--compact"}, {"--no-declaration"}, {"--compact", "--no-declaration"}};
    for (std::vector<std::string> command : styles) {
        command.insert(command.begin(), {"format", "-"});
        const std::string once = run(command, {untidy}).output;
        EXPECT_EQ(run(command, {once}), printed(once));
        EXPECT_EQ(run({"format", "-", "--no-declaration"}, {once}), printed(tidy));
    }
}

TEST_F(Format, PrintsAnEmptyRecord) {
    EXPECT_EQ(format("<AssetInfo/>"), printed("<AssetInfo Version=\"1\" MinorVersion=\"0\"/>\n"));
    EXPECT_EQ(format("<MeasurementData></MeasurementData>"),
              printed("<MeasurementData Version=\"2\" MinorVersion=\"0\"/>\n"));
}

TEST_F(Format, TakesADocumentOfManyRows) {
    lv::MeasurementData record;
    for (int row = 0; row < 30'000; ++row) {
        record.objects.emplace_back().XYZ = {row, -row, 1'000'000};
        record.objects.back().RGB = {0, 128, 255};
    }
    write("in.xml", record.toXMLString(false, false));
    ASSERT_GT(read("in.xml").size(), 2'000'000U);
    EXPECT_TRUE(run({"format", "in.xml"}) == printed(record.toXMLString(true, true)));
    EXPECT_TRUE(run({"format", "-"}, {read("in.xml")}) == printed(record.toXMLString(true, true)));
}

TEST_F(Format, TakesAVeryLongText) {
    const std::string text(5'000'000, 'x');
    EXPECT_TRUE(asset1Of("<AssetInfo><Asset1>" + text + "</Asset1></AssetInfo>") == text);
}

TEST_F(Format, ReportsAMissingFile) {
    EXPECT_EQ(run({"format", "no.xml"}), failed("no.xml: error: No such file or directory"));
    EXPECT_EQ(run({"format", "no/in.xml"}), failed("no/in.xml: error: No such file or directory"));
    EXPECT_EQ(run({"format", pathText("no.xml")}), failed(pathText("no.xml") + ": error: No such file or directory"));
}

TEST_F(Format, ReportsAFolder) {
    EXPECT_EQ(run({"format", "."}), failed(".: error: Is a directory"));
}

TEST_F(Format, ReportsTextThatIsNotXMLWithItsLine) {
    EXPECT_EQ(format("<AssetInfo>\n\n<Asset1></Asset2>\n</AssetInfo>"),
              failed("in.xml: error: line 3: the end tag does not match the start tag"));
    EXPECT_EQ(format("\r\n\r\n<AssetInfo><Asset1></AssetInfo>"),
              failed("in.xml: error: line 3: the end tag does not match the start tag"));
    EXPECT_EQ(format("<AssetInfo><Asset1>x"), failed("in.xml: error: line 1: the document ends inside an element"));
    EXPECT_EQ(format("Room 4"), failed("in.xml: error: line 1: there is text where the root element belongs"));
    EXPECT_EQ(format("<AssetInfo/>\n\nRoom 4"), failed("in.xml: error: line 3: something follows the root element"));
    EXPECT_EQ(format("<AssetInfo>\n<Asset1 a='1' a='2'/>"), failed("in.xml: error: line 2: duplicate attribute"));
}

TEST_F(Format, ReportsAnEmptyText) {
    EXPECT_EQ(format(""), failed("in.xml: error: empty document"));
    EXPECT_EQ(format(" \r\n\t\n"), failed("in.xml: error: empty document"));
    EXPECT_EQ(format("\xEF\xBB\xBF"), failed("in.xml: error: empty document"));
}

TEST_F(Format, ReportsADocumentWithoutRootElement) {
    EXPECT_EQ(format(declaration), failed("in.xml: error: no root element"));
    EXPECT_EQ(format("<!-- <AssetInfo/> -->\n"), failed("in.xml: error: no root element"));
}

TEST_F(Format, ReportsANulCharacterAnywhere) {
    const std::string nul(1, '\0');
    EXPECT_EQ(format("<AssetInfo>\n<Asset1>a" + nul + "b</Asset1></AssetInfo>"),
              failed("in.xml: error: line 2: NUL character"));
    EXPECT_EQ(format("<AssetInfo/>" + nul), failed("in.xml: error: line 1: NUL character"));
    EXPECT_EQ(format("<AssetInfo/>\n" + nul + "\n<!-- -->"), failed("in.xml: error: line 2: NUL character"));
    EXPECT_EQ(format(nul), failed("in.xml: error: line 1: NUL character"));
}

TEST_F(Format, NamesStandardInputInMessages) {
    EXPECT_EQ(run({"format", "-"}, {""}), failed("<stdin>: error: empty document"));
    EXPECT_EQ(run({"format", "-"}, {"\n<a>"}), failed("<stdin>: error: line 2: the document ends inside an element"));
    EXPECT_EQ(run({"format", "-"}, {"<!-- -->"}), failed("<stdin>: error: no root element"));
    EXPECT_THAT(run({"format", "-"}, {"<a/>"}).error,
                testing::StartsWith("<stdin>: error: unknown root element \"a\""));
}

}  // namespace
