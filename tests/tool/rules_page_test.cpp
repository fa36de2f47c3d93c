#include <lvdata/analysis/check/Rule.h>
#include <lvdata/analysis/printable.h>

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

// The page of the rules is made of them: a test prints what is to be pasted.

namespace {

using lv::analysis::Rule;
using lv::analysis::rules;

std::string page() {
    std::ifstream file(LVDATA_RULES_PAGE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// With a line break in place of the last space that is within the width, again and again.
std::string wrapped(std::string text) {
    constexpr std::size_t width = 120;
    for (std::size_t begin = 0; text.size() - begin > width;) {
        const std::size_t space = text.rfind(' ', begin + width);
        text[space] = '\n';
        begin = space + 1;
    }
    return text;
}

std::string sample(std::string_view text) {
    std::string block = "```xml\n";
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        block += lv::analysis::printable(text.substr(0, end)) + '\n';
        text.remove_prefix(end + 1);
    }
    return block + "```\n";
}

std::string sectionOf(const Rule& rule) {
    return "### " + std::string(rule.id) + ' ' + std::string(nameOf(rule.severity)) + ": " + std::string(rule.title) +
           "\n\n" + wrapped(std::string(rule.explanation)) + "\n\nWith a finding in line " + std::to_string(rule.line) +
           ":\n\n" + sample(rule.failing) + "\nWithout:\n\n" + sample(rule.passing);
}

TEST(RulesPage, HasASectionForEachRuleInOrder) {
    std::string sections = "\n## The rules\n";
    for (const Rule& rule : rules()) {
        sections += '\n' + sectionOf(rule);
    }
    const std::string text = page();
    const std::size_t begin = text.find("\n## The rules\n");
    ASSERT_NE(begin, std::string::npos) << LVDATA_RULES_PAGE;
    EXPECT_TRUE(text.substr(begin) == sections) << "the page must end with:\n" << sections;
}

}  // namespace
