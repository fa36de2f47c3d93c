#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>
#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MonitorConfiguration.h>
#include <lvdata/records/StandardModeResult.h>

#include <string>

namespace lv {

/// Everything stored about one monitor. The outermost record: it holds all other records, directly or nested.
///
/// All members are children of the root element. After parsing, the flag of a nested record says whether its element
/// was found. Five of the six are always written, with their defaults when not set: if a document lacks them, reading
/// and printing adds them. The candela map is written only when it is set.
///
/// When this record is printed, its `writeHLGSystemGamma` applies to its configuration. Version 2.2.
class LVDATA_EXPORT MonitorInfo : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "MonitorInfo";

    /// A fresh record with nothing set, version 2.2.
    MonitorInfo();

    /// Reads an element "MonitorInfo". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "MonitorInfo" to a document or an element and returns it; invalid when `parent` cannot take
    /// it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The monitor's identifier, element "UUID": any text, neither checked nor converted. Written when set.
    property<std::string> uuid;

    /// The monitor's name, colour modes and schedule, element "MonitorConfiguration". Always written, whatever the
    /// flag.
    property<MonitorConfiguration> monitorConfiguration;

    /// The last calibration of each colour mode, element "CalibrationModeResult". Always written, whatever the flag.
    property<CalibrationModeResult> calibrationModeResult;

    /// The measurement of the standard mode, element "StandardModeResult". Always written, whatever the flag.
    property<StandardModeResult> standardModeResult;

    /// Labels that the owner attached to the monitor, element "AssetInfo". Always written, whatever the flag.
    property<AssetInfo> assetInfo;

    /// The last correlation of the monitor's built-in sensor, element "CorrelationInfo". Always written, whatever the
    /// flag.
    property<CorrelationInfo> correlationInfo;

    /// Maps of luminance over the screen, element "CandelaMap". Written when set.
    property<CandelaMap> candelaMap;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorInfo& left, const MonitorInfo& right);
[[nodiscard]] inline bool operator!=(const MonitorInfo& left, const MonitorInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
