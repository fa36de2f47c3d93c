#include "Element.h"
#include "documents.h"
#include "element_record.h"
#include "introspection.h"
#include "shared.h"
#include "values.h"
#include "wrapping.h"

#include <lvdata/analysis/spelling.h>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

Numbers numbersOf(bool raw) {
    return raw ? Numbers::raw : Numbers::natural;
}

py::object childAt(const Element& element, std::size_t index) {
    const auto* const child = std::get_if<ElementPtr>(&element.at(index));
    return child == nullptr ? py::none() : wrapped(*child);
}

void requirePlace(const Layout& layout, const Element& element) {
    if (&element.layout() != &layout) {
        throw py::type_error(layout.name + " expected, not " + element.layout().name);
    }
}

void setChild(Element& element, std::size_t index, const ElementPtr& child) {
    const Layout* const nested = element.layout().members.at(index).nested;
    if (nested == nullptr || !child) {
        throw py::type_error("an element expected");
    }
    requirePlace(*nested, *child);
    element.at(index) = child;
}

const ElementPtr& rowAt(const RowList& rows, std::size_t index) {
    if (index >= rows.rows.size()) {
        throw py::index_error("row index out of range");
    }
    return rows.rows[index];
}

/// Puts these rows in the place of those from `begin` up to `end`.
void replaceRows(RowList& rows, std::size_t begin, std::size_t end, const std::vector<ElementPtr>& others) {
    for (const ElementPtr& each : others) {
        if (!each) {
            throw py::type_error(rows.layout->name + " expected, not None");
        }
        requirePlace(*rows.layout, *each);
    }
    const auto place = [&](std::size_t index) {
        return rows.rows.begin() + static_cast<std::ptrdiff_t>(std::min(index, rows.rows.size()));
    };
    const auto next = rows.rows.erase(place(begin), place(std::max(begin, end)));
    rows.rows.insert(next, others.begin(), others.end());
}

ElementPtr fresh(std::size_t id) {
    return copyOf(freshOf(*layouts().at(id)));
}

py::object restored(std::size_t id, const py::dict& state) {
    const ElementPtr element = std::make_shared<Element>(*layouts().at(id));
    restore(*element, state);
    return wrapped(element);
}

void addElement(const py::module_& module) {
    py::class_<Element, ElementPtr>(module, "Element", "What all elements of documents have in Python.")
        .def(py::init(&fresh), py::arg("id"))
        .def("_value",
             [](const Element& self, std::size_t index, bool raw) { return valueOf(self, index, numbersOf(raw)); })
        .def("_set_value", [](Element& self, std::size_t index, const py::object& value,
                              bool raw) { setValue(self, index, value, numbersOf(raw)); })
        .def("_child", &childAt)
        .def("_set_child", &setChild)
        .def("_rows", [](Element& self, std::size_t index) { return self.rowsAt(index); })
        .def("_clear", &clear)
        .def("_path", [](const Element& self, std::size_t index) { return self.layout().pathOf(index); })
        .def("_copy", [](const Element& self) { return wrapped(copyOf(self)); })
        .def("_equals", &printSame)
        .def("_state", &stateOf);
}

void addRows(const py::module_& module) {
    py::class_<RowList, std::shared_ptr<RowList>>(module, "RowList", "The rows of an element.")
        .def("__len__", [](const RowList& self) { return self.rows.size(); })
        .def("id", [](const RowList& self) { return self.layout->id; })
        .def("at", [](const RowList& self, std::size_t index) { return wrapped(rowAt(self, index)); })
        .def("replace", &replaceRows)
        .def("equals",
             [](const RowList& self, const RowList& other) {
                 return areEqual(Slot(std::make_shared<RowList>(self)), Slot(std::make_shared<RowList>(other)));
             })
        .def("column", [](const RowList& self, std::size_t index, std::size_t length, bool raw) {
            return columnOf(self, index, length, numbersOf(raw));
        });
}

py::object closestOf(const std::string& word, const std::vector<std::string>& words) {
    const std::string* const found = analysis::closest(word, words);
    return found == nullptr ? py::object(py::none()) : py::str(*found);
}

}  // namespace

void addRecords(py::module_& module) {
    addElement(module);
    addRows(module);
    module.def("classes", &classes);
    module.def("meaning", &meaningOf, py::arg("id"), py::arg("index"));
    module.def("set_class", &setClass, py::arg("id"), py::arg("type"));
    module.def("restored", &restored, py::arg("id"), py::arg("state"));
    module.def(
        "new_rows",
        [](std::size_t id) {
            return std::make_shared<RowList>(RowList{layouts().at(id).get(), {}});
        },
        py::arg("id"));
    module.def("closest", &closestOf, py::arg("word"), py::arg("words"));
    module.def("loads", &loads, py::arg("text"));
    module.def("load", &load, py::arg("path"));
    module.def("from_json", &fromJSON, py::arg("text"));
    module.def("to_xml", &toXML, py::arg("record"), py::arg("pretty"), py::arg("declaration"));
    module.def("to_json", &toJSON, py::arg("record"), py::arg("compact"));
    module.def("save", &save, py::arg("record"), py::arg("path"), py::arg("pretty"), py::arg("declaration"));
}

}  // namespace lv::python
