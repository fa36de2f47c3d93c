#include "columns.h"

#include <algorithm>

namespace tool {
namespace {

bool isInsideCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

Columns::Columns(std::vector<std::string> heads, std::vector<std::size_t> rightAligned)
    : rightAligned_(std::move(rightAligned)) {
    rows_.push_back(std::move(heads));
}

void Columns::add(std::vector<std::string> row) {
    rows_.push_back(std::move(row));
}

std::vector<std::size_t> Columns::widths() const {
    std::vector<std::size_t> widths(rows_.front().size());
    for (const auto& row : rows_) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], characterCount(row[column]));
        }
    }
    return widths;
}

std::string Columns::text(const Palette& palette) const {
    const std::vector<std::size_t> widths = this->widths();
    std::string text;
    for (const auto& row : rows_) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string padding(widths[column] - characterCount(row[column]), ' ');
            const bool isRight = std::count(rightAligned_.begin(), rightAligned_.end(), column) > 0;
            line += (isRight ? padding + row[column] : row[column] + padding) + "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += (&row == &rows_.front() ? palette.paint(Style::heading, line) : line) + '\n';
    }
    return text;
}

std::size_t characterCount(const std::string& text) {
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), &isInsideCharacter));
}

std::string shortened(const std::string& text, std::size_t mostCharacters) {
    if (characterCount(text) <= mostCharacters) {
        return text;
    }
    std::size_t end = 0;
    for (std::size_t characters = 0; characters < mostCharacters; ++end) {
        characters += isInsideCharacter(text[end]) ? 0 : 1;  // the loop ends after the first byte of the last
    }
    return text.substr(0, end - 1) + "…";
}

}  // namespace tool
