#include <lvdata/analysis/check/wording.h>

#include <cstddef>

namespace lv::analysis {
namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// At most 60 bytes, or up to three less, so that it does not end inside a character of UTF-8.
std::string_view excerpt(std::string_view text) {
    std::size_t length = 60;
    while (length < text.size() && length > 57 && isContinuation(text[length])) {
        --length;
    }
    return text.substr(0, length);
}

}  // namespace

std::string quoted(std::string_view text) {
    const std::string_view shown = excerpt(text);
    return '"' + std::string(shown) + (shown.size() < text.size() ? "..." : "") + '"';
}

}  // namespace lv::analysis
