#include <tests/support/Description.h>

#include <limits>
#include <sstream>
#include <string_view>

namespace lv::test {
namespace {

/// One line whatever the text holds, and no two texts alike.
std::string escaped(char character) {
    if (character == '\n') {
        return "\\n";
    }
    if (character == '\\' || character == '"') {
        return {'\\', character};
    }
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20 && code != 0x7f) {
        return {character};
    }
    constexpr std::string_view digits = "0123456789abcdef";
    return {'\\', 'x', digits[code / 16], digits[code % 16]};
}

}  // namespace

std::string textOf(int value) {
    return std::to_string(value);
}

std::string textOf(unsigned int value) {
    return std::to_string(value);
}

std::string textOf(bool value) {
    return value ? "true" : "false";
}

std::string textOf(double value) {
    std::ostringstream text;
    text.precision(std::numeric_limits<double>::max_digits10);
    text << value;
    return text.str();
}

std::string textOf(const std::string& value) {
    std::string text = "\"";
    for (const char character : value) {
        text += escaped(character);
    }
    return text + '"';
}

}  // namespace lv::test
