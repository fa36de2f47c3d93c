#include <lvdata/analysis/check/utf8.h>

#include <cstdint>
#include <cstring>

namespace lv::analysis {
namespace {

/// How many bytes from here are ASCII, in steps of eight: most documents are nothing else.
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

bool isIn(unsigned char byte, unsigned char first, unsigned char last) {
    return first <= byte && byte <= last;
}

/// What the second byte may be after that lead byte (table 3-7 of the Unicode Standard).
bool isSecond(unsigned char lead, unsigned char second) {
    switch (lead) {
    case 0xE0:
        return isIn(second, 0xA0, 0xBF);
    case 0xED:
        return isIn(second, 0x80, 0x9F);
    case 0xF0:
        return isIn(second, 0x90, 0xBF);
    case 0xF4:
        return isIn(second, 0x80, 0x8F);
    default:
        return isIn(second, 0x80, 0xBF);
    }
}

/// The bytes of a character that begins with that one; 0 when none does.
std::size_t lengthAfter(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (isIn(lead, 0xC2, 0xDF)) {
        return 2;
    }
    if (isIn(lead, 0xE0, 0xEF)) {
        return 3;
    }
    return isIn(lead, 0xF0, 0xF4) ? 4 : 0;
}

/// The length of the character at the beginning; 0 when there is none.
std::size_t characterLength(std::string_view text) {
    const auto byteAt = [&](std::size_t index) {
        return static_cast<unsigned char>(text[index]);
    };
    const std::size_t length = lengthAfter(byteAt(0));
    if (length == 0 || length > text.size() || (length > 1 && !isSecond(byteAt(0), byteAt(1)))) {
        return 0;
    }
    for (std::size_t index = 2; index < length; ++index) {
        if (!isIn(byteAt(index), 0x80, 0xBF)) {
            return 0;
        }
    }
    return length;
}

}  // namespace

std::size_t findInvalidUTF8(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        position += asciiLength(text.substr(position));
        if (position == text.size()) {
            break;
        }
        const std::size_t length = characterLength(text.substr(position));
        if (length == 0) {
            return position;
        }
        position += length;
    }
    return std::string_view::npos;
}

}  // namespace lv::analysis
