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

/// A series without points for each line.
std::vector<HistorySeries> seriesFor(const std::vector<FigureLine>& lines) {
    std::vector<HistorySeries> history;
    for (const FigureLine& line : lines) {
        history.push_back({line.key, line.label, line.unit, line.decimals, {}});
    }
    return history;
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

std::vector<HistorySeries> historyOf(const std::vector<Snapshot>& snapshots, const std::string& modeIndex) {
    std::vector<HistorySeries> history;
    for (const Snapshot& snapshot : snapshots) {
        const ModeFigures* const mode = modeOf(snapshot.figures, modeIndex);
        if (mode == nullptr) {
            continue;
        }
        const std::vector<FigureLine> lines = figureLines(*mode, snapshot.figures.known);
        if (history.empty()) {
            history = seriesFor(lines);
        }
        for (std::size_t index = 0; index < lines.size(); ++index) {
            history[index].points.push_back({mode->calibratedTime, lines[index].measured});
        }
    }
    return history;
}

const HistorySeries* seriesOf(const std::vector<HistorySeries>& history, std::string_view key) {
    const auto found =
        std::find_if(history.begin(), history.end(), [&](const HistorySeries& series) { return series.key == key; });
    return found != history.end() ? &*found : nullptr;
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
