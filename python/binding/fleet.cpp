#include "errors.h"
#include "shared.h"

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/report/fleet_order.h>
#include <lvdata/analysis/report/report.h>
#include <lvdata/analysis/utf8.h>
#include <lvdata/xml/Limits.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include <pybind11/stl.h>

namespace py = pybind11;

// What the workers of `lvdata.fleet` call. Names of files and texts of documents may hold any bytes.
namespace lv::python {
namespace {

using analysis::Document;
using analysis::FleetDocument;
using analysis::FleetEntry;
using analysis::ReportForm;

/// Why there is no document.
struct Problem {
    std::string reason;
    int line;
};

std::optional<Problem> problemOf(const Document& document) {
    const analysis::Refusal* const refusal = document.refusal();
    if (refusal == nullptr) {
        return std::nullopt;
    }
    const bool isUnknown = refusal->kind == analysis::Refusal::Kind::unknownRoot;
    return Problem{isUnknown ? analysis::unknownRootElement(refusal->reason) : refusal->reason,
                   isUnknown ? 0 : refusal->line};
}

/// Calls `work` without the GIL; raises the problem that it returns.
template <class Work>
auto withoutGIL(const Work& work) {
    auto result = [&] {
        const py::gil_scoped_release others;
        return work();
    }();
    if (const Problem* const problem = std::get_if<Problem>(&result)) {
        raiseParseError(problem->reason, problem->line);
    }
    return std::get<0>(std::move(result));
}

std::optional<Problem> excessOf(const std::string& text) {
    const auto excess = findExcess(text);
    return excess ? std::optional(Problem{excess->toString(), excess->line}) : std::nullopt;
}

/// Id, severity, line (0: none), path and message of each finding.
using FindingRow = std::tuple<std::string, std::string, int, std::string, std::string>;

std::vector<FindingRow> rowsOf(const analysis::Findings& findings) {
    std::vector<FindingRow> rows;
    for (const analysis::Finding& each : findings.listed) {
        rows.emplace_back(each.rule->id, nameOf(each.severity), each.line, analysis::inUTF8(each.path),
                          analysis::inUTF8(each.message));
    }
    return rows;
}

analysis::CheckOptions optionsOf(const std::vector<std::string>& ignored, bool roundtrip) {
    analysis::CheckOptions options;
    options.roundtrip = roundtrip;
    for (const std::string& id : ignored) {
        if (analysis::findRule(id) == nullptr) {
            throw py::value_error("'" + id + "' is not the id of a rule");
        }
        options.ignored.insert(id);
    }
    return options;
}

std::vector<FindingRow> check(const std::string& text, const std::vector<std::string>& ignored, bool roundtrip) {
    const analysis::CheckOptions options = optionsOf(ignored, roundtrip);
    return withoutGIL([&]() -> std::variant<std::vector<FindingRow>, Problem> {
        if (auto problem = excessOf(text)) {
            return *problem;
        }
        return rowsOf(analysis::check(text, catalogue(), options));
    });
}

FleetDocument factsOf(const MonitorInfo& monitor, const analysis::Snapshot& snapshot) {
    return {analysis::identityOf(monitor), snapshot.when, snapshot.figures.name, snapshot.figures.serial,
            snapshot.figures.uuid};
}

/// A document of a monitor, with what decides its place.
struct ReadDocument {
    FleetDocument facts;
    analysis::ReportedDocument reported;
};

using ReadResult = std::variant<ReadDocument, Problem>;

ReadResult monitorIn(const Document& document, const std::string& file, const analysis::KnownUnits& units) {
    const auto monitor = analysis::monitorOf(document.record());
    if (!monitor) {
        return Problem{"a document of " + document.entry().shape->facts().name + " is not of a monitor", 0};
    }
    ReadDocument read;
    analysis::Snapshot& snapshot = read.reported.snapshot;
    snapshot.document = std::filesystem::path(file).filename();
    snapshot.figures = analysis::monitorFigures(*monitor, units);
    snapshot.when = analysis::latestTimeOf(snapshot.figures);
    read.facts = factsOf(*monitor, snapshot);
    return read;
}

void addDetails(analysis::ReportedDocument& reported, const Document& document) {
    reported.findings = checkDocument(document);
    reported.json = analysis::toJSON(document.record(), catalogue(), {true}).text;
}

ReadResult readMonitor(const std::string& file, const std::string& text, const analysis::KnownUnits& units,
                       bool withDetails) {
    if (auto problem = excessOf(text)) {
        return *problem;
    }
    const Document document(text, catalogue());
    if (auto problem = problemOf(document)) {
        return *problem;
    }
    ReadResult result = monitorIn(document, file, units);
    if (ReadDocument* const read = std::get_if<ReadDocument>(&result); read != nullptr && withDetails) {
        addDetails(read->reported, document);
    }
    return result;
}

/// The members of `FleetDocument` as bytes.
py::tuple tupleOf(const FleetDocument& facts) {
    return py::make_tuple(py::bytes(facts.identity), py::bytes(facts.when), py::bytes(facts.name),
                          py::bytes(facts.serial), py::bytes(facts.uuid));
}

py::tuple fleetDocument(const std::string& text) {
    return tupleOf(withoutGIL([&] { return readMonitor("", text, {}, false); }).facts);
}

using FactsTuple = std::tuple<std::string, std::string, std::string, std::string, std::string>;

/// The name of the page of each monitor and the positions of its documents.
std::vector<std::pair<std::string, std::vector<std::size_t>>> fleetPages(const std::vector<FactsTuple>& documents) {
    std::vector<FleetDocument> facts;
    for (const auto& [identity, when, name, serial, uuid] : documents) {
        facts.push_back({identity, when, name, serial, uuid});
    }
    const auto monitors = analysis::monitorsOf(facts);
    std::vector<FleetDocument> latest;
    for (const std::vector<std::size_t>& positions : monitors) {
        latest.push_back(facts[positions.back()]);
    }
    const std::vector<std::string> names = analysis::pageNames(latest);
    std::vector<std::pair<std::string, std::vector<std::size_t>>> pages;
    for (std::size_t index = 0; index < names.size(); ++index) {
        pages.emplace_back(names[index], monitors[index]);
    }
    return pages;
}

/// The set of that name, or else the one in the text.
analysis::LimitSet limitSetOf(const std::string& name, const std::string& text) {
    for (const analysis::LimitSet& set : analysis::knownLimitSets()) {
        if (set.name == name) {
            return set;
        }
    }
    analysis::LimitSetResult result = analysis::readLimitSet(text);
    if (!result.set) {
        raiseParseError(result.reason, result.line);
    }
    return std::move(*result.set);
}

std::vector<std::string> limitSetNames() {
    std::vector<std::string> names;
    for (const analysis::LimitSet& set : analysis::knownLimitSets()) {
        names.push_back(set.name);
    }
    return names;
}

/// Makes the page of a monitor, or the index of many.
class PageMaker {
public:
    PageMaker(std::string title, std::string date, std::optional<std::string> mode, const std::string& limits,
              const std::string& limitsText, std::string yUnit, std::string mapUnit, std::size_t gridWidth)
        : limits_(limitSetOf(limits, limitsText)),
          form_{std::move(title), std::move(date), std::move(mode), &limits_},
          units_{std::move(yUnit), std::move(mapUnit), gridWidth} {}

