#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// Against which reference sensor the monitor's own colour sensor was last correlated, and when.
///
/// All three values are opaque text, the sensor's identifier included: leading zeros stay. Each is written when it is
/// set, as a child of the root element under its own name in upper camel case. Version 1.0.
class LVDATA_EXPORT CorrelationInfo : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "CorrelationInfo";

    CorrelationInfo();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Identifier of the reference sensor, element "ReferenceSensorID".
    property<std::string> referenceSensorID;

    /// Its serial number, element "ReferenceSensorSerial".
    property<std::string> referenceSensorSerial;

    /// Date of the correlation, element "CorrelationDate"; any text, neither checked nor converted.
    property<std::string> correlationDate;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const CorrelationInfo& left, const CorrelationInfo& right);
[[nodiscard]] inline bool operator!=(const CorrelationInfo& left, const CorrelationInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
