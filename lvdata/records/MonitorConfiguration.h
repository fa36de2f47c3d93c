#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/SelfCalibrationSchedule.h>

#include <string>

namespace lv {

/// A monitor as the application knows it: name, model and serial number, colour modes, schedule, and two settings.
///
/// The record's own `writeHLGSystemGamma` is in force for its colour modes when it is printed. Version 2.0.
class LVDATA_EXPORT MonitorConfiguration : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "MonitorConfiguration";

    MonitorConfiguration();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Elements "Name", "Model" and "Serial", written when set, also when empty.
    property<std::string> name;
    property<std::string> model;
    property<std::string> serial;

    /// The colour modes and the schedule, elements "ColorModeSettings" and "SelfCalibrationSchedule": written always,
    /// an unset one with its defaults. The flag is whether the record was found.
    property<ColorModeSettings> colorModeSettings;
    property<SelfCalibrationSchedule> selfCalibrationSchedule;

    /// Numbers of the application's, elements "StandardModeCalibration" and "KeyLock", written when set.
    property<unsigned int> standardModeCalibration;
    property<unsigned int> keyLock;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorConfiguration& left, const MonitorConfiguration& right);
[[nodiscard]] inline bool operator!=(const MonitorConfiguration& left, const MonitorConfiguration& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
