#pragma once

#include <lvdata/analysis/pictures/svg/SharedParts.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis::svg {

/// An attribute of an element.
struct Attribute {
    /// With a text, which is escaped when it is written.
    Attribute(std::string_view name, std::string_view value);

    /// With a coordinate.
    Attribute(std::string_view name, double value);

    std::string_view name;  ///< Its name, of static storage.
    std::string value;      ///< Its value, not escaped.
};

/// The attributes of an element, in the order in which they are written.
using Attributes = std::vector<Attribute>;

/// Writes the elements of an SVG document, each on a separate line; in a page, on one line. Texts must be valid in XML
/// (see `cleaned`); markup characters are escaped.
class SVGWriter {
public:
    /// Writes a part, or a whole document; `shared` has the parts of a page and must outlive it. Null: there are none.
    explicit SVGWriter(SharedParts* shared = nullptr) : shared_(shared) {}

    /// Whether it draws for a page, which has the parts and a script.
    [[nodiscard]] bool isForPage() const { return shared_ != nullptr; }

    /// A writer of a part, for `share` and `define`.
    [[nodiscard]] SVGWriter newPart() const { return SVGWriter(shared_); }

    /// The start of an element that holds others.
    void open(std::string_view name, const Attributes& attributes = {});

    /// The end of the element that was opened last.
    void close();

    /// An element without content.
    void empty(std::string_view name, const Attributes& attributes);

    /// An element that holds a text.
    void text(std::string_view name, const Attributes& attributes, std::string_view content);

    /// An element that holds a `title`, which browsers show on hover and screen readers read; without a title, an empty
    /// element.
    void titled(std::string_view name, const Attributes& attributes, std::string_view title);

    /// The output of another writer, moved down, as a part that other pictures of the page may have, too.
    void share(const SVGWriter& part, double down = 0);

    /// The same for a part that is never drawn itself, such as a marker.
    void define(const SVGWriter& part);

    /// A style sheet.
    void style(std::string_view sheet);

    /// The document, after each element was closed.
    [[nodiscard]] const std::string& document() const { return document_; }

private:
    void start(std::string_view name, const Attributes& attributes);
    [[nodiscard]] std::string written(const std::string& value) const;
    void end(std::string_view mark);

    SharedParts* shared_;
    std::string document_;
    std::vector<std::string_view> open_;
};

}  // namespace lv::analysis::svg
