#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <tinyxml2.h>

namespace lv::detail {

/// The XML library's printer, with two short cuts: a long text goes out in one piece where it holds no character to
/// escape, and so does a text that is marked as printed already. It prints into a string, since the library's own
/// buffer counts in an `int` and writes beyond its end when a text is longer than that can count.
class Printer final : public tinyxml2::XMLPrinter {
public:
    explicit Printer(bool compact) : XMLPrinter(nullptr, compact) {}

    /// The text of the element that was opened last, as `PushText`.
    void pushText(const char* text);

    bool Visit(const tinyxml2::XMLText& text) override;
    using XMLPrinter::Visit;

    /// What was printed so far.
    [[nodiscard]] const std::string& text() const& { return text_; }
    [[nodiscard]] std::string text() && { return std::move(text_); }

    /// Begins a new text, in the same memory unless that is much.
    void clear();

    /// Marks a text node as markup that `Visit` shall pass on as it stands. Uses the node's user data, so for nodes
    /// only that no caller of the library gets to see.
    static void markAsPrinted(tinyxml2::XMLText& text);

protected:
    void Write(const char* data, std::size_t size) override { text_.append(data, size); }
    void Putc(char character) override { text_.push_back(character); }

private:
    void pushMarkup(std::string_view text);

    std::string text_;
};

}  // namespace lv::detail
