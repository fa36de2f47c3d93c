#include <lvdata/analysis/figures/History.h>

namespace lv::analysis {

std::string identityOf(const MonitorInfo& monitor) {
    return monitor.uuid.value;
}

void sortByTime(std::vector<Snapshot>&) {}

HistorySeries historyOf(const std::vector<Snapshot>&, const std::string&, const std::string& key) {
    HistorySeries series;
    series.key = key;
    return series;
}

std::optional<double> daysOf(const std::string&) {
    return std::nullopt;
}

}  // namespace lv::analysis
