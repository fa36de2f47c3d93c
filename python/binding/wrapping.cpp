#include "wrapping.h"

#include <stdexcept>

namespace py = pybind11;

namespace lv::python {
namespace {

/// The classes, by the index of their layouts. Kept to the end of the program, as types are.
std::vector<PyTypeObject*>& classes() {
    static std::vector<PyTypeObject*> made(layouts().size(), nullptr);
    return made;
}

void requireLayout(const Element& element, const Layout* layout) {
    if (&element.layout() != layout) {
        throw py::type_error("not an element of this place");
    }
}

std::size_t indexOf(const Layout& layout, const std::string& step) {
    for (std::size_t index = 0; index < layout.members.size(); ++index) {
        if (layout.members[index].shape->step() == step) {
            return index;
        }
    }
    throw py::key_error(step);
}

Slot slotOf(const Member& member, const py::handle& value) {
    if (member.kind == Member::Kind::rows) {
        auto rows = std::make_shared<RowList>(RowList{member.nested, {}});
        for (const py::handle row : value) {
            rows->rows.push_back(elementOf(row));
            requireLayout(*rows->rows.back(), member.nested);
        }
        return rows;
    }
    if (member.kind == Member::Kind::element) {
        ElementPtr element = elementOf(value);
        requireLayout(*element, member.nested);
        return element;
    }
    return value.cast<std::string>();
}

}  // namespace

void setClass(std::size_t id, const py::type& type) {
    classes().at(id) = reinterpret_cast<PyTypeObject*>(type.inc_ref().ptr());  // NOLINT(*-reinterpret-cast)
}

/// An object of a class derived in Python is made here as pybind11 makes one of a class of its own.
py::object wrapped(const ElementPtr& element) {
    const auto* const info = py::detail::get_type_info(typeid(Element));
    const py::handle existing = py::detail::find_registered_python_instance(element.get(), info);
    if (existing) {
        return py::reinterpret_steal<py::object>(existing);  // a new reference
    }
    PyTypeObject* const type = classes().at(element->layout().id);
    if (type == nullptr) {
        throw std::logic_error(element->layout().name + " has no class yet");
    }
    auto made = py::reinterpret_steal<py::object>(py::detail::make_new_instance(type));
    auto* const instance = reinterpret_cast<py::detail::instance*>(made.ptr());  // NOLINT(*-reinterpret-cast)
    instance->get_value_and_holder().value_ptr() = element.get();
    info->init_instance(instance, &element);
    return made;
}

ElementPtr elementOf(const py::handle& object) {
    return object.cast<ElementPtr>();
}

py::dict stateOf(const Element& element) {
    py::dict state;
    for (std::size_t index = 0; index < element.layout().members.size(); ++index) {
        const Slot& slot = element.at(index);
        const py::str step = element.layout().members[index].shape->step();
        if (const auto* const text = std::get_if<std::string>(&slot)) {
            state[step] = py::bytes(*text);
        } else if (const auto* const child = std::get_if<ElementPtr>(&slot)) {
            state[step] = wrapped(*child);
        } else if (const auto* const rows = std::get_if<std::shared_ptr<RowList>>(&slot)) {
            py::list list;
            for (const ElementPtr& row : (*rows)->rows) {
                list.append(wrapped(row));
            }
            state[step] = list;
        }
    }
    return state;
}

void restore(Element& element, const py::dict& state) {
    for (const auto& [step, value] : state) {
        const std::size_t index = indexOf(element.layout(), step.cast<std::string>());
        element.at(index) = slotOf(element.layout().members[index], value);
    }
}

}  // namespace lv::python
