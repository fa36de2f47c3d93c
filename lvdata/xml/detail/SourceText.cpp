#include <lvdata/xml/detail/SourceText.h>
#include <lvdata/xml/detail/contains.h>

#include <algorithm>
#include <cstring>

namespace lv::detail {
namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";  // as the XML library sees it

/// Whether the XML library hands the text out as it stands: no entity, no line end that it would change, and no white
/// space in front, which alone is no text to it.
bool standsAsItIs(std::string_view text) {
    return !text.empty() && !contains(blanks, text.front()) && !contains(text, '&') && !contains(text, '\r');
}

bool startsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

/// Where the name of the root element begins, in a text that begins with it or with a declaration in front of it.
std::size_t rootNameAt(std::string_view text) {
    std::size_t at = 0;
    if (startsWith(text, "<?xml ")) {
        const std::size_t end = text.find("?>");
        at = end == std::string_view::npos ? end : text.find_first_not_of(blanks, end + 2);
    }
    const bool found = at < text.size() && text[at] == '<';
    return found ? at + 1 : std::string_view::npos;
}

/// Whether a start tag ends behind `attributes`, which are what stands between its name and the next '>'. A quotation
/// mark without its partner means that the '>' is part of a value, and apostrophes would need a closer look.
bool isStartTag(std::string_view attributes) {
    if (attributes.empty()) {
        return true;
    }
    const bool paired = std::count(attributes.begin(), attributes.end(), '"') % 2 == 0 && !contains(attributes, '\'');
    return paired && contains(blanks, attributes.front()) && attributes.back() != '/';
}

/// The plain text behind a start tag, of which `rest` holds what follows the name. Anything but an end tag behind the
/// text leaves doubt what the XML library makes of it.
std::string_view textBehind(std::string_view rest) {
    const std::size_t tagEnd = std::min(rest.find('>'), rest.size());
    const bool isTag = isStartTag(rest.substr(0, tagEnd));
    rest.remove_prefix(std::min(tagEnd + 1, rest.size()));
    const std::size_t end = std::min(rest.find('<'), rest.size());
    const std::string_view text = rest.substr(0, end);
    const bool closes = startsWith(rest.substr(end), "</");
    return isTag && closes && standsAsItIs(text) ? text : std::string_view();
}

}  // namespace

// Addresses are compared as numbers: the two texts are different arrays, of which only the distances are alike.
// NOLINTBEGIN(*-reinterpret-cast)
SourceText::SourceText(std::string_view source, const char* rootName) : source_(source) {
    const std::size_t at = rootNameAt(source);
    if (at != std::string_view::npos && startsWith(source.substr(at), rootName)) {
        base_ = reinterpret_cast<std::uintptr_t>(rootName) - at;
    }
}

std::string_view SourceText::plainTextOf(const char* elementName) const {
    const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(elementName) - base_;
    if (base_ == 0 || at >= source_.size()) {
        return {};
    }
    const std::string_view rest = source_.substr(at);
    return startsWith(rest, elementName) ? textBehind(rest.substr(std::strlen(elementName))) : std::string_view();
}
// NOLINTEND(*-reinterpret-cast)

}  // namespace lv::detail
