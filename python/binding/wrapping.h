#pragma once

#include "Element.h"

#include <cstddef>

#include <pybind11/pybind11.h>

// Elements as objects of the classes that Python made for them. All need the GIL.
namespace lv::python {

/// From now on, elements of the layout with that index become objects of that class.
void setClass(std::size_t id, const pybind11::type& type);

/// The object of an element: always the same one as long as Python holds it.
[[nodiscard]] pybind11::object wrapped(const ElementPtr& element);

/// The element of an object.
[[nodiscard]] ElementPtr elementOf(const pybind11::handle& object);

/// What an element holds, for pickle: texts as bytes, elements, lists of rows, by their step in XPath.
[[nodiscard]] pybind11::dict stateOf(const Element& element);

/// Restores an element, in which nothing is set yet. Raises TypeError, ValueError or KeyError on anything else.
void restore(Element& element, const pybind11::dict& state);

}  // namespace lv::python
