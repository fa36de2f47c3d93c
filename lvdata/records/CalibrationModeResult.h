#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/export.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ProfileData.h>

#include <string>

namespace lv {

/// The outcome of one colour mode's last calibration.
///
/// The nested records `basicData`, `measurementData` and `monitorParameter` are written when their flags are set. After
/// parsing, each flag tells whether its record was found.
class CalibrationModeResultObject {
public:
    /// The emulation look-up table in use. Plain values without flags of their own.
    struct EmulationLUT {
        /// Elements "Availability" and "Index", written always within their parent.
        unsigned int availability = 0;
        unsigned int index = 0;

        /// Element "Name", written when it is not empty.
        std::string name{};

        /// Whether the element "EmulationLUT" was found; it is written when this is set.
        bool present = false;
    };

    /// The kind of colour mode, attribute "Type": written always, whatever text is held.
    property<std::string> type{};

    /// Which mode it is and when it was calibrated, elements "Index", "Name" and "CalibratedTime", written when set.
    property<unsigned int> index{};
    property<std::string> name{};
    property<std::string> calibratedTime{};

    /// The circumstances of the run, element "BasicData".
    BasicData basicData{};
    bool hasBasicData = false;

    /// The measurements taken, element "MeasurementData".
    MeasurementData measurementData{};
    bool hasMeasurementData = false;

    /// Whether the black measurement is valid, element "HasValidMeasuredBlackValue", written when set.
    property<bool> hasValidMeasuredBlackValue{};

    /// The monitor's adjustments, element "MonitorParameter".
    MonitorParameter monitorParameter{};
    bool hasMonitorParameter = false;

    /// What the profile was built from, element "ProfileData": written always. So a row that was read without it gains
    /// a default one in the next text.
    ProfileData profileData{};
    bool hasProfileData = false;

    /// Element "EmulationLUT".
    EmulationLUT emulationLUT{};
};

using EmulationLUT = CalibrationModeResultObject::EmulationLUT;

/// The outcomes of the last calibrations, one element "ColorMode" per colour mode in list order: nothing is merged or
/// sorted, and every such element makes a row, however empty. Version 2.0.
class LVDATA_EXPORT CalibrationModeResult : public DataArrayObject<CalibrationModeResultObject> {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "CalibrationModeResult";

    CalibrationModeResult();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma` and `parsed`.
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
