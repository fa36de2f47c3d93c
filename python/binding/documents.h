#pragma once

#include "Element.h"

#include <string>

#include <pybind11/pybind11.h>

// Documents from and to text and files. All need the GIL, and release it while no other thread can reach what they work
// on: while they parse and print.
namespace lv::python {

/// The record of an XML text; raises ParseError.
[[nodiscard]] pybind11::object loads(const std::string& text);

/// The record of a file; raises ParseError with the name of the file, or OSError.
[[nodiscard]] pybind11::object load(const std::string& path);

/// The record of a JSON text and what of it is lost: a tuple of it and of a list of sentences. Raises ParseError.
[[nodiscard]] pybind11::tuple fromJSON(const std::string& text);

/// The XML text of a record.
[[nodiscard]] pybind11::str toXML(const Element& element, bool pretty, bool declaration);

/// The JSON text of a record; raises ValueError when it holds bytes that are not UTF-8.
[[nodiscard]] pybind11::str toJSON(const Element& element, bool compact);

/// Writes the XML text into a file; raises OSError.
void save(const Element& element, const std::string& path, bool pretty, bool declaration);

/// Whether both records print the same.
[[nodiscard]] bool printSame(const Element& left, const Element& right);

}  // namespace lv::python
