#include <lvdata/xml/detail/Printer.h>

namespace lv::detail {
namespace {

char printedMark;  // its address is the mark

/// Below this length the search for characters to escape costs more than it saves.
constexpr std::size_t longText = 64;

bool contains(std::string_view text, char character) {
    return text.find(character) != std::string_view::npos;
}

bool standsAsItIs(const tinyxml2::XMLText& node, std::string_view text) {
    if (node.GetUserData() == &printedMark) {
        return true;
    }
    return text.size() >= longText && !node.CData() && !contains(text, '&') && !contains(text, '<') &&
           !contains(text, '>');
}

}  // namespace

bool Printer::Visit(const tinyxml2::XMLText& text) {
    const std::string_view value = text.Value();
    if (!standsAsItIs(text, value)) {
        return XMLPrinter::Visit(text);
    }
    PushText("");  // closes the start tag and keeps the indentation away
    Write(value.data(), value.size());
    return true;
}

void Printer::markAsPrinted(tinyxml2::XMLText& text) {
    text.SetUserData(&printedMark);
}

}  // namespace lv::detail
