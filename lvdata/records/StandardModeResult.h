#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {

/// The result of measuring the monitor in its standard, uncalibrated mode.
///
/// All members are children of the root element. A nested record is written when its flag is set: if you fill one, set
/// its flag, too. Version 3.1.
class LVDATA_EXPORT StandardModeResult : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "StandardModeResult";

    /// A fresh record with nothing set, version 3.1.
    StandardModeResult();

    /// Reads an element "StandardModeResult". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "StandardModeResult" to a document or an element and returns it; invalid when `parent` cannot
    /// take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The first series of measurements, element "MeasurementData". Written when `hasMeasurementData` is set.
    MeasurementData measurementData;

    /// Whether `measurementData` is set. After parsing: whether its element was found.
    bool hasMeasurementData = false;

    /// The second series of measurements, element "MeasurementDataSecondary". Written when
    /// `hasMeasurementDataSecondary` is set.
    MeasurementDataSecondary measurementDataSecondary;

    /// Whether `measurementDataSecondary` is set. After parsing: whether its element was found.
    bool hasMeasurementDataSecondary = false;

    /// The maximum white reached, element "MaxWhite". Unit not recorded. Written when set.
    property<unsigned int> maxWhite;

    /// The circumstances of the run, element "BasicData". Written when `hasBasicData` is set.
    BasicData basicData;

    /// Whether `basicData` is set. After parsing: whether its element was found.
    bool hasBasicData = false;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const StandardModeResult& left, const StandardModeResult& right);
[[nodiscard]] inline bool operator!=(const StandardModeResult& left, const StandardModeResult& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
