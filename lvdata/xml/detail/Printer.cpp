#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/number_writing.h>

#include <algorithm>
#include <cassert>

namespace lv::detail {
namespace {

/// Below this length the search for characters to escape costs more than it saves.
constexpr std::size_t longText = 64;

bool contains(std::string_view text, char character) {
    return text.find(character) != std::string_view::npos;
}

/// Whether a text needs no look at each of its characters.
bool isLongAndPlain(std::string_view text) {
    return text.size() >= longText && !contains(text, '&') && !contains(text, '<') && !contains(text, '>');
}

}  // namespace

Printer::Printer(bool compact) : XMLPrinter(nullptr, compact), compact_(compact) {}

void Printer::addDeclaration() {
    PushDeclaration(R"(xml version="1.0" encoding="UTF-8" standalone="no")");
}

Place Printer::open(const Place& place, const char* name) {
    closeInside(place);
    OpenElement(name, compact_);
    ++depth_;
    ++opened_;
#ifndef NDEBUG
    openElements_.push_back({opened_, name, name});
#endif
    return {depth_, opened_};
}

void Printer::closeInside(const Place& place) {
    assert(isOpen(place) && "an element that was closed gets nothing more");
    while (depth_ > place.depth) {
        close();
    }
}

void Printer::close() {
#ifndef NDEBUG
    assert(openElements_.back().name == openElements_.back().nameWhenOpened && "a name outlives its element");
    openElements_.pop_back();
#endif
    CloseElement(compact_);
    --depth_;
}

#ifndef NDEBUG
bool Printer::isOpen(const Place& place) const {
    return place.depth == 0 ||
           (place.depth <= openElements_.size() && openElements_[place.depth - 1].number == place.number);
}
#endif

void Printer::addAttribute([[maybe_unused]] const Place& place, const char* name, const char* value) {
    assert(isOpen(place) && place.depth == depth_ && _elementJustOpened && "attributes come first");
    PushAttribute(name, value);
}

void Printer::addText(const Place& place, const char* text) {
    closeInside(place);
    printText(text);
}

void Printer::printText(const char* text) {
    const std::string_view view = text;
    if (isLongAndPlain(view)) {
        PushText("");  // closes the start tag and keeps the indentation away
        text_.append(view);
    } else {
        PushText(text);
    }
}

/// Prepares for characters that need no escaping.
void Printer::beginPlainText(const Place& place) {
    closeInside(place);
    PushText("");
}

template <class Number>
void Printer::addNumber(const Place& place, Number number) {
    beginPlainText(place);
    text_.setEnd(writeDecimal(number, text_.endWithRoom(maxDecimalLength)));
}

template void Printer::addNumber(const Place& place, int number);
template void Printer::addNumber(const Place& place, unsigned int number);

template <class Number>
void Printer::addNumbers(const Place& place, const std::vector<Number>& numbers) {
    constexpr std::size_t longest = maxDecimalLength + 1;  // with the separator
    beginPlainText(place);
    const Number* next = numbers.data();
    const Number* const end = next + numbers.size();
    while (next != end) {
        char* out = text_.endWithRoom(longest);
        const auto left = static_cast<std::size_t>(end - next);
        const Number* const stop = next + std::min(left, text_.room() / longest);
        for (; next != stop; ++next) {
            out = writeDecimal(*next, out);
            *out++ = arraySeparator.front();
        }
        text_.setEnd(out - (next == end ? 1 : 0));  // no separator after the last
    }
}

template void Printer::addNumbers(const Place& place, const std::vector<int>& numbers);
template void Printer::addNumbers(const Place& place, const std::vector<unsigned int>& numbers);

bool Printer::Visit(const tinyxml2::XMLText& text) {
    if (text.CData()) {
        PushText(text.Value(), true);
    } else {
        printText(text.Value());
    }
    return true;
}

}  // namespace lv::detail
