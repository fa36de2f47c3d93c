#pragma once

#include <lvdata/analysis/Catalogue.h>

#include <pybind11/pybind11.h>

// Shared by the sources of the compiled part.
namespace lv::python {

/// The one catalogue of the module, made when it is first needed. Never changes.
[[nodiscard]] const analysis::Catalogue& catalogue();

/// Each adds a part of the module.
void addRecords(pybind11::module_& module);
void addTables(pybind11::module_& module);
void addAnalysis(pybind11::module_& module);

}  // namespace lv::python
