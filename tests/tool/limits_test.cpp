#include "OutputTest.h"

#include <lvdata/xml/Limits.h>
#include <tests/support/document_with_markup.h>
#include <tests/support/repeated.h>

namespace {

using lv::test::documentWithMarkup;
using lv::test::repeated;

/// So many attributes of different names.
std::string attributes(int count) {
    std::string result;
    for (int index = 0; index < count; ++index) {
        result += " a" + std::to_string(index) + "=''";
    }
    return result;
}

std::string documentOfSize(std::size_t size) {
    std::string document = documentWithMarkup("");
    document.resize(size, ' ');
    return document;
}

class LimitsTest : public ToolTest {
protected:
    LimitsTest() { write("out.xml", "old"); }

    /// Formats the document into "out.xml", whatever is lost.
    [[nodiscard]] Outcome format(const std::string& document, std::vector<std::string> options) const {
        write("in.xml", document);
        options.insert(options.begin(), {"format", "--lossy", "--no-declaration", "in.xml", "-o", "out.xml"});
        return run(options);
    }

    /// Beyond no limit.
    void expectTaken(const std::string& document, const std::vector<std::string>& options = {}) const {
        EXPECT_EQ(format(document, options).exitCode, 0);
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
    expectRefused(document, {"--max-size=999"}, "more than 999 bytes (limit: --max-size)");
    expectRefused(document, {"--max-size=0"}, "more than 0 bytes (limit: --max-size)");
}

TEST_F(SizeLimit, HoldsForStandardInput) {
    const std::string document = documentOfSize(100'000);
    EXPECT_EQ(run({"format", "--no-declaration", "-", "--max-size", "100000"}, {document}), printed(tidy));
    EXPECT_EQ(run({"format", "-", "--max-size", "99999"}, {document}),
              failed("<stdin>: error: more than 99999 bytes (limit: --max-size)"));
}

TEST_F(SizeLimit, Is64MebibytesUnlessGiven) {
    expectTaken(documentOfSize(67'108'864));
    expectRefused(documentOfSize(67'108'865), {}, "more than 67108864 bytes (limit: --max-size)");
    expectTaken(documentOfSize(67'108'865), {"--max-size", "67108865"});
}

using ElementLimit = LimitsTest;

TEST_F(ElementLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWithMarkup("<a>\n<b/></a>\n<c/>");
    expectTaken(document, {"--max-elements", "5"});
    expectRefused(document, {"--max-elements", "4"}, "line 4: more than 4 elements (limit: --max-elements)");
    expectRefused(document, {"--max-elements", "1"}, "line 2: more than 1 element (limit: --max-elements)");
}

TEST_F(ElementLimit, Is250000UnlessGiven) {
    expectTaken(documentWithMarkup(repeated("<a/>", 249'998)));
    const std::string more = documentWithMarkup(repeated("<a/>", 249'999));
    expectRefused(more, {}, "line 2: more than 250000 elements (limit: --max-elements)");
    expectTaken(more, {"--max-elements", "250001"});
}

using NodeLimit = LimitsTest;

TEST_F(NodeLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWithMarkup("<a b='1' c='2'/>\n<!-- d -->e");
    expectTaken(document, {"--max-nodes", "8"});
    expectRefused(document, {"--max-nodes", "4"}, "line 3: more than 4 nodes (limit: --max-nodes)");
    expectRefused(document, {"--max-nodes", "0"}, "line 1: more than 0 nodes (limit: --max-nodes)");
}

TEST_F(NodeLimit, Is1000000UnlessGiven) {
    expectTaken(documentWithMarkup(repeated("x<!>", 499'998) + "<!>"));
    const std::string more = documentWithMarkup(repeated("x<!>", 499'999));
    expectRefused(more, {}, "line 2: more than 1000000 nodes (limit: --max-nodes)");
    expectTaken(more, {"--max-nodes", "1000001"});
}

using AttributeLimit = LimitsTest;

TEST_F(AttributeLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWithMarkup("<a/>\n<a b='1' c='2'/>");
    expectTaken(document, {"--max-attributes", "2"});
    expectRefused(document, {"--max-attributes", "1"},
                  "line 3: more than 1 attribute per element (limit: --max-attributes)");
}

TEST_F(AttributeLimit, Is100UnlessGiven) {
    expectTaken(documentWithMarkup("<a" + attributes(100) + "/>"));
    const std::string more = documentWithMarkup("<a" + attributes(101) + "/>");
    expectRefused(more, {}, "line 2: more than 100 attributes per element (limit: --max-attributes)");
    expectTaken(more, {"--max-attributes", "101"});
}

TEST_F(AttributeLimit, StopsDocumentsThatWouldTakeMinutes) {
    expectRefused(documentWithMarkup("<a" + attributes(300'000) + "/>"), {},
                  "line 2: more than 100 attributes per element (limit: --max-attributes)");
}

using ReferenceLimit = LimitsTest;

const std::string option = "--max-broken-references";

TEST_F(ReferenceLimit, IsTheLargestNumberTaken) {
    const std::string document = documentWithMarkup("<a/>\n<a>&# &#1 </a>");
    expectTaken(document, {option, "2"});
    expectRefused(document, {option, "1"}, "line 3: more than 1 broken reference per text (limit: " + option + ")");
}

TEST_F(ReferenceLimit, Is100UnlessGiven) {
    expectTaken(documentWithMarkup("<a>" + repeated("&#", 100) + "</a>"));
    const std::string more = documentWithMarkup("<a>" + repeated("&#", 101) + "</a>");
    expectRefused(more, {}, "line 2: more than 100 broken references per text (limit: " + option + ")");
    expectTaken(more, {option, "101"});
}

TEST_F(ReferenceLimit, StopsDocumentsThatWouldTakeMinutes) {
    expectRefused("<AssetInfo><Asset1>" + repeated("&#", 10'000'000) + "</Asset1></AssetInfo>", {},
                  "line 1: more than 100 broken references per text (limit: " + option + ")");
}

}  // namespace
