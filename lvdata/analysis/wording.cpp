#include <lvdata/analysis/wording.h>

#include <algorithm>
#include <cstddef>

namespace lv::analysis {
namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string excerpt(std::string_view text) {
    std::size_t length = 60;
    // up to three bytes less, so that it does not end inside a character of UTF-8
    while (length < text.size() && length > 57 && isContinuation(text[length])) {
        --length;
    }
    return std::string(text.substr(0, length)) + (length < text.size() ? "..." : "");
}

std::string inQuotes(std::string_view text) {
    return '"' + excerpt(text) + '"';
}

int lineAt(std::string_view text, std::size_t position) {
    const std::string_view before = text.substr(0, position);
    return 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
}

}  // namespace lv::analysis
