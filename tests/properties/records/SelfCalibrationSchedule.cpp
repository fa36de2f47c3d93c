#include <tests/properties/records.h>
#include <tests/support/schedule_kinds.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace lv::test {
namespace {

bool isWritten(const ScheduleField& field, const property<unsigned int>& kind) {
    const ElementNames written = elementsOfKind(kind.value);
    return kind.hasValue && std::count(written.begin(), written.end(), field.element) != 0;
}

std::vector<unsigned int> everyKind() {
    std::vector<unsigned int> kinds;
    std::transform(elementsOfKinds.begin(), elementsOfKinds.end(), std::back_inserter(kinds),
                   [](const auto& each) { return each.first; });
    return kinds;
}

}  // namespace

void members(Members& visit, SelfCalibrationSchedule& record) {
    membersOfBase(visit, record);
    visit(record.type, likelyNumbers(everyKind()));
    visit.all(record.intervalMonth, record.intervalWeek, record.intervalHour);
    visit.all(record.thWeek, record.weekday, record.hour, record.minute);
    visit.all(record.year, record.month, record.day);
    visit.all(record.monthOfQuarter, record.monthOfBiannual, record.timing);
}

void lose(SelfCalibrationSchedule& record, bool /*hlgSwitch*/) {
    for (const ScheduleField& field : everyScheduleField) {
        keepWhen(isWritten(field, record.type), record.*field.member);
    }
    keepWhen(record.type.hasValue, record.timing);
    loseInGeneral(record);
}

void read(const Found& element, SelfCalibrationSchedule& record) {
    const Found type = element.child("Type");
    type.attribute("Type", record.type);
    for (const auto& [name, member] : everyScheduleField) {
        type(name.c_str(), record.*member);
    }
    type("Timing", record.timing);
}

}  // namespace lv::test
