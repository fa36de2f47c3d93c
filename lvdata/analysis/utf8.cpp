#include <lvdata/analysis/utf8.h>

#include <array>

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

bool isUTF8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

}  // namespace lv::analysis
