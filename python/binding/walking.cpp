#include "analysis.h"
#include "failures.h"
#include "sources.h"

#include <lvdata/analysis/files/DocumentWalk.h>
#include <lvdata/analysis/files/files.h>

#include <optional>
#include <string>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::DocumentWalk;

/// The next document. Throws `FileFailure` for what cannot be walked.
std::optional<std::string> nextFile(DocumentWalk& walk) {
    const auto found = walk.next();
    if (found && !found->reason.empty()) {
        throw FileFailure{found->error, found->reason, found->path};
    }
    return found ? std::optional(found->path) : std::nullopt;
}

py::object next(DocumentWalk& walk) {
    std::optional<std::string> file;
    {
        const py::gil_scoped_release others;
        file = nextFile(walk);
    }
    return file ? py::object(py::bytes(*file)) : py::none();
}

py::bytes contentOf(const std::string& file) {
    std::string text;
    {
        const py::gil_scoped_release others;
        text = readDocument(file);
    }
    return text;
}

/// Replaces the file in one step, or leaves it as it was. Throws `FileFailure`.
void writeFile(const std::string& file, const std::string& text) {
    const analysis::SaveResult result = analysis::writeFile(file, text);
    if (!result) {
        throw FileFailure{result.error, result.reason, file};
    }
}

}  // namespace

void addWalk(py::module_& module) {
    py::class_<DocumentWalk>(module, "DocumentWalk")
        .def(py::init<>())
        .def("start", &DocumentWalk::start, py::call_guard<py::gil_scoped_release>())
        .def("next", &next);
    module.def("read_document", &contentOf);
    module.def("write_file", &writeFile, py::call_guard<py::gil_scoped_release>());
}

}  // namespace lv::python
