#include <lvdata/analysis/monitors/MonitorPage.h>

#include <filesystem>

namespace lv::analysis {

MonitorPage monitorPage(std::vector<ReportedDocument> documents, const ReportForm& form) {
    for (ReportedDocument& document : documents) {
        document.snapshot.document = std::filesystem::u8path(document.snapshot.document).filename().u8string();
    }
    return {reportPage(documents, form), fleetEntry(documents, form)};
}

}  // namespace lv::analysis
