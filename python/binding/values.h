#pragma once

#include "Element.h"

#include <cstddef>

#include <pybind11/pybind11.h>

// Texts of elements as values of Python: natural ones, or raw as they are stored. All need the GIL.
namespace lv::python {

/// Which numbers Python gets and gives.
enum class Numbers { natural, raw };

/// The value of a text: str, bool, int, float, or an array of NumPy that cannot be written to; None when there is none.
[[nodiscard]] pybind11::object valueOf(const Element& element, std::size_t index, Numbers numbers);

/// Stores a value as text. Raises TypeError or ValueError with the name of the member and what is possible; then the
/// element is as it was. What is also None stays clear, or gets the value of a fresh element if it is always written.
void setValue(Element& element, std::size_t index, const pybind11::handle& value, Numbers numbers);

/// Clears a place, or gives it the value of a fresh element if it is always written.
void clear(Element& element, std::size_t index);

/// The arrays of one member of all rows as one array of NumPy, a line for each row; numbers give one column. Natural
/// ones are float64 with NaN where a row has none; raw ones are integers, with 0.
///
/// \param length  the entries of each array: longer ones are cut
[[nodiscard]] pybind11::object columnOf(const RowList& rows, std::size_t index, std::size_t length, Numbers numbers);

}  // namespace lv::python
