#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/SelfCalibrationSchedule.h>

namespace lv::test {

inline void members(MemberList& list, SelfCalibrationSchedule& record) {
    list.addBase(record);
    list.add("type", record.type);
    list.add("intervalMonth", record.intervalMonth);
    list.add("intervalWeek", record.intervalWeek);
    list.add("intervalHour", record.intervalHour);
    list.add("monthOfQuarter", record.monthOfQuarter);
    list.add("monthOfBiannual", record.monthOfBiannual);
    list.add("year", record.year);
    list.add("month", record.month);
    list.add("day", record.day);
    list.add("thWeek", record.thWeek);
    list.add("weekday", record.weekday);
    list.add("hour", record.hour);
    list.add("minute", record.minute);
    list.add("timing", record.timing);
}

}  // namespace lv::test
