#include "shared.h"

namespace lv::python {

void addAnalysis(pybind11::module_& /*module*/) {}

}  // namespace lv::python
