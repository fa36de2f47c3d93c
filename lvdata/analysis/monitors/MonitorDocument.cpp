#include <lvdata/analysis/monitors/MonitorDocument.h>

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/json/JSON.h>

#include <utility>
#include <vector>

namespace lv::analysis {
namespace {

/// Frees the memory, too.
template <class Item>
void drop(std::vector<Item>& items) {
    std::vector<Item>().swap(items);
}

void dropData(MapFigures& map) {
    drop(map.values);
    drop(map.againstCentre);
}

void dropData(ModeFigures& mode) {
    mode.tables = {};
    drop(mode.tone.steps);
    drop(mode.series.patches);
    drop(mode.series.worst);
}

}  // namespace

std::optional<MonitorDocument> monitorDocument(const Document& document, const std::string& name,
                                               const KnownUnits& known) {
    const auto monitor = monitorOf(document.record());
    if (!monitor) {
        return std::nullopt;
    }
    MonitorDocument read;
    read.identity = identityOf(*monitor);
    read.snapshot.document = name;
    read.snapshot.figures = monitorFigures(*monitor, known);
    read.snapshot.when = latestTimeOf(read.snapshot.figures);
    return read;
}

std::string whyNoMonitor(const Document& document) {
    return "a document of " + document.entry().shape->facts().name + " does not describe a monitor";
}

void dropData(MonitorFigures& figures) {
    for (ModeFigures& mode : figures.modes) {
        dropData(mode);
    }
    dropData(figures.uniformity);
    dropData(figures.brightness);
}

ReportedDocument wholeDocument(Snapshot snapshot, const Document& document, const Catalogue& catalogue) {
    return {std::move(snapshot), checkDocument(document), toJSON(document.record(), catalogue, {true}).text};
}

bool isSameDocument(const MonitorDocument& first, const MonitorDocument& second) {
    return first.identity == second.identity && first.snapshot.when == second.snapshot.when;
}

}  // namespace lv::analysis
