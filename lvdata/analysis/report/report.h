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
/// A page is one file: style, pictures, data and the little script are in it, and nothing is fetched. It can be read
/// without the script. Every text of a document is escaped. The same input gives the same bytes.
namespace lv::analysis {

/// A document of the monitor that a page is about.
struct ReportedDocument {
    Snapshot snapshot{};  ///< Its name and its figures.
    Findings findings{};  ///< What `check` finds in it, with what printing it again would lose. Of the latest alone.
    std::string json{};   ///< The record as JSON text. Of the latest alone.
};

/// How a page is made.
struct ReportForm {
    std::string title{};                ///< The heading; empty: the name of the monitor.
    std::string date{};                 ///< A date to print, such as that of the report; empty: none.
    std::optional<std::string> mode{};  ///< The index of the only mode to tell of; no value: all.
    const LimitSet* limits = nullptr;   ///< What figures are judged by; must outlive the call. Not null.
};

/// The page of a monitor. The latest document is told in full; when there are several, the page has their history.
/// `documents` is in the order of time and not empty.
[[nodiscard]] std::string reportPage(const std::vector<ReportedDocument>& documents, const ReportForm& form);

/// One line of the index of a fleet: a page in short.
struct FleetEntry {
    std::string page{};         ///< The file name of the page, relative to the index.
    std::string name{};         ///< The name of the monitor.
    std::string serial{};       ///< Its serial number.
    std::string model{};        ///< Its model.
    std::string when{};         ///< The time of its latest document.
    Verdict verdict{};          ///< As on the page.
    std::string worstMean{};    ///< The greatest mean ΔE00 of the modes on the page, or why there is none.
    std::size_t findings = 0;   ///< How many there are in the latest document.
    std::size_t documents = 0;  ///< How many documents the page is made of.
};

/// The line of the page that `reportPage` makes of these. The name of the page is not known here.
[[nodiscard]] FleetEntry fleetEntry(const std::vector<ReportedDocument>& documents, const ReportForm& form);

/// The page with a table of all monitors, in the given order, and how each does.
[[nodiscard]] std::string fleetPage(const std::vector<FleetEntry>& entries, const ReportForm& form);

/// Why none of the pages above may be written to that file: it is there and does not begin as they do. Empty when it
/// may be written.
[[nodiscard]] std::string whyNotOverwritten(const std::filesystem::path& file);

}  // namespace lv::analysis
