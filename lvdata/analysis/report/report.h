#pragma once

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/check/Finding.h>
#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/figures/LimitSet.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Pages of HTML about monitors.
///
/// A page is one file: it contains style, pictures, data and a small script, and nothing is fetched. It can be read
/// without the script. Every text of a document is escaped. The same input gives the same bytes.
namespace lv::analysis {

/// A document of the monitor that a page is about.
struct ReportedDocument {
    Snapshot snapshot{};  ///< Its name and its figures.
    Findings findings{};  ///< The findings of `check`, including losses. Only for the latest document.
    std::string json{};   ///< The record as JSON text. Only for the latest document.
};

/// The form of a page.
struct ReportForm {
    std::string title{};                ///< The heading; empty: the name of the monitor.
    std::string date{};                 ///< A date to print, such as that of the report; empty: none.
    std::optional<std::string> mode{};  ///< The index of the only mode to show; no value: all.
    const LimitSet* limits = nullptr;   ///< The limits for the figures; must outlive the call. Not null.
};

/// The page of a monitor. It shows the latest document in full, and the history if there are several. `documents` is in
/// the order of time and not empty.
[[nodiscard]] std::string reportPage(const std::vector<ReportedDocument>& documents, const ReportForm& form);

/// One line of the index of a fleet: the summary of a page.
struct FleetEntry {
    std::string page{};         ///< The file name of the page, relative to the index.
    std::string name{};         ///< The name of the monitor.
    std::string serial{};       ///< Its serial number.
    std::string model{};        ///< Its model.
    std::string when{};         ///< The time of its latest document.
    Verdict verdict{};          ///< As on the page.
    std::string worstMean{};    ///< The greatest mean ΔE00 of the modes on the page, or why there is none.
    std::size_t findings = 0;   ///< The number of findings in the latest document.
    std::size_t documents = 0;  ///< How many documents the page is made of.
};

/// The line of the page that `reportPage` makes of these. The name of the page is not known here.
[[nodiscard]] FleetEntry fleetEntry(const std::vector<ReportedDocument>& documents, const ReportForm& form);

/// The page with a table of all monitors, in the given order, and the result of each.
[[nodiscard]] std::string fleetPage(const std::vector<FleetEntry>& entries, const ReportForm& form);

/// Why a page must not be written to that file: it exists and is not such a page. Empty when it may be written.
[[nodiscard]] std::string whyNotOverwritten(const std::filesystem::path& file);

}  // namespace lv::analysis
