#pragma once

#include <cstddef>
#include <string_view>

namespace lv::detail {

/// Calls `take` with every piece of `text` between the separators, in order; `split_string` states the rules.
/// The pieces are views into `text`: nothing is copied.
template <class Take>
void forEachPiece(std::string_view text, std::string_view separator, Take take) {
    std::size_t start = 0;
    std::size_t found = separator.empty() ? std::string_view::npos : text.find(separator);
    while (found != std::string_view::npos) {
        take(text.substr(start, found - start));
        start = found + 1;
        found = text.find(separator, start);
    }
    take(text.substr(start));
}

}  // namespace lv::detail
