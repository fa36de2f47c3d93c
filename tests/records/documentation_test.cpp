#include <tests/support/MarkdownTable.h>
#include <tests/support/RecordTable.h>
#include <tests/support/files.h>
#include <tests/support/lines.h>

#include <lvdata/records/RecordClass.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// The pages of docs/records are written by hand. What a program can know of a record is compared with its description.

namespace lv::test {
namespace {

using Cells = std::vector<std::string>;

const fs::path folder = fs::path(LVDATA_DOCS_DIR) / "records";

/// The text of a page; one that cannot be read fails the test.
std::string pageOf(const std::string& name) {
    return contentOf(folder / (name + ".md"));
}

std::string versionOf(const Description& record) {
    return std::to_string(record.version) + '.' + std::to_string(record.minorVersion);
}

/// What a member's cell holds until it is filled in by hand.
constexpr const char* missing = "?";

/// Takes the members from the table of the page. Rows of one name in one element have them in their order.
void takeMembers(MarkdownTable& table, MarkdownTable page) {
    const std::size_t member = table.columnOf("Member");
    const std::array<std::size_t, 3> columns = {page.columnOf("Element"), page.columnOf("In"), page.columnOf("Member")};
    const auto cell = [&](const Cells& row, std::size_t index) {
        return columns[index] < row.size() ? row[columns[index]] : "";
    };
    for (Cells& row : table.rows) {
        const auto found = std::find_if(page.rows.begin(), page.rows.end(), [&](const Cells& written) {
            return cell(written, 0) == row[0] && cell(written, 1) == row[1];
        });
        row[member] = found == page.rows.end() ? missing : cell(*found, 2);
        if (found != page.rows.end()) {
            page.rows.erase(found);
        }
    }
}

class RecordPage : public ::testing::TestWithParam<std::string> {
protected:
    static const std::string& name() { return GetParam(); }
    static Description description() { return recordClass(name())->describe(); }
};

TEST_P(RecordPage, HasTheTableOfItsDescription) {
    const std::string page = pageOf(name());
    const std::vector<MarkdownTable> tables = markdownTablesIn(page, "Element");
    ASSERT_EQ(tables.size(), 1U) << "one table, whose first column is called Element";
    MarkdownTable expected = recordTableOf(description());
    takeMembers(expected, tables.front());
    const std::string text = withoutEmptyColumns(expected).toString();
    EXPECT_TRUE(contains(page, "\n\n" + text + "\n")) << "the table must be:\n\n" << text;
    EXPECT_FALSE(contains(text, "| ? |")) << "write down the members";
}

TEST_P(RecordPage, NamesRootElementAndVersion) {
    const std::string sentence = "\nRoot element `" + name() + "`, version " + versionOf(description()) + ", ";
    EXPECT_TRUE(contains(pageOf(name()), sentence)) << sentence;
}

std::vector<std::string> recordNames() {
    std::vector<std::string> names;
    for (const RecordClass& record : RecordClasses()) {
        names.emplace_back(record.name);
    }
    return names;
}

std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Documentation, RecordPage, ::testing::ValuesIn(recordNames()), nameOf);

TEST(RecordPages, EachBelongsToARecord) {
    for (const fs::path& page : fs::directory_iterator(folder)) {
        const std::string name = page.stem().string();
        EXPECT_TRUE(name == "README" || recordClass(name) != nullptr) << page;
    }
}

TEST(RecordPages, EachIsInTheListOnceWithItsVersion) {
    const std::vector<MarkdownTable> tables = markdownTablesIn(pageOf("README"), "Record");
    ASSERT_EQ(tables.size(), 1U);
    std::multiset<std::string> listed;
    for (const Cells& row : tables.front().rows) {
        listed.insert(row.at(0) + ' ' + row.at(tables.front().columnOf("Version")));
    }
    std::multiset<std::string> expected;
    for (const RecordClass& record : RecordClasses()) {
        expected.insert(std::string("[") + record.name + "](" + record.name + ".md) " + versionOf(record.describe()));
    }
    EXPECT_EQ(listed, expected);
}

bool holdsRecord(const Description& node) {
    return !node.record.empty() || std::any_of(node.children.begin(), node.children.end(), &holdsRecord);
}

/// The records inside a node, and the elements around them, each below the lines of its parent.
std::string treeOf(const Description& node, const std::string& start = "") {
    std::vector<Description> branches;
    std::copy_if(node.children.begin(), node.children.end(), std::back_inserter(branches), &holdsRecord);
    std::string tree;
    for (std::size_t index = 0; index < branches.size(); ++index) {
        const bool isLast = index + 1 == branches.size();
        const Description& branch = branches[index];
        const bool isRow = branch.repetition == Description::Repetition::rows;
        tree += start + (isLast ? "└── " : "├── ") + branch.name + (isRow ? ", any number" : "") + '\n';
        tree += treeOf(branch, start + (isLast ? "    " : "│   "));
    }
    return tree;
}

TEST(RecordPages, TreeIsThatOfTheDescriptions) {
    const Description outermost = recordClass("MonitorInfo")->describe();
    const std::string tree = outermost.name + '\n' + treeOf(outermost);
    EXPECT_TRUE(contains(pageOf("README"), "```text\n" + tree + "```\n")) << "the tree must be:\n\n" << tree;
}

}  // namespace
}  // namespace lv::test
