#pragma once

#include <lvdata/analysis/figures/MonitorFigures.h>

#include <tests/analysis/studio_text.h>

namespace lv::test {

/// The monitor of the sample document, which prints all that the document has.
[[nodiscard]] inline MonitorInfo studioMonitor() {
    MonitorInfo monitor;
    EXPECT_TRUE(monitor.parseXML(studioText()));
    monitor.writeHLGSystemGamma = true;
    return monitor;
}

/// Its figures; the user knows that its maps have five columns.
[[nodiscard]] inline analysis::MonitorFigures studioFigures() {
    analysis::KnownUnits known;
    known.gridWidth = 5;
    return analysis::monitorFigures(studioMonitor(), known);
}

}  // namespace lv::test
