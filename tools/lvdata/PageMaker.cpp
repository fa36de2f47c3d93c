#include "PageMaker.h"

#include "mode_option.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tool {
namespace {

using lv::analysis::ReportedDocument;
using lv::analysis::Snapshot;

void refuseUnlessMode(const Snapshot& snapshot, const std::optional<std::string>& index) {
    if (index) {
        static_cast<void>(modesOfIndex(snapshot.figures.modes, *index, snapshot.document));
    }
}

/// Without the folder, which differs between machines.
void shortenName(Snapshot& snapshot) {
    snapshot.document = std::filesystem::path(snapshot.document).filename();
}

}  // namespace

MonitorPage PageMaker::pageOf(const MonitorDocuments& documents) const {
    std::vector<ReportedDocument> reported;
    for (const MonitorDocument& document : documents) {
        const bool isLatest = &document == &latestOf(documents);
        reported.push_back(isLatest ? reader_.readWhole(document) : ReportedDocument{document.snapshot, {}, {}});
    }
    refuseUnlessMode(reported.back().snapshot, form_.mode);
    for (ReportedDocument& document : reported) {
        shortenName(document.snapshot);
    }
    return {reportPage(reported, form_), fleetEntry(reported, form_)};
}

}  // namespace tool
