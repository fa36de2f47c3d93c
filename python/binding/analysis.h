#pragma once

#include <pybind11/pybind11.h>

namespace lv::python {

/// Each adds a part of the analysis.
void addChecking(pybind11::module_& module);
void addFigures(pybind11::module_& module);
void addPictures(pybind11::module_& module);
void addReports(pybind11::module_& module);
void addWalk(pybind11::module_& module);

}  // namespace lv::python
