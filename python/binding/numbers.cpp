#include "numbers.h"

#include <lvdata/analysis/content.h>
#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/natural_values.h>
#include <lvdata/analysis/wording.h>

#include <array>
#include <cmath>
#include <memory>

#include <pybind11/numpy.h>

namespace py = pybind11;

namespace lv::python {
namespace {

analysis::StoredRange rangeOf(const NumberForm& form) {
    return form.isSigned ? analysis::signedRange : analysis::unsignedRange;
}

[[noreturn]] void refuse(const NumberForm& form, const std::string& found) {
    throw py::value_error(form.range + " expected, not " + found);
}

[[noreturn]] void refuseType(const NumberForm& form, const py::handle& found) {
    throw py::type_error(form.range + " expected, not " + shortRepr(found));
}

std::string textOf(double number) {
    const std::unique_ptr<char, decltype(&PyMem_Free)> text(PyOS_double_to_string(number, 'r', 0, 0, nullptr),
                                                            &PyMem_Free);
    if (!text) {
        throw py::error_already_set();
    }
    return text.get();
}

bool isBoolean(const py::handle& value) {
    return PyBool_Check(value.ptr()) != 0 || std::string_view(Py_TYPE(value.ptr())->tp_name) == "numpy.bool_";
}

bool hasFloat(const py::handle& value) {
    const PyNumberMethods* const methods = Py_TYPE(value.ptr())->tp_as_number;
    return methods != nullptr && methods->nb_float != nullptr;
}

std::int64_t storedOfWhole(const py::object& whole, const NumberForm& form) {
    int overflow = 0;
    const long long value = PyLong_AsLongLongAndOverflow(whole.ptr(), &overflow);
    if (overflow != 0) {
        refuse(form, "a number of this size");
    }
    return storedOf(static_cast<std::int64_t>(value), form);
}

/// The number as an integer of Python; null when it is none. Arrays of NumPy say only when asked.
py::object wholeOf(const py::handle& number) {
    PyObject* const whole = PyIndex_Check(number.ptr()) != 0 ? PyNumber_Index(number.ptr()) : nullptr;
    if (whole == nullptr && PyErr_Occurred() != nullptr) {
        if (PyErr_ExceptionMatches(PyExc_TypeError) == 0) {
            throw py::error_already_set();
        }
        PyErr_Clear();
    }
    return py::reinterpret_steal<py::object>(whole);
}

template <class Number>
void appendAll(std::string& joined, const py::object& array, const NumberForm& form) {
    const auto numbers = py::array_t<Number, py::array::c_style | py::array::forcecast>::ensure(array);
    if (!numbers) {
        throw py::error_already_set();
    }
    const auto view = numbers.template unchecked<1>();
    for (py::ssize_t index = 0; index < view.shape(0); ++index) {
        joined += joined.empty() ? "" : "|";
        joined += std::to_string(storedOf(view(index), form));
    }
}

std::string joinedOfItems(const py::handle& items, const NumberForm& form, std::size_t& count) {
    std::string joined;
    count = 0;
    for (const py::handle item : items) {
        joined += count++ == 0 ? "" : "|";
        joined += std::to_string(storedOf(item, form));
    }
    return joined;
}

std::string joinedOfArray(const py::array& array, const NumberForm& form, std::size_t& count) {
    if (array.ndim() != 1) {
        throw py::value_error("an array of one dimension expected, not of " + std::to_string(array.ndim()));
    }
    std::string joined;
    count = static_cast<std::size_t>(array.size());
    const char kind = array.dtype().kind();
    if (kind == 'f') {
        appendAll<double>(joined, array, form);
    } else if (kind == 'i') {
        appendAll<std::int64_t>(joined, array, form);
    } else if (kind == 'u' && array.itemsize() < 8) {
        appendAll<std::int64_t>(joined, array, form);
    } else if (kind == 'm' || kind == 'M') {
        refuseType(form, array);
    } else {
        joined = joinedOfItems(array.attr("tolist")(), form, count);
    }
    return joined;
}

}  // namespace

NumberForm formOf(const analysis::Shape& shape, const Quantity* quantity) {
    NumberForm form;
    form.decimals = quantity == nullptr ? 0 : analysis::decimalsOf(quantity->factor);
    form.isSigned = analysis::isSigned(shape.facts().content);
    form.range = analysis::rangeText(shape, quantity);
    if (form.decimals == 0) {
        form.range.insert(form.range.find("number"), "whole ");
    }
    return form;
}

double powerOfTen(std::size_t decimals) {
    double power = 1;
    for (std::size_t digit = 0; digit < decimals; ++digit) {
        power *= 10;
    }
    return power;
}

std::int64_t takeNumber(std::string_view& text) {
    const bool isNegative = !text.empty() && text.front() == '-';
    std::size_t at = isNegative ? 1 : 0;
    std::int64_t number = 0;
    constexpr std::int64_t most = 99999999999;  // beyond all that is stored
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
        number = number > most ? number : number * 10 + (text[at] - '0');
        ++at;
    }
    const std::size_t end = text.find('|', at);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return isNegative ? -number : number;
}

