#include "errors.h"

#include <cerrno>

#include <pybind11/pybind11.h>

namespace py = pybind11;

namespace lv::python {
namespace {

/// Reasons and paths can quote bytes of the document that are not UTF-8.
py::object shown(const std::string& text) {
    return py::reinterpret_steal<py::object>(
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

}  // namespace

void raiseParseError(const std::string& reason, int line, const std::string& path) {
    const py::object type = py::module_::import("lvdata._errors").attr("ParseError");
    const py::object none = py::none();
    const py::object error =
        type(shown(reason), line == 0 ? none : py::int_(line), none, path.empty() ? none : shown(path));
    PyErr_SetObject(type.ptr(), error.ptr());
    throw py::error_already_set();
}

void raiseOSError(const std::error_code& error, const std::string& file) {
    const auto name = py::reinterpret_steal<py::object>(
        PyUnicode_DecodeFSDefaultAndSize(file.data(), static_cast<Py_ssize_t>(file.size())));
    errno = error.value();
    PyErr_SetFromErrnoWithFilenameObject(PyExc_OSError, name.ptr());
    throw py::error_already_set();
}

}  // namespace lv::python
