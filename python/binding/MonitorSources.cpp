#include "MonitorSources.h"

#include "failures.h"
#include "shared.h"
#include "sources.h"

#include <lvdata/analysis/figures/choice_of_mode.h>

#include <stdexcept>
#include <utility>
#include <variant>
#include <vector>

namespace lv::python {
namespace {

using analysis::Document;
using analysis::LimitSet;
using analysis::MonitorDocument;
using analysis::MonitorDocuments;
using analysis::MonitorPage;
using analysis::PictureRefusal;
using analysis::PictureRequest;
using analysis::ReportedDocument;
using analysis::ReportForm;
using analysis::Snapshot;

/// What a document without a file is called on pages.
std::string nameOf(const std::string& file) {
    return file.empty() ? "<document>" : file;
}

MonitorDocument monitorIn(const Document& document, const std::string& file, const analysis::KnownUnits& known) {
    auto read = monitorDocument(document, nameOf(file), known);
    if (!read) {
        throw ParseFailure{whyNoMonitor(document), 0, file};
    }
    return std::move(*read);
}

void refuseUnlessMode(const Snapshot& latest, const std::optional<std::string>& mode, const std::string& file) {
    const auto& modes = latest.figures.modes;
    if (mode && analysis::modesOfIndex(modes, *mode).empty()) {
        throw ParseFailure{whyNoModeOfIndex(modes, *mode), 0, file};
    }
}

}  // namespace

void MonitorSources::add(const std::string& text, const std::string& file) {
    MonitorDocument read = monitorIn(documentOf(text, file), file, known_);
    if (!isWhole_) {
        dropData(read.snapshot.figures);
    }
    read.file = std::to_string(files_.size());
    files_.push_back(file);
    const std::string why = analysis::whySecondMonitor(read.identity);
    fleet_.add(std::move(read));
    if (fleet_.size() > 1) {
        throw ParseFailure{why, 0, file};
    }
}

std::size_t MonitorSources::latest() {
    return std::stoul(latestOf(documents()).file);
}

std::string MonitorSources::picture(const PictureRequest& request, const LimitSet* limits) {
    std::vector<Snapshot> snapshots;
    for (const MonitorDocument& document : documents()) {
        snapshots.push_back(document.snapshot);
    }
    auto drawn = drawPicture(snapshots, request, limits);
    if (const auto* const refusal = std::get_if<PictureRefusal>(&drawn)) {
        throw std::invalid_argument(inFile(refusal->document, refusal->reason));
    }
    return std::get<std::string>(std::move(drawn));
}

MonitorPage MonitorSources::page(const std::string& text, const ReportForm& form) {
    std::vector<ReportedDocument> reported;
    for (const MonitorDocument& document : documents()) {
        reported.push_back({document.snapshot, {}, {}});
    }
    const std::string& file = files_.at(latest());
    const Document document = documentOf(text, file);
    MonitorDocument again = monitorIn(document, file, known_);
    if (!isSameDocument(again, latestOf(documents()))) {
        throw ParseFailure{"changed while it was read", 0, file};
    }
    refuseUnlessMode(again.snapshot, form.mode, file);
    reported.back() = wholeDocument(std::move(again.snapshot), document, catalogue());
    return monitorPage(std::move(reported), form);
}

const MonitorDocuments& MonitorSources::documents() {
    if (documents_.empty()) {
        auto monitors = fleet_.take();
        if (monitors.empty()) {
            throw std::invalid_argument("no documents were given");
        }
        documents_ = std::move(monitors.front());
    }
    return documents_;
}

}  // namespace lv::python
