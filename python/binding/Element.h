#pragma once

#include "Layout.h"

#include <lvdata/analysis/Tree.h>
#include <lvdata/core/DataObject.h>

#include <cstddef>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace lv::python {

class Element;
using ElementPtr = std::shared_ptr<Element>;

/// The elements of one list. Never holds a null.
struct RowList {
    const Layout* layout = nullptr;  ///< Of each row.
    std::vector<ElementPtr> rows{};  ///< The rows.
};

/// The content of one place in an element: nothing, a text as it is in a document, an element or rows.
using Slot = std::variant<std::monostate, std::string, ElementPtr, std::shared_ptr<RowList>>;

/// An element of a document that Python holds. Texts are those of the document that a record prints, so nothing is
/// rounded on the way. An element may stand in several others. One thread at a time.
class Element {
public:
    /// An element in which nothing is set. The layout must outlive it.
    explicit Element(const Layout& layout) : layout_(&layout), slots_(layout.members.size()) {}

    /// The element of a printed document.
    Element(const analysis::Node& printed, const Layout& layout);

    /// The places that it has.
    [[nodiscard]] const Layout& layout() const { return *layout_; }

    /// The content of a member.
    [[nodiscard]] Slot& at(std::size_t index) { return slots_.at(index); }
    [[nodiscard]] const Slot& at(std::size_t index) const { return slots_.at(index); }

    /// The text in the place of a member; null when there is none.
    [[nodiscard]] const std::string* textAt(std::size_t index) const { return std::get_if<std::string>(&at(index)); }

    /// The rows of a member; they become part of the element if it had none.
    [[nodiscard]] const std::shared_ptr<RowList>& rowsAt(std::size_t index);

private:
    void add(const analysis::Node& child, std::size_t& next);
    void addElement(const analysis::Node& child, std::size_t index);
    [[nodiscard]] std::size_t indexOf(const analysis::Node& child, std::size_t begin) const;

    const Layout* layout_;
    std::vector<Slot> slots_;
};

/// A copy that shares nothing with the element.
[[nodiscard]] ElementPtr copyOf(const Element& element);

/// The same for the content of one place.
[[nodiscard]] Slot copyOf(const Slot& slot);

/// Whether both are of the same class and hold the same.
[[nodiscard]] bool areEqual(const Element& left, const Element& right);

/// The same for the content of one place; an empty list of rows equals nothing.
[[nodiscard]] bool areEqual(const Slot& left, const Slot& right);

}  // namespace lv::python
