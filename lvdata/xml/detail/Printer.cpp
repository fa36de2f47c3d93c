#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/contains.h>

namespace lv::detail {
namespace {

char printedMark;  // its address is the mark; NOLINT(*-non-const-global-variables): user data is no pointer to const

/// Below this length the search for characters to escape costs more than it saves.
constexpr std::size_t longText = 64;

/// What a row of a list takes, or the tables of a colour mode.
constexpr std::size_t keptCapacity = 65536;

/// Whether a text needs no look at each of its characters.
bool isLongAndPlain(std::string_view text) {
    return text.size() >= longText && !contains(text, '&') && !contains(text, '<') && !contains(text, '>');
}

}  // namespace

void Printer::clear() {
    text_.clear();
    if (text_.capacity() > keptCapacity) {
        text_.shrink_to_fit();
    }
}

void Printer::pushText(const char* text) {
    if (isLongAndPlain(text)) {
        pushMarkup(text);
    } else {
        PushText(text);
    }
}

void Printer::pushMarkup(std::string_view text) {
    PushText("");  // closes the start tag and keeps the indentation away
    Write(text.data(), text.size());
}

bool Printer::Visit(const tinyxml2::XMLText& text) {
    if (text.GetUserData() == &printedMark) {
        pushMarkup(text.Value());
    } else if (text.CData()) {
        PushText(text.Value(), true);
    } else {
        pushText(text.Value());
    }
    return true;
}

void Printer::markAsPrinted(tinyxml2::XMLText& text) {
    text.SetUserData(&printedMark);
}

}  // namespace lv::detail
