#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// The last correlation of the monitor's built-in colour sensor: the reference sensor and the date.
///
/// All three values are kept as text and not converted, not even the sensor's identifier: leading zeros are kept. Each
/// is a child of the root element. Version 1.0.
class LVDATA_EXPORT CorrelationInfo : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "CorrelationInfo";

    /// A fresh record with nothing set, version 1.0.
    CorrelationInfo();

    /// Reads an element "CorrelationInfo". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "CorrelationInfo" to a document or an element and returns it; invalid when `parent` cannot
    /// take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// Identifier of the reference sensor, element "ReferenceSensorID". Written when set.
    property<std::string> referenceSensorID;

    /// Serial number of the reference sensor, element "ReferenceSensorSerial". Written when set.
    property<std::string> referenceSensorSerial;

    /// Date of the correlation, element "CorrelationDate": any text; the format is not recorded. Written when set.
    property<std::string> correlationDate;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const CorrelationInfo& left, const CorrelationInfo& right);
[[nodiscard]] inline bool operator!=(const CorrelationInfo& left, const CorrelationInfo& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
