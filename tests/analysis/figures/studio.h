#pragma once

#include <lvdata/analysis/figures/MonitorFigures.h>

#include <tests/support/golden.h>

#include <filesystem>
#include <string>

namespace lv::test {

/// The monitor of the sample document.
[[nodiscard]] inline MonitorInfo studioMonitor() {
    MonitorInfo monitor;
    EXPECT_TRUE(monitor.parseXML(contentOf(std::filesystem::path(LVDATA_SAMPLES_DIR) / "studio.xml")));
    return monitor;
}

/// Its figures; the user knows that its maps have five columns.
[[nodiscard]] inline analysis::MonitorFigures studioFigures() {
    analysis::KnownUnits known;
    known.gridWidth = 5;
    return analysis::monitorFigures(studioMonitor(), known);
}

}  // namespace lv::test
