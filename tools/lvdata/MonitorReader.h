#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/report/report.h>
#include <lvdata/xml/Limits.h>

#include <optional>
#include <string>

namespace tool {

/// A document of a monitor.
struct MonitorDocument {
    std::string file;                 // as `readInput` takes it
    std::optional<std::string> text;  // of an input that cannot be read a second time
    std::string identity;             // tells monitors apart; empty: not known
    lv::analysis::Snapshot snapshot;
};

/// Reads documents of monitors. Any number of threads may use one.
class MonitorReader {
public:
    /// The limits and units must outlive the reader.
    MonitorReader(const lv::Limits& limits, const lv::analysis::KnownUnits& units) : limits_(limits), units_(units) {}

    /// The monitor of that document with all figures. Throws `Failure` when the document cannot be read, or is not of a
    /// monitor.
    [[nodiscard]] MonitorDocument read(const std::string& file) const;

    /// The same without what is large: tables, patches, steps and maps. The figures that are told of them stay.
    [[nodiscard]] MonitorDocument readSummary(const std::string& file) const;

    /// Reads a document once more, with all that a page about it tells. Throws `Failure` as `read`, and when it is now
    /// about another monitor.
    [[nodiscard]] lv::analysis::ReportedDocument readWhole(const MonitorDocument& document) const;

private:
    [[nodiscard]] MonitorDocument monitorIn(const lv::analysis::Document& document, const std::string& file) const;

    lv::analysis::Catalogue catalogue_{};
    const lv::Limits& limits_;
    const lv::analysis::KnownUnits& units_;
};

/// Drops the data that no figure is told of: what remains has the same lines.
void dropData(lv::analysis::MonitorFigures& figures);

}  // namespace tool
