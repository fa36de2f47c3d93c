#pragma once

#include <string>
#include <vector>

/// A row or a cell of a table in a page of HTML.
struct PageRow {
    std::string key;                 // its attribute "data-key"
    std::vector<std::string> cells;  // the texts of its data cells; of a cell its own
};

/// The rows and cells with a key, in their order, below the elements that the XPath selects.
[[nodiscard]] std::vector<PageRow> rowsOfPage(const std::string& page, const std::string& xpath);
