#include <tests/support/MarkdownTable.h>
#include <tests/support/lines.h>

#include <algorithm>

#include <gtest/gtest.h>

namespace lv::test {
namespace {

using Cells = std::vector<std::string>;

bool isTableLine(const std::string& line) {
    return !line.empty() && line.front() == '|';
}

/// No cell of a checked table holds a bar.
Cells cellsOf(const std::string& line) {
    Cells cells;
    for (std::size_t start = 1, end = 0; (end = line.find('|', start)) != std::string::npos; start = end + 1) {
        cells.push_back(trimmed(line.substr(start, end - start)));
    }
    return cells;
}

std::string lineOf(const Cells& cells) {
    std::string line = "|";
    for (const std::string& cell : cells) {
        line += cell.empty() ? " |" : ' ' + cell + " |";
    }
    return line + '\n';
}

void addLine(MarkdownTable& table, const std::string& line) {
    if (line.rfind("|---", 0) != 0) {
        table.rows.push_back(cellsOf(line));
        EXPECT_EQ(table.rows.back().size(), table.titles.size()) << line;
    }
}

}  // namespace

std::string MarkdownTable::toString() const {
    std::string text = lineOf(titles) + '|';
    for (std::size_t column = 0; column < titles.size(); ++column) {
        text += "---|";
    }
    text += '\n';
    for (const Cells& row : rows) {
        text += lineOf(row);
    }
    return text;
}

std::size_t MarkdownTable::columnOf(std::string_view title) const {
    return static_cast<std::size_t>(std::find(titles.begin(), titles.end(), title) - titles.begin());
}

std::vector<MarkdownTable> markdownTablesIn(const std::string& page, std::string_view firstTitle) {
    const std::string start = "| " + std::string(firstTitle) + " |";
    std::vector<MarkdownTable> tables;
    bool isInside = false;
    for (const std::string& line : linesOf(page)) {
        if (isInside && isTableLine(line)) {
            addLine(tables.back(), line);
        } else if (isInside = line.rfind(start, 0) == 0; isInside) {
            tables.push_back({cellsOf(line)});
        }
    }
    return tables;
}

MarkdownTable withoutEmptyColumns(const MarkdownTable& table) {
    MarkdownTable kept = {{}, std::vector<Cells>(table.rows.size())};
    for (std::size_t column = 0; column < table.titles.size(); ++column) {
        if (std::all_of(table.rows.begin(), table.rows.end(), [&](const Cells& row) { return row[column].empty(); })) {
            continue;
        }
        kept.titles.push_back(table.titles[column]);
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            kept.rows[row].push_back(table.rows[row][column]);
        }
    }
    return kept;
}

}  // namespace lv::test
