#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace lv::test {

/// The lines of a text, without their ends.
inline std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// The text without white space at both ends.
inline std::string trimmed(const std::string& text) {
    constexpr const char* whiteSpace = " \t\r\n";
    const std::size_t first = text.find_first_not_of(whiteSpace);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

/// Whether the text has that part: shorter than a matcher when it has not.
inline bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// Takes `end` off the text; false when it does not end so.
inline bool removeEnd(std::string& text, std::string_view end) {
    const bool found = text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
    text.resize(found ? text.size() - end.size() : text.size());
    return found;
}

}  // namespace lv::test
