#include <lvdata/analysis/spelling.h>

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace lv::analysis {
namespace {

char inLowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool areLike(char left, char right) {
    return inLowerCase(left) == inLowerCase(right);
}

/// How many characters must be changed, added or removed to make one of the other (Levenshtein).
std::size_t distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);  // of each beginning of `right`
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t line = 1; line <= left.size(); ++line) {
        std::size_t diagonal = row[0];
        row[0] = line;
        for (std::size_t column = 1; column <= right.size(); ++column) {
            const std::size_t changed = diagonal + (areLike(left[line - 1], right[column - 1]) ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({changed, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

const std::string* closest(std::string_view word, const std::vector<std::string>& words) {
    constexpr std::size_t longest = 100;  // names are shorter, and time is proportional to the product of both lengths
    if (word.size() > longest) {
        return nullptr;
    }
    const std::string* found = nullptr;
    std::size_t least = 1 + std::max<std::size_t>(word.size() / 4, 1);
    for (const std::string& each : words) {
        const std::size_t away = distance(word, each);
        found = away < least ? &each : found;
        least = std::min(least, away);
    }
    return found;
}

}  // namespace lv::analysis
