#include <lvdata/analysis/printable.h>

#include <array>
#include <cstddef>

namespace lv::analysis {
namespace {

struct Character {
    char32_t code;
    std::size_t length;  // in bytes
};

constexpr Character notUtf8{0, 1};  // taken for a NUL, which is not printable either

constexpr unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

constexpr std::size_t sequenceLength(unsigned char lead) {
    return lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
}

constexpr bool isScalarValue(char32_t code, std::size_t length) {
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    return code >= smallest.at(length) && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

Character firstCharacter(std::string_view text) {
    const unsigned char lead = byteAt(text, 0);
    const std::size_t length = sequenceLength(lead);
    if (length == 0 || length > text.size()) {
        return notUtf8;
    }
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        const unsigned char next = byteAt(text, index);
        if ((next & 0xC0U) != 0x80U) {
            return notUtf8;
        }
        code = (code << 6U) | (next & 0x3FU);
    }
    return isScalarValue(code, length) ? Character{code, length} : notUtf8;
}

constexpr bool isPrintable(char32_t code) {
    const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool separator = code == 0x2028 || code == 0x2029;
    return !control && !separator;
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
