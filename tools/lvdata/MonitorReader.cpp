#include "MonitorReader.h"

#include "Failure.h"
#include "documents.h"
#include "files.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace tool {
namespace {

using lv::analysis::Document;
using lv::analysis::MonitorDocument;
using lv::analysis::ReportedDocument;

/// Not a pipe, and not standard input.
bool canBeReadAgain(const std::string& file) {
    std::error_code ignored;
    return file != standardStream && std::filesystem::is_regular_file(std::filesystem::u8path(file), ignored);
}

}  // namespace

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
    auto read = monitorDocument(document, inputName(file), units_);
    if (!read) {
        throw Failure(inputName(file), whyNoMonitor(document));
    }
    read->file = file;
    return std::move(*read);
}

ReportedDocument MonitorReader::readWhole(const MonitorDocument& document) const {
    const std::string name = inputName(document.file);
    const Document again =
        documentOf(document.text ? *document.text : readInput(document.file, limits_.bytes), name, limits_, catalogue_);
    MonitorDocument read = monitorIn(again, document.file);
    if (!isSameDocument(read, document)) {
        throw Failure(name, "changed while it was read");
    }
    return wholeDocument(std::move(read.snapshot), again, catalogue_);
}

}  // namespace tool
