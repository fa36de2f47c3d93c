#pragma once

#include <string>
#include <vector>

/// A row of a table in a page of HTML.
struct PageRow {
    std::string heading;             // the text of its heading
    std::vector<std::string> cells;  // the texts of its data cells
};

/// The rows with data, in their order, below the elements that the XPath selects.
[[nodiscard]] std::vector<PageRow> rowsOfPage(const std::string& page, const std::string& xpath);
