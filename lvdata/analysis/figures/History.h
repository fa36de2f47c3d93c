#pragma once

#include <lvdata/analysis/figures/MonitorFigures.h>
#include <lvdata/analysis/figures/lines.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// A monitor at one time: one of its documents.
struct Snapshot {
    std::string document{};    ///< The name of the document, such as its path.
    std::string when{};        ///< The latest time of a calibration in it, as the record has it; may be empty.
    MonitorFigures figures{};  ///< Its figures.
};

/// A figure of one mode over all documents of a monitor.
struct HistorySeries {
    std::string key{};    ///< The `FigureLine::key`.
    std::string label{};  ///< For people.
    std::string unit{};   ///< As in the line.
    int decimals = 0;     ///< As in the line.

    /// One point.
    struct Point {
        std::string when{};  ///< When the mode was calibrated, as the record has it.
        Figure figure{};     ///< The figure then.
    };
    std::vector<Point> points{};  ///< Of each document that has the mode, in their order.
};

/// The identity of a monitor: the UUID, or else the serial number with the model; empty when there is neither.
[[nodiscard]] std::string identityOf(const MonitorInfo& monitor);

/// The latest time of a calibration, for `Snapshot::when`: of those that are dates, otherwise the first that is not
/// empty.
[[nodiscard]] std::string latestTimeOf(const MonitorFigures& figures);

/// Sorts the documents of one monitor by time: by date if all have one that can be read (year first, as `isDate` takes
/// it); otherwise the order stays.
void sortByTime(std::vector<Snapshot>& snapshots);

/// The series of all figures of a mode (by its index) over all documents, in the order of `figureLines`. Empty when no
/// document has the mode.
[[nodiscard]] std::vector<HistorySeries> historyOf(const std::vector<Snapshot>& snapshots,
                                                   const std::string& modeIndex);

/// The series of a figure; null when there is none.
[[nodiscard]] const HistorySeries* seriesOf(const std::vector<HistorySeries>& history, std::string_view key);

/// A date (see `daysSince1970`) as days since 1970-01-01 and parts of a day; no value when it is not a date.
[[nodiscard]] std::optional<double> daysOf(const std::string& when);

}  // namespace lv::analysis
