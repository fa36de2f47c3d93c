#include "OutputTest.h"

#include <tests/support/repeated.h>
#include <tools/lvdata/Limits.h>

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

using lv::test::repeated;

/// So many attributes of different names.
std::string attributes(int count) {
    std::string result;
    for (int index = 0; index < count; ++index) {
        result += " a" + std::to_string(index) + "=''";
    }
    return result;
}

/// A document with this in front of "Asset1", which `tidy` prints.
std::string documentWith(const std::string& markup) {
    return "<AssetInfo>\n" + markup + "<Asset1>one</Asset1></AssetInfo>";
}

std::string documentOfSize(std::size_t size) {
    std::string document = documentWith("");
    document.resize(size, ' ');
    return document;
}

class LimitsTest : public ToolTest {
protected:
    LimitsTest() { write("out.xml", "old"); }

    /// Formats the document into "out.xml".
    [[nodiscard]] Outcome format(const std::string& document, std::vector<std::string> options) const {
        write("in.xml", document);
        options.insert(options.begin(), {"format", "--no-declaration", "in.xml", "-o", "out.xml"});
        return run(options);
    }

    /// Beyond no limit.
    void expectTaken(const std::string& document, const std::vector<std::string>& options = {}) const {
        EXPECT_EQ(format(document, options), done());
        EXPECT_EQ(read("out.xml"), tidy);
        expectInputUnchanged(document);
    }

    void expectRefused(const std::string& document, const std::vector<std::string>& options,
                       const std::string& reason) const {
        write("out.xml", "old");
        EXPECT_EQ(format(document, options), failed("in.xml: error: " + reason));
        EXPECT_EQ(read("out.xml"), "old");
        expectInputUnchanged(document);
    }

private:
    void expectInputUnchanged(const std::string& document) const {
        EXPECT_TRUE(read("in.xml") == document);
        EXPECT_EQ(names(), (std::vector<std::string>{"in.xml", "out.xml"}));
    }
};

using SizeLimit = LimitsTest;

