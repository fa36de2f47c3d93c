#include <lvdata/core/detail/record.h>
#include <lvdata/records/SelfCalibrationSchedule.h>
#include <lvdata/records/types.h>

#include <array>

namespace lv {
namespace {

using detail::isSet;
using detail::oneOf;
namespace schedule = types::schedule;

constexpr std::array<unsigned int, 5> withWeekOfMonth = {schedule::everySomeMonths, schedule::monthly,
                                                         schedule::quarterly, schedule::halfYearly, schedule::yearly};
constexpr std::array<unsigned int, 7> withWeekday = {
    schedule::everySomeMonths, schedule::everySomeWeeks, schedule::weekly, schedule::monthly,
    schedule::quarterly,       schedule::halfYearly,     schedule::yearly};
constexpr std::array<unsigned int, 9> withTimeOfDay = {
    schedule::everySomeMonths, schedule::everySomeWeeks, schedule::once,       schedule::daily, schedule::weekly,
    schedule::monthly,         schedule::quarterly,      schedule::halfYearly, schedule::yearly};

// The order of the lines fits every kind.
template <class Io, class Self>
void visitFields(Io& io, Self& self) {
    const unsigned int& kind = self.type.value;
    io.writeWhen(oneOf(kind, schedule::everySomeMonths)).field("IntervalMonth", self.intervalMonth);
    io.writeWhen(oneOf(kind, schedule::everySomeWeeks)).field("IntervalWeek", self.intervalWeek);
    io.writeWhen(oneOf(kind, schedule::everySomeHours, schedule::everySomeHours1F))
        .field("IntervalHour", self.intervalHour);
    io.writeWhen(oneOf(kind, schedule::quarterly)).field("MonthOfQuarter", self.monthOfQuarter);
    io.writeWhen(oneOf(kind, schedule::halfYearly)).field("MonthOfBiannual", self.monthOfBiannual);
    io.writeWhen(oneOf(kind, schedule::once)).field("Year", self.year);
    io.writeWhen(oneOf(kind, schedule::once, schedule::yearly)).field("Month", self.month);
    io.writeWhen(oneOf(kind, schedule::once)).field("Day", self.day);
    io.writeWhen(oneOf(kind, withWeekOfMonth)).field("ThWeek", self.thWeek);
    io.writeWhen(oneOf(kind, withWeekday)).field("Weekday", self.weekday);
    io.writeWhen(oneOf(kind, withTimeOfDay)).field("Hour", self.hour);
    io.writeWhen(oneOf(kind, withTimeOfDay)).field("Minute", self.minute);
    io.field("Timing", self.timing);
}

constexpr auto visit = [](auto& io, auto& self) {
    auto type = io.writeWhen(isSet(self.type)).element("Type");
    type.attribute("Type", self.type, quantities::identifier);
    visitFields(type, self);
};

}  // namespace

SelfCalibrationSchedule::SelfCalibrationSchedule() : DataObject(1, 0) {}

bool SelfCalibrationSchedule::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement SelfCalibrationSchedule::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description SelfCalibrationSchedule::describe() {
    return detail::describeRecord<SelfCalibrationSchedule>(rootElementName, visit);
}

bool operator==(const SelfCalibrationSchedule& left, const SelfCalibrationSchedule& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
