#pragma once

#include <string>

namespace lv::test {

// Texts of single elements, for documents that tests read or expect.

/// An element with both of its tags, also around nothing.
[[nodiscard]] inline std::string element(const std::string& name, const std::string& content) {
    return '<' + name + '>' + content + "</" + name + '>';
}

/// The same, as one tag when there is no content.
[[nodiscard]] inline std::string elementOrEmptyTag(const std::string& name, const std::string& content) {
    return content.empty() ? '<' + name + "/>" : element(name, content);
}

/// An element with an attribute "Type", as one tag when there is no content.
[[nodiscard]] inline std::string elementOfType(const std::string& name, const std::string& type,
                                               const std::string& content) {
    const std::string start = '<' + name + " Type=\"" + type + '"';
    return content.empty() ? start + "/>" : start + '>' + content + "</" + name + '>';
}

/// Numbers as the text of an array.
template <class Numbers>
[[nodiscard]] std::string arrayText(const Numbers& numbers) {
    std::string text;
    for (const auto number : numbers) {
        text += (text.empty() ? "" : "|") + std::to_string(number);
    }
    return text;
}

}  // namespace lv::test
