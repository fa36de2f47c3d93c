#include "documents.h"
#include "element_record.h"
#include "failures.h"
#include "shared.h"
#include "sources.h"
#include "values.h"
#include "wrapping.h"

#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/json/JSON.h>

namespace py = pybind11;

namespace lv::python {
namespace {

/// The element of a document. Needs the GIL and releases it.
py::object elementIn(const std::string& text, const std::string& file) {
    ElementPtr element;
    {
        const py::gil_scoped_release others;
        element = elementOf(*recordIn(text, file));
    }
    return wrapped(element);
}

std::string contentOf(const std::string& path) {
    const py::gil_scoped_release others;
    return readDocument(path);
}

}  // namespace

py::object loads(const std::string& text) {
    return elementIn(text, {});
}

py::object load(const std::string& path) {
    return elementIn(contentOf(path), path);
}

py::tuple fromJSON(const std::string& text) {
    analysis::FromJSON result;
    ElementPtr element;
    {
        const py::gil_scoped_release others;
        result = analysis::fromJSON(text, catalogue());
        if (!result) {
            throw ParseFailure{result.error->reason, result.error->line, {}, result.error->path};
        }
        element = elementOf(*result.record);
    }
    py::list losses;
    for (const analysis::Finding& each : result.losses.listed) {
        losses.append(asText(each.path + ": " + each.message));
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
    return asText(text);
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
    return asText(result.text);
}

void save(const Element& element, const std::string& path, bool pretty, bool declaration) {
    const std::unique_ptr<DataObject> record = recordOf(element);
    analysis::SaveResult result;
    {
        const py::gil_scoped_release others;
        result = analysis::save(path, *record, {declaration, pretty});
    }
    if (!result) {
        throw FileFailure{result.error, result.reason, path};
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
