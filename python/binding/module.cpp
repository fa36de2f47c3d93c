#include "shared.h"

#include <lvdata/version.h>

namespace py = pybind11;

namespace lv::python {

const analysis::Catalogue& catalogue() {
    static const analysis::Catalogue made;
    return made;
}

}  // namespace lv::python

PYBIND11_MODULE(_lvdata, module) {
    module.doc() = "The compiled part of lvdata. Its interface may change at any time.";
    module.attr("version") = lv::versionText;
    lv::python::addRecords(module);
    lv::python::addTables(module);
    lv::python::addAnalysis(module);
}
