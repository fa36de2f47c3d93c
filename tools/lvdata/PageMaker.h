#pragma once

#include "Fleet.h"

#include <lvdata/analysis/report/report.h>

#include <string>

namespace tool {

/// The page of a monitor, and its line in the table of all.
struct MonitorPage {
    std::string text;
    lv::analysis::FleetEntry entry;  // without the name of the page

    /// Whether no figure of the page is beyond its limit.
    [[nodiscard]] bool isWithinLimits() const { return entry.verdict.failed == 0; }
};

/// Makes pages. Any number of threads may use one.
class PageMaker {
public:
    /// The reader must outlive the maker.
    PageMaker(const MonitorReader& reader, const lv::analysis::ReportForm& form) : reader_(reader), form_(form) {}

    /// Reads the latest document once more. Throws `Failure` when that is not possible, and when it does not have the
    /// only mode to tell of.
    [[nodiscard]] MonitorPage pageOf(const MonitorDocuments& documents) const;

private:
    const MonitorReader& reader_;
    lv::analysis::ReportForm form_;
};

}  // namespace tool
