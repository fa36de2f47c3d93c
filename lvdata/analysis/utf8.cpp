#include <lvdata/analysis/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace lv::analysis {
namespace {

/// The first bytes of a character, its length, and what its second byte can be.
struct Form {
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char secondFirst;
    unsigned char secondLast;
};

constexpr std::array<Form, 8> forms = {{{0xC2, 0xDF, 2, 0x80, 0xBF},
                                        {0xE0, 0xE0, 3, 0xA0, 0xBF},
                                        {0xE1, 0xEC, 3, 0x80, 0xBF},
                                        {0xED, 0xED, 3, 0x80, 0x9F},
                                        {0xEE, 0xEF, 3, 0x80, 0xBF},
                                        {0xF0, 0xF0, 4, 0x90, 0xBF},
                                        {0xF1, 0xF3, 4, 0x80, 0xBF},
                                        {0xF4, 0xF4, 4, 0x80, 0x8F}}};

constexpr unsigned char endOfASCII = 0x80;

unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

bool isBetween(unsigned char byte, unsigned char first, unsigned char last) {
    return byte >= first && byte <= last;
}

bool continues(std::string_view text, const Form& form) {
    if (text.size() < form.length || !isBetween(byteAt(text, 1), form.secondFirst, form.secondLast)) {
        return false;
    }
    for (std::size_t index = 2; index < form.length; ++index) {
        if (!isBetween(byteAt(text, index), 0x80, 0xBF)) {
            return false;
        }
    }
    return true;
}

/// How many bytes from here are ASCII, in steps of eight: most documents have only ASCII.
std::size_t asciiLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (; length + sizeof(std::uint64_t) <= text.size(); length += sizeof(std::uint64_t)) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + length, sizeof bytes);  // NOLINT(*-pointer-arithmetic)
        if ((bytes & highBits) != 0) {
            break;
        }
    }
    return length;
}

}  // namespace

std::size_t characterLength(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const unsigned char first = byteAt(text, 0);
    if (first < endOfASCII) {
        return 1;
    }
    for (const Form& form : forms) {
        if (isBetween(first, form.first, form.last)) {
            return continues(text, form) ? form.length : 0;
        }
    }
    return 0;
}

std::size_t findInvalidUTF8(std::string_view text) {
    std::size_t position = asciiLength(text);
    while (position < text.size()) {
        const std::size_t length = characterLength(text.substr(position));
        if (length == 0) {
            return position;
        }
        position += length;
        position += asciiLength(text.substr(position));
    }
    return std::string_view::npos;
}

std::string inUTF8(std::string_view text) {
    std::string valid;
    while (!text.empty()) {
        const std::size_t length = std::min(findInvalidUTF8(text), text.size());
        valid += text.substr(0, length);
        text.remove_prefix(length);
        if (!text.empty()) {
            valid += "\xEF\xBF\xBD";
            text.remove_prefix(1);
        }
    }
    return valid;
}

}  // namespace lv::analysis
