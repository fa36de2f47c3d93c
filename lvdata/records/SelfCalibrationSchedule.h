#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// The schedule of a monitor's built-in self-calibration: a kind of schedule and the calendar fields that the kind
/// needs.
///
/// The record holds the fields but does not compute run times. It is not recorded whether weekdays, weeks and months
/// are counted from 0 or from 1. Everything is inside one element "Type", which is written only when `type` is set.
/// Parsing reads all fields, whatever the kind; a field is written when it is set and belongs to the kind:
///
/// | Kind | Fields |
/// |---|---|
/// | 0x01 every N months | interval month, week of the month, weekday, hour, minute |
/// | 0x02 every N weeks | interval week, weekday, hour, minute |
/// | 0x03, 0x1F every N hours | interval hour |
/// | 0x11 once | year, month, day, hour, minute |
/// | 0x20 daily | hour, minute |
/// | 0x21 weekly | weekday, hour, minute |
/// | 0x32 monthly | week of the month, weekday, hour, minute |
/// | 0x33 quarterly | month of the quarter, week of the month, weekday, hour, minute |
/// | 0x34 half-yearly | month of the half-year, week of the month, weekday, hour, minute |
/// | 0x35 yearly | month, week of the month, weekday, hour, minute |
/// | any other | none |
///
/// A kind is stored as a number, for which `types::schedule` has constants; the names in the table follow from its
/// fields. Version 1.0.
class LVDATA_EXPORT SelfCalibrationSchedule : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "SelfCalibrationSchedule";

    /// A fresh record with nothing set, version 1.0.
    SelfCalibrationSchedule();

    /// Reads an element "SelfCalibrationSchedule". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "SelfCalibrationSchedule" to a document or an element and returns it; invalid when `parent`
    /// cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The kind of schedule, attribute "Type" of the element "Type". Kinds outside the table are kept and written back.
    /// Written when set; when it is not set, no other member is written either.
    property<unsigned int> type;

    /// Interval as a number of months, element "IntervalMonth" inside "Type". Written when set, for kind 0x01.
    property<unsigned int> intervalMonth;

    /// Interval as a number of weeks, element "IntervalWeek" inside "Type". Written when set, for kind 0x02.
    property<unsigned int> intervalWeek;

    /// Interval as a number of hours, element "IntervalHour" inside "Type". Written when set, for kinds 0x03 and 0x1F.
    property<unsigned int> intervalHour;

    /// Which week of the month, element "ThWeek" inside "Type". It is not recorded whether it is counted from 0 or 1.
    /// Written when set, for kinds 0x01, 0x32, 0x33, 0x34 and 0x35.
    property<unsigned int> thWeek;

    /// The weekday, element "Weekday" inside "Type". The numbering of the days is not recorded. Written when set, for
    /// kinds 0x01, 0x02, 0x21, 0x32, 0x33, 0x34 and 0x35.
    property<unsigned int> weekday;

    /// The hour of the run, element "Hour" inside "Type". Written when set, for every kind of the table except 0x03 and
    /// 0x1F.
    property<unsigned int> hour;

    /// The minute of the run, element "Minute" inside "Type". Written when set, for every kind of the table except 0x03
    /// and 0x1F.
    property<unsigned int> minute;

    /// The year of the date, element "Year" inside "Type". Written when set, for kind 0x11.
    property<unsigned int> year;

    /// The month, element "Month" inside "Type". It is not recorded whether it is counted from 0 or 1. Written when
    /// set, for kinds 0x11 and 0x35.
    property<unsigned int> month;

    /// The day of the date, element "Day" inside "Type". Written when set, for kind 0x11.
    property<unsigned int> day;

    /// The month within a quarter, element "MonthOfQuarter" inside "Type". It is not recorded whether it is counted
    /// from 0 or 1. Written when set, for kind 0x33.
    property<unsigned int> monthOfQuarter;

    /// The month within half a year, element "MonthOfBiannual" inside "Type". It is not recorded whether it is counted
    /// from 0 or 1. Written when set, for kind 0x34.
    property<unsigned int> monthOfBiannual;

    /// Free text, element "Timing" inside "Type". Written when it and `type` are set, for every kind.
    property<std::string> timing;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const SelfCalibrationSchedule& left, const SelfCalibrationSchedule& right);
[[nodiscard]] inline bool operator!=(const SelfCalibrationSchedule& left, const SelfCalibrationSchedule& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
