#pragma once

#include <lvdata/analysis/monitors/Fleet.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// A file name for the page of each monitor, safe on every file system: of letters, digits, "-", "_" and ".", each
/// once whatever the case of its letters, never "index.html".
[[nodiscard]] std::vector<std::string> pageNames(const std::vector<MonitorDocuments>& monitors);

}  // namespace lv::analysis