std::int64_t storedOf(const py::handle& number, const NumberForm& form) {
    if (isBoolean(number)) {
        refuseType(form, number);
    }
    if (PyFloat_Check(number.ptr()) != 0) {
        return storedOf(PyFloat_AS_DOUBLE(number.ptr()), form);
    }
    if (const py::object whole = wholeOf(number)) {
        return storedOfWhole(whole, form);
    }
    if (!hasFloat(number)) {
        refuseType(form, number);
    }
    const double value = PyFloat_AsDouble(number.ptr());
    if (PyErr_Occurred() != nullptr) {
        throw py::error_already_set();
    }
    return storedOf(value, form);
}

/// The product is close to the exact one, so only near a half the digits must decide.
std::int64_t storedOf(double number, const NumberForm& form) {
    const analysis::StoredRange range = rangeOf(form);
    const double product = number * powerOfTen(form.decimals);
    const double nearest = std::nearbyint(product);
    const bool isInRange =
        product > static_cast<double>(range.least) - 1 && product < static_cast<double>(range.greatest) + 1;
    if (!isInRange || (form.decimals == 0 && nearest != product)) {
        refuse(form, textOf(number));
    }
    constexpr double nearHalf = 0.4999;
    const auto integer = static_cast<std::int64_t>(nearest);
    if (std::abs(product - nearest) < nearHalf && integer >= range.least && integer <= range.greatest) {
        return integer;
    }
    const auto stored = analysis::storedNumber(textOf(number), form.decimals, range);
    if (!stored) {
        refuse(form, textOf(number));
    }
    return *stored;
}

std::int64_t storedOf(std::int64_t number, const NumberForm& form) {
    const auto stored = analysis::storedNumber(std::to_string(number), form.decimals, rangeOf(form));
    if (!stored) {
        refuse(form, std::to_string(number));
    }
    return *stored;
}

void importNumPy() {
    py::module_::import("numpy.core.multiarray");
}

std::string joinedOf(const py::handle& numbers, const NumberForm& form, std::size_t& count) {
    if (py::hasattr(numbers, "__array__")) {
        importNumPy();
        return joinedOfArray(py::module_::import("numpy").attr("asarray")(numbers), form, count);
    }
    return joinedOfItems(numbers, form, count);
}

bool isSeveral(const py::handle& value) {
    PyObject* const object = value.ptr();
    const bool isText = PyUnicode_Check(object) != 0 || PyBytes_Check(object) != 0 || PyByteArray_Check(object) != 0;
    const bool isUnordered = PyDict_Check(object) != 0 || PyAnySet_Check(object) != 0;
    if (py::hasattr(value, "__array__")) {
        return py::hasattr(value, "__len__") && py::getattr(value, "ndim", py::int_(1)).cast<int>() != 0;
    }
    return !isText && !isUnordered && (PySequence_Check(object) != 0 || py::hasattr(value, "__iter__"));
}

/// Large integers have no text within the limits of Python.
std::string shortRepr(const py::handle& value) {
    const bool isPlain = PyFloat_Check(value.ptr()) != 0 || PyBool_Check(value.ptr()) != 0 || value.is_none();
    int overflow = 0;
    if (PyLong_CheckExact(value.ptr()) != 0) {
        const long long number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
        return overflow == 0 ? std::to_string(number) : "a number of this size";
    }
    if (PyUnicode_Check(value.ptr()) != 0) {
        constexpr std::size_t most = 40;
        const py::object start = value[py::slice(0, static_cast<py::ssize_t>(most), 1)];
        return py::repr(start).cast<std::string>() + (py::len(value) > most ? "..." : "");
    }
    return isPlain ? py::repr(value).cast<std::string>()
                   : std::string("a value of type ") + Py_TYPE(value.ptr())->tp_name;
}

}  // namespace lv::python
