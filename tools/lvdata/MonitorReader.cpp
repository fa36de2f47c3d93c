#include "MonitorReader.h"

#include "Failure.h"
#include "documents.h"
#include "files.h"

#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/json/JSON.h>

#include <filesystem>
#include <system_error>
#include <vector>

namespace tool {
namespace {

using lv::analysis::Document;
using lv::analysis::MapFigures;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using lv::analysis::ReportedDocument;

/// Not a pipe, and not standard input.
bool canBeReadAgain(const std::string& file) {
    std::error_code ignored;
    return file != standardStream && std::filesystem::is_regular_file(file, ignored);
}

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

void dropData(MonitorFigures& figures) {
    for (ModeFigures& mode : figures.modes) {
        dropData(mode);
    }
    dropData(figures.uniformity);
    dropData(figures.brightness);
}

MonitorDocument MonitorReader::read(const std::string& file) const {
    const std::string text = readInput(file, limits_.bytes);
    MonitorDocument read = monitorIn(documentOf(text, inputName(file), limits_, catalogue_), file);
    if (!canBeReadAgain(file)) {
        read.text = text;
    }
    return read;
}

MonitorDocument MonitorReader::readSummary(const std::string& file) const {
    MonitorDocument summary = read(file);
    dropData(summary.snapshot.figures);
    return summary;
}

MonitorDocument MonitorReader::monitorIn(const Document& document, const std::string& file) const {
    const auto monitor = lv::analysis::monitorOf(document.record());
    if (!monitor) {
        throw Failure(inputName(file),
                      "a document of " + document.entry().shape->facts().name + " is not of a monitor");
    }
    MonitorDocument read{file, {}, lv::analysis::identityOf(*monitor), {}};
    read.snapshot.document = inputName(file);
    read.snapshot.figures = lv::analysis::monitorFigures(*monitor, units_);
    read.snapshot.when = latestTimeOf(read.snapshot.figures);
    return read;
}

ReportedDocument MonitorReader::readWhole(const MonitorDocument& document) const {
    const std::string name = inputName(document.file);
    const Document again =
        documentOf(document.text ? *document.text : readInput(document.file, limits_.bytes), name, limits_, catalogue_);
    MonitorDocument read = monitorIn(again, document.file);
    if (read.identity != document.identity || read.snapshot.when != document.snapshot.when) {
        throw Failure(name, "changed while it was read");
    }
    return {std::move(read.snapshot), checkDocument(again), toJSON(again.record(), catalogue_, {true}).text};
}

}  // namespace tool
