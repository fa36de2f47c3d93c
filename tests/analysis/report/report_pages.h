#pragma once

#include <tests/analysis/figures/studio.h>

#include <lvdata/analysis/report/report.h>
#include <lvdata/records/MonitorInfo.h>

#include <string>
#include <vector>

/// Documents and pages that the tests of reports look at.
namespace lv::test {

/// A document of the text, as `lvdata report` hands it over.
[[nodiscard]] analysis::ReportedDocument reportedDocument(const std::string& text, const std::string& name);

/// A document of the record.
[[nodiscard]] analysis::ReportedDocument reportedDocument(const MonitorInfo& monitor, const std::string& name);

/// A form with the default limits.
[[nodiscard]] analysis::ReportForm defaultForm();

/// The page of one document, with the default limits.
[[nodiscard]] std::string pageOf(const analysis::ReportedDocument& document);
[[nodiscard]] std::string pageOf(const MonitorInfo& monitor);

/// A series of so many patches, each with X, Y and Z.
[[nodiscard]] MeasurementData patchSeries(std::size_t patches);

/// The monitor of the example, where each text is another one.
[[nodiscard]] MonitorInfo monitorNamed(const std::string& name);

/// The monitor of the example with so many patches in its first calibrated mode.
[[nodiscard]] MonitorInfo monitorWithPatches(std::size_t patches);

/// The monitor of the example, with the greatest and the least numbers that records can hold.
[[nodiscard]] MonitorInfo monitorWithExtremes();

/// Three documents of the monitor of the example, each a year after the other.
[[nodiscard]] std::vector<analysis::ReportedDocument> threeYears();

/// A page with its file name.
struct NamedPage {
    std::string name;  ///< "studio.html".
    std::string text;  ///< The page.
};

/// Pages of every kind.
[[nodiscard]] std::vector<NamedPage> everyPage();

}  // namespace lv::test