TEST_F(SizeLimit, IsTheLargestSizeTaken) {
    const std::string document = documentOfSize(1'000);
    expectTaken(document, {"--max-size", "1000"});
    expectRefused(document, {"--max-size=999"}, "more than 999 bytes, see --max-size");
    expectRefused(document, {"--max-size=0"}, "more than 0 bytes, see --max-size");
}

TEST_F(SizeLimit, HoldsForStandardInput) {
    const std::string document = documentOfSize(100'000);
    EXPECT_EQ(run({"format", "--no-declaration", "-", "--max-size", "100000"}, {document}), printed(tidy));
    EXPECT_EQ(run({"format", "-", "--max-size", "99999"}, {document}),
              failed("<stdin>: error: more than 99999 bytes, see --max-size"));
}

TEST_F(SizeLimit, Is64MebibytesUnlessGiven) {
    expectTaken(documentOfSize(67'108'864));
    expectRefused(documentOfSize(67'108'865), {}, "more than 67108864 bytes, see --max-size");
    expectTaken(documentOfSize(67'108'865), {"--max-size", "67108865"});
}

TEST_F(SizeLimit, EndsWhatHasNoEnd) {
    EXPECT_EQ(run({"format", "/dev/zero"}), failed("/dev/zero: error: more than 67108864 bytes, see --max-size"));
}

TEST_F(SizeLimit, IsOversteppedByOneByteAtMost) {
    write("in.xml", documentOfSize(300'000));
    for (const off_t limit : {0, 10, 65'535, 65'536, 200'000}) {
        const int file = ::open(path("in.xml").c_str(), O_RDONLY);  // NOLINT(cppcoreguidelines-pro-type-vararg)
        const auto shareItsPosition = [file] {
            return ::dup2(file, STDIN_FILENO) >= 0;
        };
        EXPECT_EQ(run({"format", "-", "--max-size", std::to_string(limit)}, {"", "", shareItsPosition}).exitCode, 2);
        EXPECT_EQ(::lseek(file, 0, SEEK_CUR), limit + 1);
        ::close(file);
    }
}

using ElementLimit = LimitsTest;

TEST_F(ElementLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWith("<!-- <a/> --><![CDATA[<a/>]]><a>\n<b/></a>\n<c d='<e/>'></c>");
    expectTaken(document, {"--max-elements", "5"});
    expectRefused(document, {"--max-elements", "4"}, "line 4: more than 4 elements, see --max-elements");
    expectRefused(document, {"--max-elements", "2"}, "line 3: more than 2 elements, see --max-elements");
    expectRefused(document, {"--max-elements", "0"}, "line 1: more than 0 elements, see --max-elements");
}

TEST_F(ElementLimit, Is250000UnlessGiven) {
    expectTaken(documentWith(repeated("<a/>", 249'998)));
    const std::string more = documentWith(repeated("<a/>", 249'999));
    expectRefused(more, {}, "line 2: more than 250000 elements, see --max-elements");
    expectTaken(more, {"--max-elements", "250001"});
}

using NodeLimit = LimitsTest;

TEST_F(NodeLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWith("<a b='1' c='2'/>\n<!-- d -->e<!f>\n <![CDATA[g]]>");
    expectTaken(document, {"--max-nodes", "10"});
    expectRefused(document, {"--max-nodes", "0"}, "line 1: more than 0 nodes, see --max-nodes");
    for (const auto& [limit, line] : {std::pair{1, 2}, {2, 2}, {3, 2}, {4, 3}, {5, 3}, {6, 3}, {7, 4}}) {
        const std::string number = std::to_string(limit);
        expectRefused(document, {"--max-nodes", number},
                      "line " + std::to_string(line) + ": more than " + number + " nodes, see --max-nodes");
    }
}

TEST_F(NodeLimit, DoesNotCountEndTagsAndBlanks) {
    expectTaken(documentWith("<a> </a b='1'> \n "), {"--max-nodes", "4"});
}

TEST_F(NodeLimit, Is1000000UnlessGiven) {
    expectTaken(documentWith(repeated("x<!>", 499'998) + "<!>"));
    const std::string more = documentWith(repeated("x<!>", 499'999));
    expectRefused(more, {}, "line 2: more than 1000000 nodes, see --max-nodes");
    expectTaken(more, {"--max-nodes", "1000001"});
}

using AttributeLimit = LimitsTest;

TEST_F(AttributeLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWith("<a/>\n<a b='1' c=\"'>\"/>\n<a d = 'x' e='</a>' f='\"/>'><a g=''/></a>");
    expectTaken(document, {"--max-attributes", "3"});
    expectRefused(document, {"--max-attributes", "2"},
                  "line 4: more than 2 attributes in one tag, see --max-attributes");
    expectRefused(document, {"--max-attributes", "1"},
                  "line 3: more than 1 attributes in one tag, see --max-attributes");
}

TEST_F(AttributeLimit, HoldsForEndTags) {
    const std::string document = documentWith("<a></a b='1' c='2'>");
    expectTaken(document, {"--max-attributes", "2"});
    expectRefused(document, {"--max-attributes", "1"},
                  "line 2: more than 1 attributes in one tag, see --max-attributes");
}

TEST_F(AttributeLimit, IsNotForWhatLooksLikeAttributes) {
    const std::string look = " a='1' b='2' ";
    expectTaken(documentWith("text" + look + "<!--<a" + look + ">--><![CDATA[<a" + look + ">]]><!X" + look + ">"),
                {"--max-attributes", "0"});
}

TEST_F(AttributeLimit, Is100UnlessGiven) {
    expectTaken(documentWith("<a" + attributes(100) + "/>"));
    const std::string more = documentWith("<a" + attributes(101) + "/>");
    expectRefused(more, {}, "line 2: more than 100 attributes in one tag, see --max-attributes");
    expectTaken(more, {"--max-attributes", "101"});
}

TEST_F(AttributeLimit, EndsWhatWouldTakeMinutes) {
    expectRefused(documentWith("<a" + attributes(300'000) + "/>"), {},
                  "line 2: more than 100 attributes in one tag, see --max-attributes");
}

using ReferenceLimit = LimitsTest;

const std::string option = "--max-broken-references";

TEST_F(ReferenceLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWith("<a>&# &#1 </a>\n<a>&#65;&#65 &#x &#65\n&#;&#66;</a>");
    expectTaken(document, {option, "3"});
    expectRefused(document, {option, "2"}, "line 3: more than 2 broken references in one text, see " + option);
    expectRefused(document, {option, "1"}, "line 2: more than 1 broken references in one text, see " + option);
}

TEST_F(ReferenceLimit, HoldsForAttributes) {
    const std::string document = documentWith("<a b='&#&#;'\nc='&#<a>&#'\nd=\"&#'\"/>");
    expectTaken(document, {option, "2"});
    expectRefused(document, {option, "1"}, "line 3: more than 1 broken references in one text, see " + option);
}

TEST_F(ReferenceLimit, IsNotForWhatHoldsNoReferences) {
    expectTaken(documentWith("<!--&#&#--><![CDATA[&#&#]]><!X &#&#>&lt;&amp;#"), {option, "0"});
}

TEST_F(ReferenceLimit, Is100UnlessGiven) {
    expectTaken(documentWith("<a>" + repeated("&#", 100) + "</a>"));
    const std::string more = documentWith("<a>" + repeated("&#", 101) + "</a>");
    expectRefused(more, {}, "line 2: more than 100 broken references in one text, see " + option);
    expectTaken(more, {option, "101"});
}

TEST_F(ReferenceLimit, EndsWhatWouldTakeMinutes) {
    expectRefused("<AssetInfo><Asset1>" + repeated("&#", 10'000'000) + "</Asset1></AssetInfo>", {},
                  "line 1: more than 100 broken references in one text, see " + option);
}

TEST_F(LimitsTest, TogetherKeepMemoryBelowTwoGigabytes) {
    if (LVDATA_SANITIZED) {
        GTEST_SKIP() << "no room for sanitizers";
    }
    const tool::Limits limits;
    const std::string rows = "<CalibrationModeResult>" + repeated("<ColorMode/>", limits.elements - 10);
    const std::string row = "<ColorMode><Name>";
    const std::string end = "</Name></ColorMode></CalibrationModeResult>";
    const std::string name(limits.bytes - rows.size() - row.size() - end.size(), '>');
    write("in.xml", rows + row + name + end);
    EXPECT_EQ(run({"format", "in.xml", "-o", "/dev/null"}, {"", "", limitMemory(2'000'000'000)}), done());
}

}  // namespace
