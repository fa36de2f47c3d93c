#pragma once

#include "Element.h"

#include <lvdata/core/Quantity.h>

#include <cstddef>

namespace lv::python {

/// What a text of an element is, which can depend on the texts beside it.
struct TextKind {
    const analysis::Shape* shape = nullptr;  ///< Its shape.
    const Quantity* quantity = nullptr;      ///< What its numbers stand for; null for other texts.
};

/// What a text is, as the other texts of the element are now. When they do not say, the text itself does.
[[nodiscard]] TextKind kindOfText(const Element& element, std::size_t index);

/// What a new text for that place is: the same, but an array or a number according to what is to be stored.
[[nodiscard]] TextKind kindToStore(const Element& element, std::size_t index, bool isArray);

/// Whether the text of that place can be a number or an array, depending on the texts beside it.
[[nodiscard]] bool hasAlternatives(const Layout& layout, std::size_t index);

/// Throws std::invalid_argument when the text of that place is an array and should be a number now.
void refuseOtherKind(const Element& element, std::size_t index);

}  // namespace lv::python
