#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lv::test {

/// A table of a page. Each row has a cell for each title.
struct MarkdownTable {
    std::vector<std::string> titles{};
    std::vector<std::vector<std::string>> rows{};

    /// A line for the titles, one of dashes, and one for each row.
    [[nodiscard]] std::string toString() const;

    /// The number of that column; that of the titles when there is none.
    [[nodiscard]] std::size_t columnOf(std::string_view title) const;
};

/// The tables of a page whose first column has that title. A line that has another number of cells than the titles
/// fails the test.
[[nodiscard]] std::vector<MarkdownTable> markdownTablesIn(const std::string& page, std::string_view firstTitle);

/// The table without the columns that are empty in every row.
[[nodiscard]] MarkdownTable withoutEmptyColumns(const MarkdownTable& table);

}  // namespace lv::test
