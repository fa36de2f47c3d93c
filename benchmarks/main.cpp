#include <benchmarks/bare.h>
#include <benchmarks/documents.h>
#include <benchmarks/styles.h>

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

// Each benchmark is named operation/style/document. "bare" is the XML library alone: the reference of all ratios.

namespace benchmarks {
namespace {

struct Text {
    std::string name;
    std::string content;
};

void setRate(benchmark::State& state, const std::string& text) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void parseBare(benchmark::State& state, const std::string& text) {
    for ([[maybe_unused]] auto iteration : state) {
        tinyxml2::XMLDocument document;
        benchmark::DoNotOptimize(document.Parse(text.data(), text.size()));
    }
    setRate(state, text);
}

void printBareOf(benchmark::State& state, const std::string& text) {
    tinyxml2::XMLDocument document;
    document.Parse(text.data(), text.size());
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(printBare(document));
    }
    setRate(state, text);
}

void parse(benchmark::State& state, const Style& style, const std::string& text) {
    for ([[maybe_unused]] auto iteration : state) {
        const std::unique_ptr<Monitor> monitor = style.make();
        benchmark::DoNotOptimize(monitor->parse(text));
    }
    setRate(state, text);
}

void print(benchmark::State& state, const Style& style, const std::string& text) {
    const std::unique_ptr<Monitor> monitor = style.make();
    benchmark::DoNotOptimize(monitor->parse(text));
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(monitor->print());
    }
    setRate(state, text);
}

void roundTrip(benchmark::State& state, const Style& style, const std::string& text) {
    for ([[maybe_unused]] auto iteration : state) {
        const std::unique_ptr<Monitor> monitor = style.make();
        benchmark::DoNotOptimize(monitor->parse(text));
        benchmark::DoNotOptimize(monitor->print());
    }
    setRate(state, text);
}

/// One record of any class, from a text that is made to be long rather than typical.
template <class Record>
void parseRecord(benchmark::State& state, const std::string& text) {
    for ([[maybe_unused]] auto iteration : state) {
        Record record;
        if (!record.parseXMLString(text)) {
            state.SkipWithError("the text is refused");
            break;
        }
    }
    setRate(state, text);
}

template <class Record>
void printRecord(benchmark::State& state, const std::string& text) {
    Record record;
    if (!record.parseXMLString(text) || record.toXMLString(false, false) != text) {
        state.SkipWithError("the text does not come back");
    }
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(record.toXMLString(false, false));
    }
    setRate(state, text);
}

void registerReference(const Text& text) {
    benchmark::RegisterBenchmark(("parse/bare/" + text.name).c_str(), parseBare, text.content);
    benchmark::RegisterBenchmark(("print/bare/" + text.name).c_str(), printBareOf, text.content);
}

void registerStyle(const Style& style, const Text& text) {
    const std::string name = style.name + '/' + text.name;
    benchmark::RegisterBenchmark(("parse/" + name).c_str(), parse, style, text.content);
    benchmark::RegisterBenchmark(("print/" + name).c_str(), print, style, text.content);
    benchmark::RegisterBenchmark(("round trip/" + name).c_str(), roundTrip, style, text.content);
}

void registerRatios() {
    for (const Document& document : allDocuments()) {
        const Text text{document.name, document.text()};
        registerReference(text);
        for (const Style& style : styles()) {
            registerStyle(style, text);
        }
    }
}

constexpr unsigned int greatestFactor = 16;

void registerGrowth() {
    for (const unsigned int factor : {2U, 4U, 8U, greatestFactor}) {
        registerStyle(styles().front(), {"typical x" + std::to_string(factor), typicalDocument(factor).text()});
    }
    for (const unsigned int children : {1000U, 4000U}) {
        benchmark::RegisterBenchmark(("parse/lvdata/unknown children x" + std::to_string(children)).c_str(),
                                     parseRecord<lv::MonitorParameter>, unknownChildrenText(children));
    }
    for (const unsigned int rows : {25000U, 100000U}) {
        benchmark::RegisterBenchmark(("parse/lvdata/rows x" + std::to_string(rows)).c_str(),
                                     parseRecord<lv::MeasurementData>, rowsText(rows));
        benchmark::RegisterBenchmark(("print/lvdata/rows x" + std::to_string(rows)).c_str(),
                                     printRecord<lv::MeasurementData>, rowsText(rows));
    }
}

/// Each thread with a record of its own; the rate is that of all together.
void registerThreads() {
    const std::string text = typicalDocument().text();
    for (const int threads : {1, 2}) {
        benchmark::RegisterBenchmark("round trip threads/lvdata/typical", roundTrip, styles().front(), text)
            ->Threads(threads)
            ->UseRealTime();
    }
}

bool comesBack(const Style& style, const Document& document) {
    const std::string text = document.text();
    const std::unique_ptr<Monitor> monitor = style.make();
    const bool same = monitor->parse(text) && monitor->print() == text;
    if (!same) {
        std::cerr << style.name << " does not print the document " << document.name << " that it parsed\n";
    }
    return same;
}

bool comesBackBare(const Document& document) {
    const std::string text = document.text();
    tinyxml2::XMLDocument bare;
    const bool same = bare.Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS && printBare(bare) == text;
    if (!same) {
        std::cerr << "the XML library does not print the document " << document.name << " that it parsed\n";
    }
    return same;
}

/// Only what is right is worth timing.
bool everyStyleGivesEveryDocumentBack() {
    bool good = true;
    std::vector<Document> documents = allDocuments();
    documents.push_back(typicalDocument(greatestFactor));
    for (const Document& document : documents) {
        good = comesBackBare(document) && good;
        for (const Style& style : styles()) {
            good = comesBack(style, document) && good;
        }
    }
    return good;
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) || !benchmarks::everyStyleGivesEveryDocumentBack()) {
        return EXIT_FAILURE;
    }
    benchmarks::registerRatios();
    benchmarks::registerGrowth();
    benchmarks::registerThreads();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
