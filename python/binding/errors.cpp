#include "errors.h"

#include <pybind11/pybind11.h>

namespace py = pybind11;

namespace lv::python {

void raiseParseError(const std::string& reason, int line) {
    const py::object type = py::module_::import("lvdata._errors").attr("ParseError");
    const py::object error = type(reason, line == 0 ? py::object(py::none()) : py::int_(line));
    PyErr_SetObject(type.ptr(), error.ptr());
    throw py::error_already_set();
}

}  // namespace lv::python
