#include "columns.h"

#include <algorithm>

namespace tool {

Columns::Columns(std::vector<std::string> heads) {
    rows_.push_back(std::move(heads));
}

void Columns::add(std::vector<std::string> row) {
    rows_.push_back(std::move(row));
}

std::string Columns::text(const Palette& palette) const {
    std::vector<std::size_t> widths(rows_.front().size());
    for (const auto& row : rows_) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], characterCount(row[column]));
        }
    }
    std::string text;
    for (const auto& row : rows_) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line += row[column] + std::string(widths[column] - characterCount(row[column]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += (&row == &rows_.front() ? palette.paint(Style::heading, line) : line) + '\n';
    }
    return text;
}

std::size_t characterCount(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;  // not inside a character
    }));
}

}  // namespace tool
