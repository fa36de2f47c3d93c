#pragma once

#include <lvdata/analysis/pictures/svg/geometry.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lv::test {

/// The number that a text begins with, whatever the locale; 0 when there is none.
[[nodiscard]] double leadingNumber(std::string_view text);

/// An element of a picture.
struct Element {
    std::string name{};                               ///< "rect".
    std::map<std::string, std::string> attributes{};  ///< As they are written.
    std::string text{};                               ///< The text that stands in it itself.
    std::string title{};                              ///< The text of its `title`.
    std::string groupClass{};                         ///< The classes of the element that holds it.
    std::string anchor{};                             ///< Its `text-anchor`, or that of the element that holds it.

    double down = 0;    ///< How far the elements that hold it move it down.
    double across = 0;  ///< How far they move it to the right.

    /// A number of its attributes; fails the test where there is none.
    [[nodiscard]] double number(const std::string& attribute) const;

    /// Whether it, or the element that holds it, has the class.
    [[nodiscard]] bool hasClass(const std::string& name) const;

    /// All points that its attributes name; of a path, those where it begins and all ends of its steps.
    [[nodiscard]] std::vector<analysis::svg::Point> points() const;

private:
    [[nodiscard]] std::vector<analysis::svg::Point> ownPoints() const;
};

/// A picture as an outside parser reads it.
class ParsedPicture {
public:
    /// Parses; fails the test where the text is not well-formed.
    explicit ParsedPicture(const std::string& text);

    [[nodiscard]] const std::vector<Element>& elements() const& { return elements_; }  ///< All, in their order.
    const std::vector<Element>& elements() const&& = delete;                           ///< Name the picture first.

    /// The root element.
    [[nodiscard]] const Element& root() const { return elements_.front(); }

    /// Those of a name and, unless it is empty, a class.
    [[nodiscard]] std::vector<Element> all(const std::string& name, const std::string& withClass = "") const;

    /// The only one; fails the test where there is another number of them.
    [[nodiscard]] Element only(const std::string& name, const std::string& withClass = "") const;

    /// The texts that are shown on hover, from left to right.
    [[nodiscard]] std::vector<std::string> hoverTexts() const;

    /// Whether a text element, `title` or `desc` holds that text.
    [[nodiscard]] bool says(const std::string& text) const;

private:
    std::vector<Element> elements_;
};

}  // namespace lv::test
