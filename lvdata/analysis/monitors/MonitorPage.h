#pragma once

#include <lvdata/analysis/report/report.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// The page of a monitor, and its line in the table of all.
struct MonitorPage {
    std::string text{};  ///< The page.
    FleetEntry entry{};  ///< The line, without the name of the page.

    /// Whether no figure of the page is outside its limit.
    [[nodiscard]] bool isWithinLimits() const { return entry.verdict.failed == 0; }
};

/// The page that `reportPage` makes of these documents. Documents are named by their file names without the folder,
/// which differs between machines. If the form requests a mode, the latest document must have it.
[[nodiscard]] MonitorPage monitorPage(std::vector<ReportedDocument> documents, const ReportForm& form);

}  // namespace lv::analysis
