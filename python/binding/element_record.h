#pragma once

#include "Element.h"

#include <lvdata/core/DataObject.h>

#include <memory>

namespace lv::python {

// Between records and elements. None of these needs the GIL, but the elements must be out of reach of other threads, or
// the GIL be held.

/// The element of a record: what it prints. Null when its class is not among the layouts.
[[nodiscard]] ElementPtr elementOf(const DataObject& record);

/// The record of an element whose layout is that of a record. `writeHLGSystemGamma` is set when anything is set that it
/// governs.
///
/// Throws std::invalid_argument when a text is of another kind than the "type" beside it says.
[[nodiscard]] std::unique_ptr<DataObject> recordOf(const Element& element);

/// What a fresh element of that layout holds: what a record prints of one in which nothing is set.
[[nodiscard]] const Element& freshOf(const Layout& layout);

}  // namespace lv::python
