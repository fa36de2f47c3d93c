#pragma once

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/report/report.h>

#include <optional>
#include <string>

namespace lv::analysis {

/// A document of a monitor, with its figures.
struct MonitorDocument {
    std::string file{};                 ///< Where it can be read again, as given to its reader.
    std::optional<std::string> text{};  ///< Its text, if it cannot be read a second time.
    std::string identity{};             ///< Identifies the monitor, see `identityOf`; empty: not known.
    Snapshot snapshot{};                ///< Its name, its time and its figures.
};

/// The monitor of a document with all figures. No value when it does not describe a monitor.
///
/// \param name  the name of the document in messages and on pages
[[nodiscard]] std::optional<MonitorDocument> monitorDocument(const Document& document, const std::string& name,
                                                             const KnownUnits& known = {});

/// Why `monitorDocument` has no value: "a document of AssetInfo does not describe a monitor".
[[nodiscard]] std::string whyNoMonitor(const Document& document);

/// Drops the large parts: tables, patches, steps and maps. The figures computed from them stay, so the lines are still
/// the same.
void dropData(MonitorFigures& figures);

/// Everything that a page shows of its latest document. The snapshot is that of the document.
[[nodiscard]] ReportedDocument wholeDocument(Snapshot snapshot, const Document& document, const Catalogue& catalogue);

/// Whether a document that was read a second time is about the same monitor at the same time.
[[nodiscard]] bool isSameDocument(const MonitorDocument& first, const MonitorDocument& second);

}  // namespace lv::analysis
