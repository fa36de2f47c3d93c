#pragma once

#include <string>
#include <system_error>

#include <pybind11/pybind11.h>

// Errors while the GIL is released: thrown in C++, raised in Python when the GIL is held again. `std::invalid_argument`
// becomes `ValueError`.
namespace lv::python {

/// A document that cannot be read; becomes `lvdata.ParseError`.
struct ParseFailure {
    std::string reason;
    int line = 0;        ///< Counted from 1; 0 when no line applies.
    std::string file{};  ///< As the caller named it; empty: not known, or it has none.
    std::string path{};  ///< The place in a JSON text; empty when none applies.
};

/// A file or a folder that cannot be read; becomes `OSError`, or the one of its classes for that error.
struct FileFailure {
    std::error_code error;
    std::string reason;  ///< In words.
    std::string file;    ///< As the caller named it.
};

/// Registers their translation to Python.
void addFailures(pybind11::module_& module);

/// A text of a document or the name of a file for Python, which can hold any bytes: those that are not UTF-8 become
/// lone surrogates, as in file names.
[[nodiscard]] pybind11::str asText(const std::string& bytes);

/// The bytes of such a text; raises `ValueError` when it holds other surrogates.
[[nodiscard]] std::string asBytes(const pybind11::handle& text);

}  // namespace lv::python
