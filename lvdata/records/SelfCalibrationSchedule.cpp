#include <lvdata/core/detail/record.h>
#include <lvdata/records/SelfCalibrationSchedule.h>

#include <algorithm>
#include <initializer_list>

namespace lv {
namespace {

enum Kind : unsigned int {
    everySomeMonths = 0x01,
    everySomeWeeks = 0x02,
    everySomeHours = 0x03,
    once = 0x11,
    everySomeHours1F = 0x1F,
    daily = 0x20,
    weekly = 0x21,
    monthly = 0x32,
    quarterly = 0x33,
    halfYearly = 0x34,
    yearly = 0x35
};

using Kinds = std::initializer_list<unsigned int>;

bool isIn(Kinds kinds, unsigned int kind) {
    return std::count(kinds.begin(), kinds.end(), kind) != 0;
}

constexpr Kinds withWeekOfMonth = {everySomeMonths, monthly, quarterly, halfYearly, yearly};
constexpr Kinds withWeekday = {everySomeMonths, everySomeWeeks, weekly, monthly, quarterly, halfYearly, yearly};
constexpr Kinds withTimeOfDay = {everySomeMonths, everySomeWeeks, once,       daily, weekly,
                                 monthly,         quarterly,      halfYearly, yearly};

// The lines stand in an order that holds for every kind at once.
template <class Io, class Self>
void visitFields(Io& io, Self& self) {
    const unsigned int kind = self.type.value;
    io.writeWhen(isIn({everySomeMonths}, kind)).field("IntervalMonth", self.intervalMonth);
    io.writeWhen(isIn({everySomeWeeks}, kind)).field("IntervalWeek", self.intervalWeek);
    io.writeWhen(isIn({everySomeHours, everySomeHours1F}, kind)).field("IntervalHour", self.intervalHour);
    io.writeWhen(isIn({quarterly}, kind)).field("MonthOfQuarter", self.monthOfQuarter);
    io.writeWhen(isIn({halfYearly}, kind)).field("MonthOfBiannual", self.monthOfBiannual);
    io.writeWhen(isIn({once}, kind)).field("Year", self.year);
    io.writeWhen(isIn({once, yearly}, kind)).field("Month", self.month);
    io.writeWhen(isIn({once}, kind)).field("Day", self.day);
    io.writeWhen(isIn(withWeekOfMonth, kind)).field("ThWeek", self.thWeek);
    io.writeWhen(isIn(withWeekday, kind)).field("Weekday", self.weekday);
    io.writeWhen(isIn(withTimeOfDay, kind)).field("Hour", self.hour);
    io.writeWhen(isIn(withTimeOfDay, kind)).field("Minute", self.minute);
    io.field("Timing", self.timing);
}

constexpr auto visit = [](auto& io, auto& self) {
    auto type = io.writeWhen(self.type.hasValue).element("Type");
    type.attribute("Type", self.type);
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

}  // namespace lv
