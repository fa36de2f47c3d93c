#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>

namespace lv {

/// The result of measuring the monitor in its standard, uncalibrated mode.
///
/// Each nested record is written when its flag is set, so a caller that fills one sets its flag, too. After parsing,
/// the flag tells whether the record was found. Version 3.1.
class LVDATA_EXPORT StandardModeResult : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "StandardModeResult";

    StandardModeResult();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The first series of measurements, element "MeasurementData".
    MeasurementData measurementData;
    bool hasMeasurementData = false;

    /// The second series, element "MeasurementDataSecondary".
    MeasurementDataSecondary measurementDataSecondary;
    bool hasMeasurementDataSecondary = false;

    /// The maximum white reached, in the application's unit, element "MaxWhite", written when set.
    property<unsigned int> maxWhite;

    /// The circumstances of the run, element "BasicData".
    BasicData basicData;
    bool hasBasicData = false;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const StandardModeResult& left, const StandardModeResult& right);
[[nodiscard]] inline bool operator!=(const StandardModeResult& left, const StandardModeResult& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
