#pragma once

#include "ExitStatus.h"
#include "InputFiles.h"
#include "PageMaker.h"

#include <lvdata/analysis/monitors/Fleet.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// Where a report of several monitors goes.
struct ReportFolder {
    std::string folder;             // is created if it does not exist
    lv::analysis::ReportForm form;  // of the page with the table
    std::size_t jobs = 1;           // number of pages that are made at a time
    bool failsOnLimits = false;     // whether a figure outside its limit gives the status `found`
};

/// Writes a page for each monitor and then "index.html" with the table of all. A monitor whose page cannot be made is
/// left out, with a message; the status is then `failed`. Throws `Failure` when a page cannot be written.
ExitStatus writeReportFolder(const ReportFolder& report, const std::vector<lv::analysis::MonitorDocuments>& monitors,
                             const PageMaker& maker, const InputFiles& inputs);

}  // namespace tool
