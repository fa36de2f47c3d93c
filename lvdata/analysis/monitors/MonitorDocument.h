#pragma once

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/report/report.h>

#include <optional>
#include <string>

namespace lv::analysis {

/// A document of a monitor, with what is told of it.
struct MonitorDocument {
    std::string file{};                 ///< Where it can be read again, as its reader has it.
    std::optional<std::string> text{};  ///< Its text, where it cannot be read a second time.
    std::string identity{};             ///< Tells monitors apart, see `identityOf`; empty: not known.
    Snapshot snapshot{};                ///< Its name, its time and its figures.
};

/// The monitor of a document with all figures. No value when it is not of a monitor.
///
/// \param name  what the document is called in messages and on pages
[[nodiscard]] std::optional<MonitorDocument> monitorDocument(const Document& document, const std::string& name,
                                                             const KnownUnits& known = {});

/// Why `monitorDocument` has no value: "a document of AssetInfo is not of a monitor".
[[nodiscard]] std::string whyNoMonitor(const Document& document);

/// Drops what is large: tables, patches, steps and maps. The figures that are told of them stay, so what remains has
/// the same lines.
void dropData(MonitorFigures& figures);

/// All that a page tells of its latest document. The snapshot is that of the document.
[[nodiscard]] ReportedDocument wholeDocument(Snapshot snapshot, const Document& document, const Catalogue& catalogue);

/// Whether a document that was read a second time is about the same monitor at the same time.
[[nodiscard]] bool isSameDocument(const MonitorDocument& first, const MonitorDocument& second);

}  // namespace lv::analysis
