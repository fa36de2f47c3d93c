#include "analysis.h"
#include "failures.h"
#include "sources.h"
#include "units.h"

#include <lvdata/analysis/figures/choice_of_mode.h>
#include <lvdata/analysis/figures/lines.h>

#include <optional>
#include <stdexcept>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::Document;
using analysis::MonitorFigures;

MonitorFigures figuresOf(const Document& document, const std::string& file, const analysis::KnownUnits& known) {
    const auto monitor = analysis::monitorOf(document.record());
    if (!monitor) {
        throw ParseFailure{"a document of " + document.entry().shape->facts().name + " has no figures", 0, file};
    }
    return analysis::monitorFigures(*monitor, known);
}

/// What `lvdata show --json` prints.
py::bytes figuresText(const std::string& text, const std::string& file, const std::optional<std::string>& mode,
                      const Units& units) {
    std::string json;
    {
        const py::gil_scoped_release others;
        MonitorFigures figures = figuresOf(documentOf(text, file), file, knownUnits(units));
        if (mode) {
            auto found = analysis::modesOfIndex(figures.modes, *mode);
            if (found.empty()) {
                throw std::invalid_argument(inFile(file, whyNoModeOfIndex(figures.modes, *mode)));
            }
            figures.modes = std::move(found);
        }
        json = figuresJSON(figures) + '\n';
    }
    return json;
}

}  // namespace

void addFigures(py::module_& module) {
    module.def("figures_text", &figuresText);
}

}  // namespace lv::python