    /// Adds a document, the latest last and with details; returns what decides its place.
    py::tuple add(const std::string& file, const std::string& text, bool withDetails) {
        ReadDocument read = withoutGIL([&] { return readMonitor(file, text, units_, withDetails); });
        documents_.push_back(std::move(read.reported));
        return tupleOf(read.facts);
    }

    [[nodiscard]] py::bytes page() const {
        refuseUnlessMode();
        return withoutGIL([&]() -> std::variant<std::string, Problem> { return reportPage(documents_, form_); });
    }

    /// The members of `FleetEntry` in their order, the three numbers of the verdict one by one.
    [[nodiscard]] py::tuple entry() const {
        const FleetEntry entry = fleetEntry(documents_, form_);
        return py::make_tuple(py::bytes(entry.name), py::bytes(entry.serial), py::bytes(entry.model),
                              py::bytes(entry.when), entry.verdict.passed, entry.verdict.failed,
                              entry.verdict.notAvailable, py::bytes(entry.worstMean), entry.findings, entry.documents);
    }

    using EntryTuple = std::tuple<std::string, std::string, std::string, std::string, std::size_t, std::size_t,
                                  std::size_t, std::string, std::size_t, std::size_t>;

    /// The page with the table of all, from the names of pages and their entries.
    [[nodiscard]] py::bytes index(const std::vector<std::pair<std::string, EntryTuple>>& pages) const {
        std::vector<FleetEntry> entries;
        for (const auto& [page, entry] : pages) {
            const auto& [name, serial, model, when, passed, failed, missing, worst, findings, documents] = entry;
            entries.push_back(
                {page, name, serial, model, when, {passed, failed, missing}, worst, findings, documents});
        }
        return fleetPage(entries, form_);
    }

private:
    void refuseUnlessMode() const {
        const auto& modes = documents_.back().snapshot.figures.modes;
        const auto isWanted = [&](const analysis::ModeFigures& mode) {
            return mode.index == *form_.mode;
        };
        if (form_.mode && std::none_of(modes.begin(), modes.end(), isWanted)) {
            raiseParseError("no colour mode has the index " + *form_.mode, 0);
        }
    }

    analysis::LimitSet limits_;
    ReportForm form_;
    analysis::KnownUnits units_;
    std::vector<analysis::ReportedDocument> documents_;
};

/// Replaces the file in one step, or leaves it as it was.
void writeFile(const std::string& path, const std::string& text) {
    const analysis::SaveResult result = [&] {
        const py::gil_scoped_release others;
        return analysis::writeFile(path, text);
    }();
    if (!result) {
        const py::object error = py::module_::import("builtins").attr("OSError")(
            result.error.value(), result.error.message(), py::module_::import("os").attr("fsdecode")(py::bytes(path)));
        PyErr_SetObject(py::type::of(error).ptr(), error.ptr());  // the class that fits the reason
        throw py::error_already_set();
    }
}

}  // namespace

void addFleet(py::module_& module) {
    module.attr("most_bytes") = Limits{}.bytes;
    module.def("check_text", &check, py::arg("text"), py::arg("ignore"), py::arg("roundtrip"));
    module.def("fleet_document", &fleetDocument, py::arg("text"));
    module.def("fleet_pages", &fleetPages, py::arg("documents"));
    module.def("limit_set_names", &limitSetNames);
    module.def("write_file", &writeFile, py::arg("path"), py::arg("text"));
    py::class_<PageMaker>(module, "PageMaker")
        .def(py::init<std::string, std::string, std::optional<std::string>, std::string, std::string, std::string,
                      std::string, std::size_t>())
        .def("add", &PageMaker::add, py::arg("file"), py::arg("text"), py::arg("with_details"))
        .def("page", &PageMaker::page)
        .def("entry", &PageMaker::entry)
        .def("index", &PageMaker::index, py::arg("pages"));
}

}  // namespace lv::python
