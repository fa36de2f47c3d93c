#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/SelfCalibrationSchedule.h>

#include <string>

namespace lv {

/// A monitor as the application knows it: name, model and serial number, colour modes, schedule, and two settings.
///
/// All members are children of the root element. When this record is printed, its `writeHLGSystemGamma` applies to its
/// colour modes. Version 2.0.
class LVDATA_EXPORT MonitorConfiguration : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "MonitorConfiguration";

    /// A fresh record with nothing set, version 2.0.
    MonitorConfiguration();

    /// Reads an element "MonitorConfiguration". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "MonitorConfiguration" to a document or an element and returns it; invalid when `parent`
    /// cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The monitor's name, element "Name". Written when set, even if empty.
    property<std::string> name;

    /// The monitor's model, element "Model". Written when set, even if empty.
    property<std::string> model;

    /// The monitor's serial number, element "Serial", kept as text. Written when set, even if empty.
    property<std::string> serial;

    /// The colour modes, element "ColorModeSettings". Always written, whatever the flag. After parsing, the flag says
    /// whether the element was found.
    property<ColorModeSettings> colorModeSettings;

    /// The schedule of the self-calibration, element "SelfCalibrationSchedule". Always written, whatever the flag.
    /// After parsing, the flag says whether the element was found.
    property<SelfCalibrationSchedule> selfCalibrationSchedule;

    /// A setting of the monitor, element "StandardModeCalibration". The meaning of the number is not recorded. Written
    /// when set.
    property<unsigned int> standardModeCalibration;

    /// A setting of the monitor, element "KeyLock". The meaning of the number is not recorded. Written when set.
    property<unsigned int> keyLock;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorConfiguration& left, const MonitorConfiguration& right);
[[nodiscard]] inline bool operator!=(const MonitorConfiguration& left, const MonitorConfiguration& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
