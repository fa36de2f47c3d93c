#include <lvdata/analysis/printable.h>
#include <lvdata/analysis/utf8.h>

#include <array>
#include <cstddef>

namespace lv::analysis {
namespace {

struct Character {
    char32_t code;
    std::size_t length;  // in bytes
};

constexpr Character notUtf8{0, 1};  // taken for a NUL, which is not printable either

Character firstCharacter(std::string_view text) {
    const std::size_t length = characterLength(text);
    if (length == 0) {
        return notUtf8;
    }
    const auto bitsOf = [&](std::size_t index, unsigned int mask) {
        return static_cast<unsigned char>(text[index]) & mask;
    };
    char32_t code = bitsOf(0, length == 1 ? 0x7FU : 0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        code = (code << 6U) | bitsOf(index, 0x3FU);
    }
    return {code, length};
}

/// Characters that reorder the text around them.
constexpr bool isBidirectional(char32_t code) {
    return code == 0x61C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

constexpr bool isPrintable(char32_t code) {
    const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool separator = code == 0x2028 || code == 0x2029;
    return !control && !separator && !isBidirectional(code);
}

std::string escaped(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        text += "\\x";
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

}  // namespace

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Character first = firstCharacter(text);
        const std::string_view bytes = text.substr(0, first.length);
        result += isPrintable(first.code) ? std::string(bytes) : escaped(bytes);
        text.remove_prefix(first.length);
    }
    return result;
}

}  // namespace lv::analysis
