#pragma once

#include <lvdata/xml/detail/Place.h>

namespace tinyxml2 {
class XMLElement;
}  // namespace tinyxml2

namespace lv::detail {

class Printer;

/// The element that is written: a node of a document, or an element that is printed directly; or nothing, where
/// everything that is written disappears. A small value, copied freely.
///
/// Direct printing follows the three rules of `Printer`.
class Output {
public:
    Output() = default;

    /// An element of a document; null makes nothing.
    explicit Output(tinyxml2::XMLElement* element) : element_(element) {}

    /// Document level of a directly printed text. The printer must outlive all copies.
    explicit Output(Printer& printer) : printer_(&printer) {}

    /// Whether there is something to write into.
    [[nodiscard]] bool exists() const { return element_ != nullptr || printer_ != nullptr; }

    /// The element among the nodes of a document; null for any other.
    [[nodiscard]] tinyxml2::XMLElement* node() const { return element_; }

    /// A new last child element; nothing when there is nothing to write into.
    Output append(const char* name) const;

    /// A new last child element that holds nothing but the text of the value, an empty one included. Defined for the
    /// types of `valueText`, like `addText`.
    template <class T>
    void appendLeaf(const char* name, const T& value) const {
        append(name).addText(value);
    }

    /// Adds the text of the value after what the element holds.
    template <class T>
    void addText(const T& value) const;

    /// Creates or replaces an attribute. Defined for std::string and unsigned int.
    template <class T>
    void setAttribute(const char* name, const T& value) const;

    /// Closes what was appended, so that the names are no longer needed. Does nothing among nodes.
    void finish() const;

private:
    tinyxml2::XMLElement* element_ = nullptr;
    Printer* printer_ = nullptr;
    Place place_;
};

}  // namespace lv::detail
