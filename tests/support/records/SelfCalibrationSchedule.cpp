#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const SelfCalibrationSchedule& record) {
    describeBase(out, record);
    out.member("type", record.type);
    out.member("intervalMonth", record.intervalMonth);
    out.member("intervalWeek", record.intervalWeek);
    out.member("intervalHour", record.intervalHour);
    out.member("thWeek", record.thWeek);
    out.member("weekday", record.weekday);
    out.member("hour", record.hour);
    out.member("minute", record.minute);
    out.member("year", record.year);
    out.member("month", record.month);
    out.member("day", record.day);
    out.member("monthOfQuarter", record.monthOfQuarter);
    out.member("monthOfBiannual", record.monthOfBiannual);
    out.member("timing", record.timing);
}

template <>
SelfCalibrationSchedule filled<SelfCalibrationSchedule>() {
    SelfCalibrationSchedule record;
    fillBase(record);
    record.type.set(0x35);
    record.intervalMonth.set(2);
    record.intervalWeek.set(3);
    record.intervalHour.set(500);
    record.thWeek.set(4);
    record.weekday.set(5);
    record.hour.set(21);
    record.minute.set(45);
    record.year.set(2026);
    record.month.set(11);
    record.day.set(28);
    record.monthOfQuarter.set(1);
    record.monthOfBiannual.set(6);
    record.timing.set("Timing 7");
    return record;
}

template <>
SelfCalibrationSchedule filledAndParsedBack<SelfCalibrationSchedule>() {
    auto record = filled<SelfCalibrationSchedule>();
    record.writeHLGSystemGamma = false;
    record.intervalMonth = {};
    record.intervalWeek = {};
    record.intervalHour = {};
    record.year = {};
    record.day = {};
    record.monthOfQuarter = {};
    record.monthOfBiannual = {};
    return record;
}

}  // namespace lv::test
