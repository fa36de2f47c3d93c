#pragma once

#include <lvdata/xml/detail/Place.h>
#include <lvdata/xml/detail/TextBlocks.h>

#include <string>
#include <string_view>
#include <vector>

#include <tinyxml2.h>

namespace lv::detail {

/// The XML library's printer. It prints elements directly, as they are opened and given their texts, and the nodes of a
/// document (`document.Accept(&printer)`), both into the same text.
///
/// It prints into blocks: the library's own buffer counts in `int` and overflows with longer texts. A text that needs
/// no escaping is appended in one piece.
///
/// A place says where something is printed directly. Elements that are open inside that place are closed then, and not
/// before. So nobody has to close elements, and places may be copied. Three rules follow, which builds with assertions
/// check: an element's attributes are added before its texts and children; an element that was closed gets nothing
/// more; a name lives as long as its element is open.
class Printer final : public tinyxml2::XMLPrinter {
public:
    explicit Printer(bool compact);

    /// `<?xml version="1.0" encoding="UTF-8" standalone="no"?>`, at the beginning.
    void addDeclaration();

    /// Opens an element at that place; the result is the place inside it.
    Place open(const Place& place, const char* name);

    /// Closes what is open inside the element.
    void closeInside(const Place& place);

    void addAttribute(const Place& place, const char* name, const char* value);
    void addText(const Place& place, const char* text);
    template <class Number>
    void addNumber(const Place& place, Number number);
    /// Separated as in every document.
    template <class Number>
    void addNumbers(const Place& place, const std::vector<Number>& numbers);

    /// What was printed so far.
    [[nodiscard]] std::string text() const { return text_.joined(); }

    bool Visit(const tinyxml2::XMLText& text) override;
    using XMLPrinter::Visit;

protected:
    void Write(const char* data, std::size_t size) override { text_.append(std::string_view(data, size)); }
    void Putc(char character) override { text_.append(character); }

private:
    void close();
    void printText(const char* text);
    void beginPlainText(const Place& place);

    TextBlocks text_;
    bool compact_;
    std::size_t depth_ = 0;   // so many elements are open
    std::size_t opened_ = 0;  // so many were opened

#ifndef NDEBUG
    struct Opened {
        std::size_t number;
        const char* name;
        std::string nameWhenOpened;
    };
    [[nodiscard]] bool isOpen(const Place& place) const;
    std::vector<Opened> openElements_;
#endif
};

}  // namespace lv::detail
