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

/// Everything stored about one monitor. The outermost record: it holds every other one, directly or inside another.
///
/// Each nested record stands in an element of its own name; its flag is whether the record was found. Five of the six
/// are written always, an unset one with its defaults, so a document without them gains them on a round trip; the
/// candela map is written only when it is set. The record's own `writeHLGSystemGamma` is in force for its configuration
/// when it is printed. Version 2.2.
class LVDATA_EXPORT MonitorInfo : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "MonitorInfo";

    MonitorInfo();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The monitor's identifier, any text, element "UUID", written when set.
    property<std::string> uuid;

    /// Written always.
    property<MonitorConfiguration> monitorConfiguration;
    property<CalibrationModeResult> calibrationModeResult;
    property<StandardModeResult> standardModeResult;
    property<AssetInfo> assetInfo;
    property<CorrelationInfo> correlationInfo;

    /// Written when set.
    property<CandelaMap> candelaMap;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorInfo& left, const MonitorInfo& right);
[[nodiscard]] inline bool operator!=(const MonitorInfo& left, const MonitorInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
