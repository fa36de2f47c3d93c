#include "PageMaker.h"

#include "mode_option.h"

#include <utility>
#include <vector>

namespace tool {

using lv::analysis::ReportedDocument;

MonitorPage PageMaker::pageOf(const MonitorDocuments& documents) const {
    std::vector<ReportedDocument> reported;
    for (const MonitorDocument& document : documents) {
        const bool isLatest = &document == &latestOf(documents);
        reported.push_back(isLatest ? reader_.readWhole(document) : ReportedDocument{document.snapshot, {}, {}});
    }
    ReportedDocument& latest = reported.back();
    if (form_.mode) {
        static_cast<void>(modesOfIndex(latest.snapshot.figures.modes, *form_.mode, latest.snapshot.document));
    }
    MonitorPage page{reportPage(reported, form_), {}};
    dropData(latest.snapshot.figures);
    page.entry = {"", std::move(latest.snapshot), documents.size(), std::move(latest.findings)};
    return page;
}

}  // namespace tool
