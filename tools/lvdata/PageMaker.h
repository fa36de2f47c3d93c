#pragma once

#include "MonitorReader.h"

#include <lvdata/analysis/monitors/Fleet.h>
#include <lvdata/analysis/monitors/MonitorPage.h>

#include <utility>

namespace tool {

/// Makes pages. Any number of threads may use one.
class PageMaker {
public:
    /// The reader must outlive the maker.
    PageMaker(const MonitorReader& reader, lv::analysis::ReportForm form) : reader_(reader), form_(std::move(form)) {}

    /// Reads the latest document a second time. Throws `Failure` when that is not possible, and when it lacks the
    /// requested mode.
    [[nodiscard]] lv::analysis::MonitorPage pageOf(const lv::analysis::MonitorDocuments& documents) const;

private:
    const MonitorReader& reader_;
    lv::analysis::ReportForm form_;
};

}  // namespace tool
