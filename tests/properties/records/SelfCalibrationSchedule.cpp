#include <tests/properties/records.h>

#include <map>
#include <set>
#include <utility>
#include <vector>

namespace lv::test {
namespace {

using Fields = std::set<std::string>;

/// What each kind writes, `Timing` aside.
const std::map<unsigned int, Fields>& fieldsOfKinds() {
    static const std::map<unsigned int, Fields> fields = {
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
        {53, {"Month", "ThWeek", "Weekday", "Hour", "Minute"}},
    };
    return fields;
}

Fields writtenFields(const property<unsigned int>& kind) {
    const auto found = fieldsOfKinds().find(kind.value);
    return kind.hasValue && found != fieldsOfKinds().end() ? found->second : Fields();
}

using Named = std::vector<std::pair<const char*, property<unsigned int>*>>;

Named fieldsOf(SelfCalibrationSchedule& record) {
    return {
        {"IntervalMonth", &record.intervalMonth},
        {"IntervalWeek", &record.intervalWeek},
        {"IntervalHour", &record.intervalHour},
        {"MonthOfQuarter", &record.monthOfQuarter},
        {"MonthOfBiannual", &record.monthOfBiannual},
        {"Year", &record.year},
        {"Month", &record.month},
        {"Day", &record.day},
        {"ThWeek", &record.thWeek},
        {"Weekday", &record.weekday},
        {"Hour", &record.hour},
        {"Minute", &record.minute},
    };
}

}  // namespace

void members(Members& visit, SelfCalibrationSchedule& record) {
    membersOfBase(visit, record);
    visit(record.type, likelyNumbers({1, 2, 3, 17, 31, 32, 33, 50, 51, 52, 53}));
    visit.all(record.intervalMonth, record.intervalWeek, record.intervalHour);
    visit.all(record.thWeek, record.weekday, record.hour, record.minute);
    visit.all(record.year, record.month, record.day);
    visit.all(record.monthOfQuarter, record.monthOfBiannual, record.timing);
}

void lose(SelfCalibrationSchedule& record, bool /*hlgSwitch*/) {
    const Fields written = writtenFields(record.type);
    for (const auto& [name, field] : fieldsOf(record)) {
        keepWhen(written.count(name) != 0, *field);
    }
    keepWhen(record.type.hasValue, record.timing);
    loseInGeneral(record);
}

void read(const Found& element, SelfCalibrationSchedule& record) {
    const Found type = element.child("Type");
    type.attribute("Type", record.type);
    for (const auto& [name, field] : fieldsOf(record)) {
        type(name, *field);
    }
    type("Timing", record.timing);
}

}  // namespace lv::test
