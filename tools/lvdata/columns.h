#pragma once

#include "Palette.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A table of texts in UTF-8, aligned in columns for a terminal.
class Columns {
public:
    /// \param heads          the heads of the columns
    /// \param rightAligned   the indices of columns of numbers, which are aligned on the right
    explicit Columns(std::vector<std::string> heads, std::vector<std::size_t> rightAligned = {});

    /// A row, of as many cells as there are heads.
    void add(std::vector<std::string> row);

    /// A line for the heads and one for each row. Two spaces separate columns; no line ends in spaces.
    [[nodiscard]] std::string text(const Palette& palette) const;

private:
    [[nodiscard]] std::vector<std::size_t> widths() const;

    std::vector<std::vector<std::string>> rows_;  // the heads first
    std::vector<std::size_t> rightAligned_;
};

/// The number of characters of a text in UTF-8. All count as one column of a terminal, also the few that take two.
[[nodiscard]] std::size_t characterCount(const std::string& text);

/// The text, or so much of its beginning that it has that many characters with "…" at its end.
[[nodiscard]] std::string shortened(const std::string& text, std::size_t mostCharacters);

}  // namespace tool
