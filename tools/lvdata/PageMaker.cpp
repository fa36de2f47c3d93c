#include "PageMaker.h"

#include "mode_option.h"

#include <utility>
#include <vector>

namespace tool {

using lv::analysis::MonitorDocument;
using lv::analysis::MonitorDocuments;
using lv::analysis::MonitorPage;
using lv::analysis::ReportedDocument;

MonitorPage PageMaker::pageOf(const MonitorDocuments& documents) const {
    std::vector<ReportedDocument> reported;
    for (const MonitorDocument& document : documents) {
        const bool isLatest = &document == &latestOf(documents);
        reported.push_back(isLatest ? reader_.readWhole(document) : ReportedDocument{document.snapshot, {}, {}});
    }
    if (form_.mode) {
        const lv::analysis::Snapshot& latest = reported.back().snapshot;
        static_cast<void>(modesOfIndex(latest.figures.modes, *form_.mode, latest.document));
    }
    return monitorPage(std::move(reported), form_);
}

}  // namespace tool
