#include "MonitorSources.h"
#include "analysis.h"
#include "failures.h"
#include "limits.h"
#include "shared.h"
#include "sources.h"

#include <lvdata/analysis/monitors/page_names.h>

#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::Fleet;
using analysis::FleetEntry;
using analysis::MonitorDocument;
using analysis::MonitorDocuments;
using analysis::MonitorPage;
using analysis::ReportForm;

/// How a page is made.
struct Form {
    std::string title;
    std::string date;
    std::optional<std::string> mode;
    analysis::LimitSet limits;

    /// The form must outlive the result.
    [[nodiscard]] ReportForm form() const { return {title, date, mode, &limits}; }
};

Form formOf(const std::string& title, const std::string& date, const std::optional<std::string>& mode,
            const std::string& limits) {
    return {title, date, mode, limitSet(limits)};
}

py::dict dictOf(const FleetEntry& entry) {
    py::dict result;
    result["page"] = asText(entry.page);
    result["name"] = asText(entry.name);
    result["serial"] = asText(entry.serial);
    result["model"] = asText(entry.model);
    result["when"] = asText(entry.when);
    result["passed"] = entry.verdict.passed;
    result["failed"] = entry.verdict.failed;
    result["not_available"] = entry.verdict.notAvailable;
    result["worst_mean"] = asText(entry.worstMean);
    result["findings"] = entry.findings;
    result["documents"] = entry.documents;
    return result;
}

std::string textIn(const py::dict& entry, const char* key) {
    return asBytes(entry[key].cast<py::str>());
}

std::size_t countIn(const py::dict& entry, const char* key) {
    return entry[key].cast<std::size_t>();
}

FleetEntry entryOf(const py::dict& entry) {
    return {textIn(entry, "page"),
            textIn(entry, "name"),
            textIn(entry, "serial"),
            textIn(entry, "model"),
            textIn(entry, "when"),
            {countIn(entry, "passed"), countIn(entry, "failed"), countIn(entry, "not_available")},
            textIn(entry, "worst_mean"),
            countIn(entry, "findings"),
            countIn(entry, "documents")};
}

/// The page of a monitor and its entry in the index.
py::tuple pageOf(MonitorSources& monitor, const std::string& latest, const Form& form) {
    MonitorPage page;
    {
        const py::gil_scoped_release others;
        page = monitor.page(latest, form.form());
    }
    return py::make_tuple(page.text, dictOf(page.entry));
}

std::string indexOf(const std::vector<py::dict>& dicts, const Form& form) {
    std::vector<FleetEntry> entries;
    for (const py::dict& each : dicts) {
        entries.push_back(entryOf(each));
    }
    const py::gil_scoped_release others;
    return fleetPage(entries, form.form());
}

/// What puts the documents of a fleet together, as Python has it: identity, time, name, serial number and UUID.
using MonitorKey = std::tuple<py::str, py::str, py::str, py::str, py::str>;

MonitorKey keyOf(const std::string& text, const std::string& file) {
    std::optional<MonitorDocument> read;
    {
        const py::gil_scoped_release others;
        const analysis::Document document = documentOf(text, file);
        read = monitorDocument(document, file);
        if (!read) {
            throw ParseFailure{whyNoMonitor(document), 0, file};
        }
    }
    const analysis::MonitorFigures& figures = read->snapshot.figures;
    return {asText(read->identity), asText(read->snapshot.when), asText(figures.name), asText(figures.serial),
            asText(figures.uuid)};
}

MonitorDocument documentOf(const MonitorKey& key, std::size_t place) {
    MonitorDocument document;
    document.file = std::to_string(place);
    document.identity = asBytes(std::get<0>(key));
    document.snapshot.when = asBytes(std::get<1>(key));
    document.snapshot.figures.name = asBytes(std::get<2>(key));
    document.snapshot.figures.serial = asBytes(std::get<3>(key));
    document.snapshot.figures.uuid = asBytes(std::get<4>(key));
    return document;
}

using Group = std::pair<std::string, std::vector<std::size_t>>;

/// The documents of each monitor by their places, in the order of time, with the name of its page.
std::vector<Group> groupsOf(const std::vector<MonitorKey>& keys) {
    Fleet fleet;
    for (std::size_t place = 0; place < keys.size(); ++place) {
        fleet.add(documentOf(keys[place], place));
    }
    const std::vector<MonitorDocuments> monitors = fleet.take();
    std::vector<Group> groups;
    for (const std::string& name : pageNames(monitors)) {
        Group group{name, {}};
        for (const MonitorDocument& document : monitors[groups.size()]) {
            group.second.push_back(std::stoul(document.file));
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

std::vector<std::string> limitSetNames() {
    std::vector<std::string> names;
    for (const analysis::LimitSet& each : analysis::knownLimitSets()) {
        names.push_back(each.name);
    }
    return names;
}

}  // namespace

void addReports(py::module_& module) {
    py::class_<Form>(module, "ReportForm").def(py::init(&formOf), py::call_guard<py::gil_scoped_release>());
    module.def("page", &pageOf);
    module.def("index_page", &indexOf);
    module.def("why_not_overwritten", [](const std::string& file) { return analysis::whyNotOverwritten(file); });
    module.def("limit_set_names", &limitSetNames);
    module.def("monitor_key", &keyOf);
    module.def("monitor_groups", &groupsOf);
}

}  // namespace lv::python
