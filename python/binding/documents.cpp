#include "documents.h"
#include "element_record.h"
#include "errors.h"
#include "shared.h"
#include "values.h"
#include "wrapping.h"

#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/json/JSON.h>

#include <cerrno>

namespace py = pybind11;

namespace lv::python {
namespace {

template <class Load>
py::object loadedBy(const std::string& path, Load load) {
    analysis::LoadResult result;
    ElementPtr element;
    {
        const py::gil_scoped_release others;
        const analysis::LoadedRecord loaded = load();
        result = loaded.result;
        element = loaded ? elementOf(*loaded.record) : nullptr;
    }
    if (result.outcome == analysis::LoadResult::Outcome::notReadable) {
        raiseOSError(result.error, path);
    }
    if (!element) {
        raiseParseError(result.reason, result.line);
    }
    return wrapped(element);
}

}  // namespace

py::object loads(const std::string& text) {
    return loadedBy("", [&] { return analysis::loadText(text, catalogue()); });
}

py::object load(const std::string& path) {
    return loadedBy(path, [&] { return analysis::load(path, catalogue()); });
}

py::tuple fromJSON(const std::string& text) {
    analysis::FromJSON result;
    ElementPtr element;
    {
        const py::gil_scoped_release others;
        result = analysis::fromJSON(text, catalogue());
        element = result ? elementOf(*result.record) : nullptr;
    }
    if (!element) {
        raiseParseError(result.error->reason, result.error->line, result.error->path);
    }
    py::list losses;
    for (const analysis::Finding& each : result.losses.listed) {
        losses.append(strOf(each.path + ": " + each.message));
    }
    return py::make_tuple(wrapped(element), losses);
}

py::str toXML(const Element& element, bool pretty, bool declaration) {
    const std::unique_ptr<DataObject> record = recordOf(element);
    std::string text;
    {
        const py::gil_scoped_release others;
        text = record->toXMLString(declaration, pretty);
    }
    return strOf(text);
}

py::str toJSON(const Element& element, bool compact) {
    const std::unique_ptr<DataObject> record = recordOf(element);
    analysis::JSONResult result;
    {
        const py::gil_scoped_release others;
        analysis::JSONForm form;
        form.compact = compact;
        result = analysis::toJSON(*record, catalogue(), form);
    }
    if (!result) {
        throw py::value_error(result.error->toString());
    }
    return strOf(result.text);
}

void save(const Element& element, const std::string& path, bool pretty, bool declaration) {
    const std::unique_ptr<DataObject> record = recordOf(element);
    analysis::SaveResult result;
    {
        const py::gil_scoped_release others;
        result = analysis::save(path, *record, {declaration, pretty});
    }
    if (!result) {
        raiseOSError(result.error, path);
    }
}

bool printSame(const Element& left, const Element& right) {
    if (areEqual(left, right)) {
        return true;
    }
    const bool areRecords = left.layout().entry != nullptr && &left.layout() == &right.layout();
    return areRecords && recordOf(left)->toXMLString(false, false) == recordOf(right)->toXMLString(false, false);
}

}  // namespace lv::python
