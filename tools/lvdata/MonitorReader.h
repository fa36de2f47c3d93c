#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/monitors/MonitorDocument.h>
#include <lvdata/xml/Limits.h>

#include <string>

namespace tool {

/// Reads documents of monitors. Any number of threads may use one.
class MonitorReader {
public:
    /// The limits and units must outlive the reader.
    MonitorReader(const lv::Limits& limits, const lv::analysis::KnownUnits& units) : limits_(limits), units_(units) {}

    /// The monitor of that document with all figures. Throws `Failure` when the document cannot be read, or does not
    /// describe a monitor.
    [[nodiscard]] lv::analysis::MonitorDocument read(const std::string& file) const;

    /// The same without the large parts: tables, patches, steps and maps. The figures computed from them stay.
    [[nodiscard]] lv::analysis::MonitorDocument readSummary(const std::string& file) const;

    /// Reads a document a second time, with everything that its page shows. Throws `Failure` as `read` does, and when
    /// it is now about a different monitor.
    [[nodiscard]] lv::analysis::ReportedDocument readWhole(const lv::analysis::MonitorDocument& document) const;

private:
    [[nodiscard]] lv::analysis::MonitorDocument monitorIn(const lv::analysis::Document& document,
                                                          const std::string& file) const;

    lv::analysis::Catalogue catalogue_{};
    const lv::Limits& limits_;
    const lv::analysis::KnownUnits& units_;
};

}  // namespace tool
