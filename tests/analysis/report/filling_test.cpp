#include <lvdata/analysis/report/filling.h>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace {

using lv::analysis::escapedForHTML;
using lv::analysis::escapedForScript;
using lv::analysis::filled;
using lv::analysis::View;

std::string filledMark(const char* word) {
    return filled("mark", View::Members{{"symbol", "x"}, {"word", word}, {"class", "a\"b"}});
}

}  // namespace

TEST(Filling, EscapesTextsAndAttributes) {
    EXPECT_EQ(filledMark("<b>"), "<span class=\"mark a&quot;b\">x &lt;b&gt;</span>");
}

TEST(Filling, DoesNotExpandPlaceholdersInTexts) {
    EXPECT_NE(filledMark("{{symbol}} {{> mark.html}}").find("{{symbol}} {{&gt; mark.html}}"), std::string::npos);
    const View text = View::Members{{"text", "{{> mark.html}}"}, {"full", ""}};
    EXPECT_EQ(filled("text", text), "{{&gt; mark.html}}");
}

TEST(Filling, TreatsAnEmptyTextAsMissing) {
    const View text = View::Members{{"text", "short"}, {"full", ""}};
    EXPECT_EQ(filled("text", text), "short");
    const View shortened = View::Members{{"text", "short"}, {"full", "short and long"}};
    EXPECT_EQ(filled("text", shortened), "<details class=long><summary>short</summary>short and long</details>");
}

TEST(EscapedForHTML, MakesReferences) {
    EXPECT_EQ(escapedForHTML("a&b<c>d\"e'f"), "a&amp;b&lt;c&gt;d&quot;e&#39;f");
    EXPECT_EQ(escapedForHTML("Büro ΔE\n\t"), "Büro ΔE\n\t");
}

TEST(EscapedForHTML, ReplacesWhatNoPageCanHold) {
    EXPECT_EQ(escapedForHTML("a\xFF\x01\x7Fz"), "a\uFFFD\uFFFD\uFFFDz");
    EXPECT_EQ(escapedForHTML(std::string("\0", 1)), "\uFFFD");
}

TEST(EscapedForScript, HasTheSameValueAsJSON) {
    const std::string json = "{ \"a b\": [ 1, 2 ],\n \"q\\\" \\\\\": \"</script> <!-- \\\" x\" }";
    const std::string escaped = escapedForScript(json);
    EXPECT_EQ(nlohmann::json::parse(escaped), nlohmann::json::parse(json));
    EXPECT_EQ(escaped.find('<'), std::string::npos);
    EXPECT_EQ(escaped, R"({"a b":[1,2],"q\" \\":"\u003c/script> \u003c!-- \" x"})");
}

TEST(EscapedForScript, IsAlwaysAValue) {
    EXPECT_EQ(escapedForScript(""), "null");
}
