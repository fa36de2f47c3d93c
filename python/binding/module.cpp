#include "errors.h"
#include "shared.h"

#include <lvdata/analysis/files/files.h>
#include <lvdata/version.h>

namespace py = pybind11;

namespace lv::python {

const analysis::Catalogue& catalogue() {
    static const analysis::Catalogue made;
    return made;
}

std::unique_ptr<DataObject> recordOf(const std::string& text) {
    analysis::LoadedRecord loaded;
    {
        const py::gil_scoped_release others;
        loaded = analysis::loadText(text, catalogue());
    }
    if (!loaded) {
        raiseParseError(loaded.result.reason, loaded.result.line);
    }
    return std::move(loaded.record);
}

}  // namespace lv::python

PYBIND11_MODULE(_lvdata, module) {
    module.doc() = "The compiled part of lvdata. Its interface may change at any time.";
    module.attr("version") = lv::versionText;
    lv::python::addRecords(module);
    lv::python::addTables(module);
    lv::python::addAnalysis(module);
    lv::python::addFleet(module);
}
