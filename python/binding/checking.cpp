#include "analysis.h"
#include "failures.h"
#include "shared.h"
#include "sources.h"

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/diff/diff.h>
#include <lvdata/analysis/diff/output.h>
#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/printable.h>
#include <lvdata/analysis/utf8.h>

#include <stdexcept>
#include <utility>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace lv::python {
namespace {

using analysis::CheckOptions;
using analysis::Diff;
using analysis::Difference;
using analysis::DiffOptions;
using analysis::DiffRefusal;
using analysis::Finding;
using analysis::Tolerances;

std::vector<std::string> ruleIds() {
    std::vector<std::string> ids;
    for (const analysis::Rule& rule : analysis::rules()) {
        ids.emplace_back(rule.id);
    }
    return ids;
}

/// A finding as (severity, id, line, path, message).
py::tuple tupleOf(const Finding& finding) {
    const py::object line = finding.line == 0 ? py::object(py::none()) : py::int_(finding.line);
    return py::make_tuple(analysis::nameOf(finding.severity), finding.rule->id, line, analysis::inUTF8(finding.path),
                          analysis::inUTF8(finding.message));
}

py::list findingsOf(const std::string& text, const std::string& file, const CheckOptions& options) {
    analysis::Findings findings;
    {
        const py::gil_scoped_release others;
        refuseExcess(text, file);
        findings = analysis::check(text, catalogue(), options);
    }
    py::list result;
    for (const Finding& finding : findings.listed) {
        result.append(tupleOf(finding));
    }
    return result;
}

/// A text with the name of its file.
using Source = std::pair<std::string, std::string>;

using Limits = std::vector<std::pair<std::string, double>>;

DiffOptions optionsOf(const Limits& tolerances, std::vector<std::string> ignored) {
    DiffOptions options;
    for (const auto& [kind, limit] : tolerances) {
        options.tolerances.set(kind, limit);
    }
    options.ignoredPaths = std::move(ignored);
    return options;
}

Diff compared(const Source& before, const Source& after, const DiffOptions& options) {
    const auto first = recordIn(before.first, before.second);
    const auto second = recordIn(after.first, after.second);
    auto result = analysis::diff(*first, *second, catalogue(), options);
    if (const auto* const refusal = std::get_if<DiffRefusal>(&result)) {
        throw std::invalid_argument(inFile(after.second, refusal->reason));
    }
    return std::get<Diff>(std::move(result));
}

/// What `lvdata diff --format json` prints.
std::string jsonOf(const Diff& diff) {
    std::string text;
    analysis::JSONWriter writer(text, {true});
    putDiff(diff, writer);
    if (!writer.isUTF8()) {
        throw std::invalid_argument("a text is not UTF-8, so it cannot be compared");
    }
    return text;
}

/// Each difference in a line without its path.
std::vector<std::string> wordsOf(const Diff& diff) {
    std::vector<std::string> words;
    for (const Difference& difference : diff.differences) {
        words.push_back(analysis::printable(inWords(difference)));
    }
    return words;
}

py::tuple differences(const Source& before, const Source& after, const DiffOptions& options) {
    std::string json;
    std::vector<std::string> words;
    {
        const py::gil_scoped_release others;
        const Diff diff = compared(before, after, options);
        json = jsonOf(diff);
        words = wordsOf(diff);
    }
    return py::make_tuple(json, words);
}

}  // namespace

void addChecking(py::module_& module) {
    module.def("rule_ids", &ruleIds);
    module.def("findings", [](const std::string& text, const std::string& file, const std::vector<std::string>& ignored,
                              bool roundtrip, std::size_t most) {
        return findingsOf(text, file, {{ignored.begin(), ignored.end()}, roundtrip, most});
    });
    module.def("tolerance_kinds", [] { return Tolerances::kinds(catalogue()); });
    module.def("differences", [](const Source& before, const Source& after, const Limits& tolerances,
                                 const std::vector<std::string>& ignored) {
        return differences(before, after, optionsOf(tolerances, ignored));
    });
}

}  // namespace lv::python
