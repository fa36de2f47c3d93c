#pragma once

#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorInfo.h>
#include <lvdata/records/MonitorParameter.h>

#include <string>
#include <vector>

namespace benchmarks {

/// A monitor to be measured on, and what it is called in the tables.
struct Document {
    std::string name;
    lv::MonitorInfo monitor;

    /// The monitor as compact text without a declaration.
    [[nodiscard]] std::string text() const { return monitor.toXMLString(false, false); }
};

/// A configuration without results: some 7 KB.
[[nodiscard]] Document smallDocument();

/// Ten calibrated colour modes with their tables, curves and measurements: 0.9 MB. A factor multiplies the modes.
[[nodiscard]] Document typicalDocument(unsigned int factor = 1);

/// Hundreds of colour modes with their targets and no tables: 0.8 MB of short elements.
[[nodiscard]] Document wideDocument();

/// Calibrated colour modes with only look-up tables: 0.9 MB of long arrays.
[[nodiscard]] Document arraysDocument();

/// A MonitorParameter whose element holds that many unknown children, before all known ones.
[[nodiscard]] std::string unknownChildrenText(unsigned int children);

/// A MeasurementData of that many rows.
[[nodiscard]] std::string rowsText(unsigned int rows);

/// The four documents that the published ratios are measured on.
[[nodiscard]] std::vector<Document> allDocuments();

}  // namespace benchmarks
