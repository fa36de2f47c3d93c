#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/export.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ProfileData.h>

#include <string>

namespace lv {

/// The result of one colour mode's last calibration, element "ColorMode".
///
/// Unless stated otherwise, a member is a child of that element. The nested records `basicData`, `measurementData` and
/// `monitorParameter` are written when their flags are set: if you fill one, set its flag, too. `profileData` is always
/// written.
class CalibrationModeResultObject {
public:
    /// The emulation look-up table in use. Plain values without flags: when `present` is set, a missing number is
    /// written as 0.
    struct EmulationLUT {
        /// Availability of the table, element "Availability" inside "EmulationLUT". The meaning of the number is not
        /// recorded. Written whenever "EmulationLUT" is.
        unsigned int availability = 0;

        /// Which table it is, element "Index" inside "EmulationLUT". Written whenever "EmulationLUT" is.
        unsigned int index = 0;

        /// Name of the table, element "Name" inside "EmulationLUT". Written when it is not empty.
        std::string name{};

        /// Whether there is a table: the element "EmulationLUT" is written when this is set. After parsing: whether the
        /// element was found.
        bool present = false;
    };

    /// The kind of colour mode, attribute "Type". Always written, whatever the flag; empty in a fresh row. The possible
    /// texts are defined by the application.
    property<std::string> type{};

    /// Which colour mode it is, element "Index". Rows are neither merged nor sorted by it. Written when set.
    property<unsigned int> index{};

    /// Name of the colour mode, element "Name". Written when set.
    property<std::string> name{};

    /// When the mode was calibrated, element "CalibratedTime": any text; the format is not recorded. Written when set.
    property<std::string> calibratedTime{};

    /// The circumstances of the run, element "BasicData". Written when `hasBasicData` is set.
    BasicData basicData{};

    /// Whether `basicData` is set. After parsing: whether its element was found.
    bool hasBasicData = false;

    /// The measurements taken, element "MeasurementData". Written when `hasMeasurementData` is set.
    MeasurementData measurementData{};

    /// Whether `measurementData` is set. After parsing: whether its element was found.
    bool hasMeasurementData = false;

    /// Whether the black measurement is valid, element "HasValidMeasuredBlackValue". Written when set, even if false.
    property<bool> hasValidMeasuredBlackValue{};

    /// The monitor's adjustments, element "MonitorParameter". Written when `hasMonitorParameter` is set.
    MonitorParameter monitorParameter{};

    /// Whether `monitorParameter` is set. After parsing: whether its element was found.
    bool hasMonitorParameter = false;

    /// The data that the profile was built from, element "ProfileData". Always written: if a row was read without it,
    /// printing adds it with default values.
    ProfileData profileData{};

    /// After parsing: whether the element "ProfileData" was found. Writing ignores it.
    bool hasProfileData = false;

    /// The emulation look-up table in use, element "EmulationLUT". Written when its member `present` is set.
    EmulationLUT emulationLUT{};
};

/// A shorter name for the emulation look-up table of a row.
using EmulationLUT = CalibrationModeResultObject::EmulationLUT;

/// The results of the last calibrations, one element "ColorMode" per colour mode in list order. Nothing is merged or
/// sorted, and every such element becomes a row, even an empty one. Version 2.0.
class LVDATA_EXPORT CalibrationModeResult : public DataArrayObject<CalibrationModeResultObject> {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "CalibrationModeResult";

    /// A fresh record without rows, version 2.0.
    CalibrationModeResult();

    /// Reads an element "CalibrationModeResult", and replaces all rows. False, with nothing changed, when the element
    /// has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "CalibrationModeResult" to a document or an element and returns it; invalid when `parent`
    /// cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma` and `parsed`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const CalibrationModeResultObject::EmulationLUT& left,
                                            const CalibrationModeResultObject::EmulationLUT& right);
[[nodiscard]] inline bool operator!=(const CalibrationModeResultObject::EmulationLUT& left,
                                     const CalibrationModeResultObject::EmulationLUT& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const CalibrationModeResultObject& left,
                                            const CalibrationModeResultObject& right);
[[nodiscard]] inline bool operator!=(const CalibrationModeResultObject& left,
                                     const CalibrationModeResultObject& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const CalibrationModeResult& left, const CalibrationModeResult& right);
[[nodiscard]] inline bool operator!=(const CalibrationModeResult& left, const CalibrationModeResult& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
