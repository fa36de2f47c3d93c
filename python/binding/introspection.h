#pragma once

#include <cstddef>
#include <string>

#include <pybind11/pybind11.h>

// What Python makes its classes of.
namespace lv::python {

/// All classes of elements in the order of the layouts: a dict each, with one of each member.
[[nodiscard]] pybind11::list classes();

/// What a member means, its unit, how it is stored, and when it is written: sentences for its docstring.
[[nodiscard]] std::string meaningOf(std::size_t id, std::size_t index);

}  // namespace lv::python
