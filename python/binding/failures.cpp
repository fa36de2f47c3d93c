#include "failures.h"

#include <exception>
#include <stdexcept>

namespace py = pybind11;

namespace lv::python {
namespace {

py::object orNone(const py::object& value, bool isGiven) {
    return isGiven ? value : py::object(py::none());
}

void raise(const ParseFailure& failure) {
    const py::object type = py::module_::import("lvdata._errors").attr("ParseError");
    const py::object line = orNone(py::int_(failure.line), failure.line != 0);
    const py::object file = orNone(asText(failure.file), !failure.file.empty());
    const py::object path = orNone(asText(failure.path), !failure.path.empty());
    PyErr_SetObject(type.ptr(), type(asText(failure.reason), line, file, path).ptr());
}

void raise(const FileFailure& failure) {
    const py::object type = py::module_::import("builtins").attr("OSError");
    const py::object error = type(failure.error.value(), asText(failure.reason), asText(failure.file));
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error.ptr())), error.ptr());  // NOLINT(*-reinterpret-cast)
}

void translate(std::exception_ptr pointer) {  // NOLINT(performance-unnecessary-value-param): as pybind11 has it
    try {
        if (pointer) {
            std::rethrow_exception(pointer);
        }
    } catch (const ParseFailure& failure) {
        raise(failure);
    } catch (const FileFailure& failure) {
        raise(failure);
    } catch (const std::invalid_argument& error) {  // may hold names of files that are not UTF-8
        PyErr_SetObject(PyExc_ValueError, asText(error.what()).ptr());
    }
}

}  // namespace

void addFailures(py::module_& /*module*/) {
    py::register_exception_translator(&translate);
}

py::str asText(const std::string& bytes) {
    PyObject* const text = PyUnicode_DecodeUTF8(bytes.data(), static_cast<Py_ssize_t>(bytes.size()), "surrogateescape");
    if (text == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::str>(text);
}

std::string asBytes(const py::handle& text) {
    const auto bytes =
        py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogateescape"));
    if (!bytes) {
        PyErr_Clear();
        throw py::value_error("text without single surrogates expected: UTF-8 cannot encode them");
    }
    return bytes;
}

}  // namespace lv::python
