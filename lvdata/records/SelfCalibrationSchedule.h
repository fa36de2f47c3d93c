#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// When a monitor's built-in self-calibration is to run: a kind of schedule and the calendar fields that the kind
/// needs.
///
/// The record carries the fields and computes no run times; how weekdays, weeks and months are counted is the
/// application's. Everything stands inside one element "Type", which is written only when `type` is set. Parsing takes
/// whatever fields there are; writing emits a field when it is set and belongs to the kind:
///
/// | Kind | Fields |
/// |---|---|
/// | 0x01 every some months | interval month, week of the month, weekday, hour, minute |
/// | 0x02 every some weeks | interval week, weekday, hour, minute |
/// | 0x03, 0x1F every some hours | interval hour |
/// | 0x11 once | year, month, day, hour, minute |
/// | 0x20 daily | hour, minute |
/// | 0x21 weekly | weekday, hour, minute |
/// | 0x32 monthly | week of the month, weekday, hour, minute |
/// | 0x33 quarterly | month of the quarter, week of the month, weekday, hour, minute |
/// | 0x34 half-yearly | month of the half-year, week of the month, weekday, hour, minute |
/// | 0x35 yearly | month, week of the month, weekday, hour, minute |
/// | any other | none |
///
/// Version 1.0.
class LVDATA_EXPORT SelfCalibrationSchedule : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "SelfCalibrationSchedule";

    SelfCalibrationSchedule();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The kind, attribute "Type" of the element "Type". Kinds outside the table are kept and written back.
    property<unsigned int> type;

    /// Elements "IntervalMonth", "IntervalWeek", "IntervalHour".
    property<unsigned int> intervalMonth;
    property<unsigned int> intervalWeek;
    property<unsigned int> intervalHour;

    /// Which week of the month, and the weekday, elements "ThWeek" and "Weekday".
    property<unsigned int> thWeek;
    property<unsigned int> weekday;

    /// The time of day, elements "Hour" and "Minute".
    property<unsigned int> hour;
    property<unsigned int> minute;

    /// The date, elements "Year", "Month" and "Day".
    property<unsigned int> year;
    property<unsigned int> month;
    property<unsigned int> day;

    /// The month within a quarter and within half a year, elements "MonthOfQuarter" and "MonthOfBiannual".
    property<unsigned int> monthOfQuarter;
    property<unsigned int> monthOfBiannual;

    /// Free text, element "Timing", written for every kind when set.
    property<std::string> timing;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const SelfCalibrationSchedule& left, const SelfCalibrationSchedule& right);
[[nodiscard]] inline bool operator!=(const SelfCalibrationSchedule& left, const SelfCalibrationSchedule& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
