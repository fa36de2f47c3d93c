#include <benchmarks/documents.h>

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/diff/diff.h>
#include <lvdata/analysis/figures/MonitorFigures.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/report.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

// Each benchmark is named operation/document. "read" is the reference of all ratios: a text becomes a record, as each
// of the others begins.

namespace benchmarks {
namespace {

using lv::analysis::Catalogue;

const Catalogue& catalogue() {
    static const Catalogue all;
    return all;
}

std::unique_ptr<lv::DataObject> readRecord(const std::string& text) {
    lv::ParsedDocument document(text);
    auto record = lv::recordClass(document.rootElementName())->make();
    static_cast<void>(document.read(*record));
    return record;
}

/// More than documents of others should have: 100,000 rows are meant here.
lv::Limits wideLimits() {
    lv::Limits limits;
    limits.elements = 10'000'000;
    limits.nodes = 10'000'000;
    return limits;
}

void read(const std::string& text) {
    benchmark::DoNotOptimize(readRecord(text));
}

void check(const std::string& text) {
    benchmark::DoNotOptimize(lv::analysis::check(text, catalogue()));
}

/// As `lvdata convert --to jsonl` does with each document.
void toJSONLine(const std::string& text) {
    const lv::analysis::Document document(text, catalogue());
    benchmark::DoNotOptimize(toJSON(document.record(), catalogue(), {true}));
}

void diffWithItself(const std::string& text) {
    const auto record = readRecord(text);
    benchmark::DoNotOptimize(diff(*record, *record, catalogue()));
}

lv::analysis::MonitorFigures figuresOf(const lv::DataObject& record) {
    return lv::analysis::monitorFigures(lv::analysis::monitorOf(record).value());
}

void figures(const std::string& text) {
    benchmark::DoNotOptimize(figuresOf(*readRecord(text)));
}

/// All pictures of each mode and the maps, as files of their own.
void pictures(const std::string& text) {
    using lv::analysis::colour::Plane;
    const auto monitor = figuresOf(*readRecord(text));
    std::size_t size = mapPicture(monitor.uniformity).size() + mapPicture(monitor.brightness).size();
    for (const lv::analysis::ModeFigures& mode : monitor.modes) {
        size += gamutPicture(mode, Plane::xy).size() + gamutPicture(mode, Plane::uv).size() + tonePicture(mode).size() +
                balancePicture(mode).size() + tablesPicture(mode).size() + patchesPicture(mode, nullptr).size() +
                sixColoursPicture(mode).size();
    }
    benchmark::DoNotOptimize(size);
}

/// As `lvdata report` makes the page of one document.
void report(const std::string& text) {
    const lv::analysis::Document document(text, catalogue());
    lv::analysis::ReportedDocument reported{{"monitor.xml", "", figuresOf(document.record())},
                                            checkDocument(document),
                                            toJSON(document.record(), catalogue(), {true}).text};
    lv::analysis::ReportForm form;
    form.limits = &lv::analysis::knownLimitSets().front();
    benchmark::DoNotOptimize(reportPage({std::move(reported)}, form));
}

using Operation = void (*)(const std::string&);

const std::vector<std::pair<std::string, Operation>>& operations() {
    static const std::vector<std::pair<std::string, Operation>> all = {
        {"read", read}, {"check", check}, {"JSON line", toJSONLine}, {"diff", diffWithItself}};
    return all;
}

/// Operations on documents of monitors alone.
const std::vector<std::pair<std::string, Operation>>& operationsOnMonitors() {
    static const std::vector<std::pair<std::string, Operation>> all = {
        {"figures", figures}, {"pictures", pictures}, {"report", report}};
    return all;
}

void run(benchmark::State& state, Operation operation, const std::string& text) {
    for ([[maybe_unused]] auto iteration : state) {
        operation(text);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void fromJSONLine(benchmark::State& state, const std::string& text) {
    const std::string json = toJSON(*readRecord(text), catalogue(), {true}).text;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(lv::analysis::fromJSON(json, catalogue(), wideLimits()));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(json.size()));
}

/// A monitor with one calibrated mode, as applications write it.
std::string oneMode() {
    lv::MonitorInfo monitor = typicalDocument().monitor;
    monitor.calibrationModeResult.value.objects.resize(1);
    monitor.monitorConfiguration.value.colorModeSettings.value.objects.resize(1);
    return monitor.toXMLString(true, true);
}

/// The monitor of the examples.
std::string studio() {
    std::ifstream file(LVDATA_STUDIO, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void registerAll(const std::string& name, const std::string& text) {
    auto all = operations();
    if (lv::analysis::monitorOf(*readRecord(text))) {
        all.insert(all.end(), operationsOnMonitors().begin(), operationsOnMonitors().end());
    }
    for (const auto& [operation, function] : all) {
        benchmark::RegisterBenchmark((operation + '/' + name).c_str(), run, function, text);
    }
    benchmark::RegisterBenchmark(("from JSON/" + name).c_str(), fromJSONLine, text);
}

/// What is measured must be right: nothing to be found, and JSON that comes back.
bool isSound(const std::string& name, const std::string& text) {
    const auto record = readRecord(text);
    const auto json = toJSON(*record, catalogue(), {true});
    const auto back = lv::analysis::fromJSON(json.text, catalogue(), wideLimits());
    const bool isKept = back && back.record->toXMLString(false, false) == record->toXMLString(false, false);
    const bool isFree = check(text, catalogue()).countFrom(lv::analysis::Severity::warning) == 0;
    if (!isKept || !isFree) {
        std::cerr << name << " has findings, or does not come back from JSON\n";
    }
    return isKept && isFree;
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::vector<std::pair<std::string, std::string>> texts = {{"studio", benchmarks::studio()},
                                                              {"one mode", benchmarks::oneMode()}};
    for (const benchmarks::Document& document : benchmarks::allDocuments()) {
        texts.emplace_back(document.name, document.text());
    }
    for (const unsigned int rows : {25000U, 100000U}) {
        texts.emplace_back("rows x" + std::to_string(rows), benchmarks::rowsText(rows));
    }
    for (const auto& [name, text] : texts) {
        if (!benchmarks::isSound(name, text)) {
            return EXIT_FAILURE;
        }
        benchmarks::registerAll(name, text);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
