#pragma once

#include "Palette.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A table of texts in UTF-8, aligned in columns for a terminal.
class Columns {
public:
    /// The heads of the columns.
    explicit Columns(std::vector<std::string> heads);

    /// A row, of as many cells as there are heads.
    void add(std::vector<std::string> row);

    /// A line for the heads and one for each row. Two spaces separate columns; no line ends in spaces.
    [[nodiscard]] std::string text(const Palette& palette) const;

private:
    std::vector<std::vector<std::string>> rows_;  // the heads first
};

/// The number of characters of a text in UTF-8. All count as one column of a terminal, also the few that take two.
[[nodiscard]] std::size_t characterCount(const std::string& text);

}  // namespace tool
