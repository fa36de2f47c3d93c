#pragma once

#include <lvdata/records/SelfCalibrationSchedule.h>

#include <array>
#include <map>
#include <string>
#include <vector>

namespace lv::test {

/// A field of a schedule: the name of its element, and where its value is.
struct ScheduleField {
    std::string element;
    property<unsigned int> SelfCalibrationSchedule::*member;
};

inline const std::array everyScheduleField = {
    ScheduleField{"IntervalMonth", &SelfCalibrationSchedule::intervalMonth},
    ScheduleField{"IntervalWeek", &SelfCalibrationSchedule::intervalWeek},
    ScheduleField{"IntervalHour", &SelfCalibrationSchedule::intervalHour},
    ScheduleField{"ThWeek", &SelfCalibrationSchedule::thWeek},
    ScheduleField{"Weekday", &SelfCalibrationSchedule::weekday},
    ScheduleField{"Hour", &SelfCalibrationSchedule::hour},
    ScheduleField{"Minute", &SelfCalibrationSchedule::minute},
    ScheduleField{"Year", &SelfCalibrationSchedule::year},
    ScheduleField{"Month", &SelfCalibrationSchedule::month},
    ScheduleField{"Day", &SelfCalibrationSchedule::day},
    ScheduleField{"MonthOfQuarter", &SelfCalibrationSchedule::monthOfQuarter},
    ScheduleField{"MonthOfBiannual", &SelfCalibrationSchedule::monthOfBiannual}};

using ElementNames = std::vector<std::string>;

/// What each kind writes, `Timing` aside, in the order of writing.
inline const std::map<unsigned int, ElementNames> elementsOfKinds = {
    {1, {"IntervalMonth", "ThWeek", "Weekday", "Hour", "Minute"}},
    {2, {"IntervalWeek", "Weekday", "Hour", "Minute"}},
    {3, {"IntervalHour"}},
    {17, {"Year", "Month", "Day", "Hour", "Minute"}},
    {31, {"IntervalHour"}},
    {32, {"Hour", "Minute"}},
    {33, {"Weekday", "Hour", "Minute"}},
    {50, {"ThWeek", "Weekday", "Hour", "Minute"}},
    {51, {"MonthOfQuarter", "ThWeek", "Weekday", "Hour", "Minute"}},
    {52, {"MonthOfBiannual", "ThWeek", "Weekday", "Hour", "Minute"}},
    {53, {"Month", "ThWeek", "Weekday", "Hour", "Minute"}}};

/// None for kinds that are not listed.
[[nodiscard]] inline ElementNames elementsOfKind(unsigned int kind) {
    const auto found = elementsOfKinds.find(kind);
    return found == elementsOfKinds.end() ? ElementNames() : found->second;
}

}  // namespace lv::test
