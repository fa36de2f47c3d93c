#include "analysis.h"

#include "failures.h"
#include "shared.h"

namespace lv::python {

void addAnalysis(pybind11::module_& module) {
    addFailures(module);
    addChecking(module);
    addFigures(module);
    addPictures(module);
    addReports(module);
    addWalk(module);
}

}  // namespace lv::python
