#include "shared.h"

namespace lv::python {

void addRecords(pybind11::module_& /*module*/) {}

}  // namespace lv::python
