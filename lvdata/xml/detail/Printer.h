#pragma once

#include <string>
#include <string_view>

#include <tinyxml2.h>

namespace lv::detail {

/// The XML library's printer, with two short cuts: a long text goes out in one piece where it holds no character to
/// escape, and so does a text that is marked as printed already.
class Printer final : public tinyxml2::XMLPrinter {
public:
    explicit Printer(bool compact) : XMLPrinter(nullptr, compact) {}

    /// The text of the element that was opened last, as `PushText`.
    void pushText(const char* text);

    bool Visit(const tinyxml2::XMLText& text) override;
    using XMLPrinter::Visit;

    /// What was printed so far, without the terminating NUL.
    [[nodiscard]] std::string_view text() const { return {CStr(), static_cast<std::size_t>(CStrSize() - 1)}; }

    /// Marks a text node as markup that `Visit` shall pass on as it stands. Uses the node's user data, so for nodes
    /// only that no caller of the library gets to see.
    static void markAsPrinted(tinyxml2::XMLText& text);

private:
    void pushMarkup(std::string_view text);
};

}  // namespace lv::detail
