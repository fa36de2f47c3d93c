#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>
#include <lvdata/records/types.h>

#include <algorithm>

namespace lv::analysis {
namespace {

struct MonitorRow {
    const Parts& parts;
};

using Text = property<std::string>;

/// A text of the configuration, when the document has one.
template <Text MonitorConfiguration::*Member>
void giveConfiguration(const MonitorRow& row, Cell& cell) {
    if (row.parts.configuration != nullptr) {
        cell.text(row.parts.configuration->*Member);
    }
}

template <Text AssetInfo::*Member>
void giveAsset(const MonitorRow& row, Cell& cell) {
    if (row.parts.assets != nullptr) {
        cell.text(row.parts.assets->*Member);
    }
}

/// An interval of the schedule, when it is of that kind: what belongs to another kind is not written.
template <unsigned int Kind, property<unsigned int> SelfCalibrationSchedule::*Interval>
void giveInterval(const MonitorRow& row, Cell& cell) {
    if (row.parts.schedule != nullptr && row.parts.schedule->type.value == Kind) {
        cell.index(row.parts.schedule->*Interval);
    }
}

void giveHours(const MonitorRow& row, Cell& cell) {
    giveInterval<types::schedule::everySomeHours, &SelfCalibrationSchedule::intervalHour>(row, cell);
    giveInterval<types::schedule::everySomeHours1F, &SelfCalibrationSchedule::intervalHour>(row, cell);
}

bool isCalibrated(const CalibrationModeResultObject& mode) {
    return mode.calibratedTime.hasValue && !mode.calibratedTime.value.empty();
}

void giveCalibratedModes(const MonitorRow& row, Cell& cell) {
    if (row.parts.results != nullptr) {
        const auto& modes = row.parts.results->objects;
        cell.count(static_cast<std::size_t>(std::count_if(modes.begin(), modes.end(), &isCalibrated)));
    }
}

void giveLastCalibration(const MonitorRow& row, Cell& cell) {
    std::string last;
    if (row.parts.results != nullptr) {
        for (const CalibrationModeResultObject& mode : row.parts.results->objects) {
            last = isCalibrated(mode) ? std::max(last, mode.calibratedTime.value) : last;
        }
    }
    if (!last.empty()) {
        cell.text(last);
    }
}

const std::vector<ColumnOf<MonitorRow>>& columns() {
    static const std::vector<ColumnOf<MonitorRow>> all = withOrigin<MonitorRow>({
        {{"name", "", "name of the monitor"}, &giveConfiguration<&MonitorConfiguration::name>},
        {{"model", "", "model of the monitor"}, &giveConfiguration<&MonitorConfiguration::model>},
        {{"schedule_type", "", "kind of the schedule of self-calibration, as a number", Values::integer},
         [](const MonitorRow& row, Cell& cell) {
             if (row.parts.schedule != nullptr) {
                 cell.index(row.parts.schedule->type);
             }
         }},
        {{"schedule_interval_months", "months", "interval in months, if the schedule has that kind", Values::integer},
         &giveInterval<types::schedule::everySomeMonths, &SelfCalibrationSchedule::intervalMonth>},
        {{"schedule_interval_weeks", "weeks", "interval in weeks, if the schedule has that kind", Values::integer},
         &giveInterval<types::schedule::everySomeWeeks, &SelfCalibrationSchedule::intervalWeek>},
        {{"schedule_interval_hours", "hours", "interval in hours, if the schedule has that kind", Values::integer},
         &giveHours},
        {{"asset1", "", "first asset label; its meaning is not recorded"}, &giveAsset<&AssetInfo::asset1>},
        {{"asset2", "", "second asset label"}, &giveAsset<&AssetInfo::asset2>},
        {{"asset3", "", "third asset label"}, &giveAsset<&AssetInfo::asset3>},
        {{"asset4", "", "fourth asset label"}, &giveAsset<&AssetInfo::asset4>},
        {{"asset5", "", "fifth asset label"}, &giveAsset<&AssetInfo::asset5>},
        {{"asset6", "", "sixth asset label"}, &giveAsset<&AssetInfo::asset6>},
        {{"asset7", "", "seventh asset label"}, &giveAsset<&AssetInfo::asset7>},
        {{"asset8", "", "eighth asset label"}, &giveAsset<&AssetInfo::asset8>},
        {{"modes", "", "number of colour modes that are set up", Values::integer},
         [](const MonitorRow& row, Cell& cell) {
             if (row.parts.settings != nullptr) {
                 cell.count(row.parts.settings->objects.size());
             }
         }},
        {{"calibrated_modes", "", "number of results with a time of calibration", Values::integer},
         &giveCalibratedModes},
        {{"last_calibration", "",
          "greatest of these times as text: the latest one, if all have the form 2024-05-02T09:31:00"},
         &giveLastCalibration},
    });
    return all;
}

}  // namespace

std::vector<Column> monitorColumns() {
    return columnsOf(columns());
}

void addMonitorRows(const Parts& parts, Sink& sink) {
    if (parts.monitor != nullptr || parts.configuration != nullptr || parts.assets != nullptr) {
        addRow(columns(), {parts}, sink);
    }
}

}  // namespace lv::analysis
