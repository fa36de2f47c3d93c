#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The parts with the separator between them.
[[nodiscard]] inline std::string joined(const std::vector<std::string>& parts, std::string_view separator) {
    std::string text;
    for (const std::string& part : parts) {
        text += (&part == &parts.front() ? "" : std::string(separator)) + part;
    }
    return text;
}

/// The text with a backslash before each of these characters.
[[nodiscard]] inline std::string escaped(std::string_view text, std::string_view characters) {
    std::string result;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) {
            result += '\\';
        }
        result += character;
    }
    return result;
}

}  // namespace tool
