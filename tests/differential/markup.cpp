#include <tests/differential/markup.h>

#include <algorithm>

namespace differential {
namespace {

constexpr std::size_t none = std::string::npos;

bool isLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

}  // namespace

std::vector<Span> textsOf(const std::string& document) {
    std::vector<Span> texts;
    for (std::size_t end = document.find('>'); end != none; end = document.find('>', end + 1)) {
        const std::size_t next = document.find('<', end);
        if (next != none) {
            texts.push_back({end + 1, next - end - 1});
        }
    }
    return texts;
}

std::vector<Span> startTagsOf(const std::string& document) {
    std::vector<Span> tags;
    for (std::size_t begin = document.find('<'); begin != none; begin = document.find('<', begin + 1)) {
        const std::size_t end = document.find('>', begin);
        if (end != none && isLetter(document[begin + 1])) {
            tags.push_back({begin, end + 1 - begin});
        }
    }
    return tags;
}

Span nameIn(const std::string& document, Span startTag) {
    const std::size_t begin = startTag.begin + 1;
    return {begin, document.find_first_of(" \t\r\n/>", begin) - begin};
}

Span elementOf(const std::string& document, Span startTag) {
    const Span name = nameIn(document, startTag);
    const std::string endTag = "</" + document.substr(name.begin, name.size) + '>';
    const std::size_t end = document.find(endTag, startTag.begin);
    const bool alone = end == none || document[startTag.begin + startTag.size - 2] == '/';
    return {startTag.begin, alone ? startTag.size : end + endTag.size() - startTag.begin};
}

}  // namespace differential
