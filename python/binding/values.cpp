#include "values.h"
#include "element_record.h"
#include "failures.h"
#include "numbers.h"
#include "texts.h"

#include <lvdata/analysis/content.h>
#include <lvdata/analysis/natural_values.h>

#include <limits>

#include <pybind11/numpy.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using Content = Description::Content;

/// What the numbers stand for; nothing for raw ones.
const Quantity* quantityOf(const TextKind& kind, Numbers numbers) {
    return numbers == Numbers::raw ? nullptr : kind.quantity;
}

std::size_t decimalsOf(const TextKind& kind, Numbers numbers) {
    return formOf(*kind.shape, quantityOf(kind, numbers)).decimals;
}

std::size_t entriesOf(std::string_view text) {
    std::size_t count = text.empty() ? 0 : 1;
    for (const char character : text) {
        count += character == '|' ? 1U : 0U;
    }
    return count;
}

template <class Number>
void fill(Number* to, std::size_t count, std::string_view text, Number divisor) {
    for (std::size_t index = 0; index < count && !text.empty(); ++index) {
        to[index] = static_cast<Number>(takeNumber(text)) / divisor;  // NOLINT(*-pointer-arithmetic)
    }
}

template <class Number>
py::object arrayOf(std::string_view text, Number divisor) {
    importNumPy();
    const std::size_t count = entriesOf(text);
    py::array_t<Number> array(static_cast<py::ssize_t>(count));
    fill(array.mutable_data(), count, text, divisor);
    array.attr("flags").attr("writeable") = false;
    return std::move(array);
}

py::object arrayOf(const TextKind& kind, std::string_view text, Numbers numbers) {
    if (numbers == Numbers::natural) {
        return arrayOf<double>(text, powerOfTen(decimalsOf(kind, numbers)));
    }
    return analysis::isSigned(kind.shape->facts().content) ? arrayOf<std::int32_t>(text, 1)
                                                           : arrayOf<std::uint32_t>(text, 1);
}

py::object numberOf(const TextKind& kind, std::string_view text, Numbers numbers) {
    if (text.empty()) {
        return py::none();
    }
    const std::size_t decimals = decimalsOf(kind, numbers);
    const std::int64_t stored = takeNumber(text);
    if (decimals == 0) {
        return py::int_(stored);
    }
    return py::float_(static_cast<double>(stored) / powerOfTen(decimals));
}

std::string textFor(const Member& member, const py::handle& value) {
    const Description& facts = member.shape->facts();
    if (PyUnicode_Check(value.ptr()) == 0) {
        throw py::type_error("text expected, not " + shortRepr(value));
    }
    std::string text = asBytes(value);
    const std::string bad = analysis::whatXMLCannotCarry(text, facts.place);
    if (!bad.empty()) {
        throw py::value_error("XML cannot carry " + bad);
    }
    if (facts.constant && text != *facts.constant) {
        throw py::value_error('"' + *facts.constant + "\" expected, not " + shortRepr(value));
    }
    return text;
}

std::string booleanFor(const py::handle& value) {
    const bool isOfNumPy = std::string_view(Py_TYPE(value.ptr())->tp_name) == "numpy.bool_";
    if (PyBool_Check(value.ptr()) == 0 && !isOfNumPy) {
        throw py::type_error("True or False expected, not " + shortRepr(value));
    }
    return PyObject_IsTrue(value.ptr()) == 1 ? "true" : "false";
}

std::string numbersFor(const Element& element, std::size_t index, const py::handle& value, Numbers numbers) {
    const bool isArray = isSeveral(value);
    const TextKind kind = kindToStore(element, index, isArray);
    const NumberForm form = formOf(*kind.shape, quantityOf(kind, numbers));
    if (analysis::isArray(kind.shape->facts().content) != isArray) {
        const std::string wanted = isArray ? form.range : "several numbers";
        throw py::type_error(wanted + " expected, not " + (isArray ? "several" : shortRepr(value)));
    }
    if (!isArray) {
        return std::to_string(storedOf(value, form));
    }
    std::size_t count = 0;
    std::string joined = joinedOf(value, form, count);
    const std::string wanted = analysis::expectedEntries(*kind.shape, count);
    if (!wanted.empty()) {
        throw py::value_error(wanted + " entries expected, not " + std::to_string(count));
    }
    return joined;
}

std::string storedTextOf(const Element& element, std::size_t index, const py::handle& value, Numbers numbers) {
    const Member& member = element.layout().members.at(index);
    switch (member.text->facts().content) {
    case Content::none:
    case Content::string:
        return textFor(member, value);
    case Content::boolean:
        return booleanFor(value);
    default:
        return numbersFor(element, index, value, numbers);
    }
}

template <class Number>
py::object columnWith(const RowList& rows, std::size_t index, std::size_t length, Number empty, Numbers numbers) {
    importNumPy();
    py::array_t<Number> column({rows.rows.size(), length});
    Number* to = column.mutable_data();
    for (const ElementPtr& row : rows.rows) {
        std::fill(to, to + length, empty);  // NOLINT(*-pointer-arithmetic)
        if (const std::string* const text = row->textAt(index); text != nullptr && !text->empty()) {
            const std::size_t decimals = decimalsOf(kindOfText(*row, index), numbers);
            fill(to, length, *text, static_cast<Number>(powerOfTen(decimals)));
        }
        to += length;  // NOLINT(*-pointer-arithmetic)
    }
    return std::move(column);
}

}  // namespace

py::object valueOf(const Element& element, std::size_t index, Numbers numbers) {
    const std::string* const text = element.textAt(index);
    if (text == nullptr) {
        return py::none();
    }
    const Content content = element.layout().members[index].text->facts().content;
    if (content == Content::string || content == Content::none) {
        return asText(*text);
    }
    if (content == Content::boolean) {
        return text->empty() ? py::object(py::none()) : py::bool_(*text == "true");
    }
    const TextKind kind = kindOfText(element, index);
    const bool isArray = analysis::isArray(kind.shape->facts().content);
    return isArray ? arrayOf(kind, *text, numbers) : numberOf(kind, *text, numbers);
}

void setValue(Element& element, std::size_t index, const py::handle& value, Numbers numbers) {
    const std::string place = element.layout().pathOf(index) + ": ";
    if (value.is_none()) {
        clear(element, index);
        return;
    }
    try {
        element.at(index) = storedTextOf(element, index, value, numbers);
    } catch (const py::type_error& error) {
        throw py::type_error(place + error.what());
    } catch (const py::value_error& error) {
        throw py::value_error(place + error.what());
    }
}

void clear(Element& element, std::size_t index) {
    element.at(index) = copyOf(freshOf(element.layout()).at(index));
}

py::object columnOf(const RowList& rows, std::size_t index, std::size_t length, Numbers numbers) {
    if (numbers == Numbers::natural) {
        return columnWith<double>(rows, index, length, std::numeric_limits<double>::quiet_NaN(), numbers);
    }
    const Member& member = rows.layout->members.at(index);
    if (analysis::isSigned(member.text->facts().content)) {
        return columnWith<std::int32_t>(rows, index, length, 0, numbers);
    }
    return columnWith<std::uint32_t>(rows, index, length, 0, numbers);
}

}  // namespace lv::python
