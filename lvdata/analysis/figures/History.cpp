#include <lvdata/analysis/figures/History.h>

#include <lvdata/analysis/dates.h>
#include <lvdata/analysis/figures/stored_values.h>

#include <algorithm>

namespace lv::analysis {
namespace {

/// The first mode of that index; null when there is none.
const ModeFigures* modeOf(const MonitorFigures& figures, const std::string& index) {
    const auto found = std::find_if(figures.modes.begin(), figures.modes.end(),
                                    [&](const ModeFigures& mode) { return mode.index == index; });
    return found != figures.modes.end() ? &*found : nullptr;
}

/// Names the series by a line and adds what was measured.
void addPoint(HistorySeries& series, const FigureLine& line, const std::string& when) {
    series.label = line.label;
    series.unit = line.unit;
    series.decimals = line.decimals;
    series.points.push_back({when, line.measured});
}

}  // namespace

std::string identityOf(const MonitorInfo& monitor) {
    const MonitorConfiguration& configuration = monitor.monitorConfiguration.value;
    const std::string uuid = textOf(monitor.uuid);
    const std::string serial = textOf(configuration.serial);
    return !uuid.empty() ? uuid : serial.empty() ? "" : textOf(configuration.model) + ' ' + serial;
}

void sortByTime(std::vector<Snapshot>& snapshots) {
    const bool allHaveDates = std::all_of(snapshots.begin(), snapshots.end(),
                                          [](const Snapshot& snapshot) { return daysOf(snapshot.when).has_value(); });
    if (allHaveDates) {
        std::stable_sort(snapshots.begin(), snapshots.end(), [](const Snapshot& left, const Snapshot& right) {
            return *daysOf(left.when) < *daysOf(right.when);
        });
    }
}

HistorySeries historyOf(const std::vector<Snapshot>& snapshots, const std::string& modeIndex, const std::string& key) {
    HistorySeries series;
    series.key = key;
    for (const Snapshot& snapshot : snapshots) {
        const ModeFigures* const mode = modeOf(snapshot.figures, modeIndex);
        if (mode == nullptr) {
            continue;
        }
        for (const FigureLine& line : figureLines(*mode, snapshot.figures.known)) {
            if (line.key == key) {
                addPoint(series, line, mode->calibratedTime);
            }
        }
    }
    return series;
}

std::string latestTimeOf(const MonitorFigures& figures) {
    std::string latest;
    for (const ModeFigures& mode : figures.modes) {
        const auto days = daysOf(mode.calibratedTime);
        const auto before = daysOf(latest);
        const bool isFirst = latest.empty() || (days && !before);
        latest = isFirst || (days && before && *days > *before) ? mode.calibratedTime : latest;
    }
    return latest;
}

std::optional<double> daysOf(const std::string& when) {
    return daysSince1970(when);
}

}  // namespace lv::analysis
