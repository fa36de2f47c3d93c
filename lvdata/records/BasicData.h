#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// The circumstances of a calibration run: the monitor's usage time, the sensors, the correlation between them, white
/// points, and who ran it when with what.
///
/// Each member is written when it is set, as the child of the root element that bears its name in upper camel case,
/// unless its comment says otherwise. Units and ranges of the numbers are the application's. Version 3.0.
class LVDATA_EXPORT BasicData : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "BasicData";

    BasicData();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// How long the monitor had been in use, elements "UsageHours" and "UsageMinutes".
    property<unsigned int> usageHours;
    property<unsigned int> usageMinutes;

    /// The colour sensor that measured, elements "ColorSensorID" to "ColorSensorCorrection".
    property<unsigned int> colorSensorID;
    property<std::string> colorSensorName;
    property<std::string> colorSensorSerial;
    property<unsigned int> colorSensorCorrection;

    /// The sensor that it was correlated with, elements "ReferenceColorSensorID" to "ReferenceColorSensorSerial".
    property<unsigned int> referenceColorSensorID;
    property<std::string> referenceColorSensorName;
    property<std::string> referenceColorSensorSerial;

    /// The correlation and its matrix, elements "ColorSensorCorrelationID" to "UseColorSensorCorrelationMatrix". The
    /// last is text like "true", kept as it stands and never converted to a bool.
    property<unsigned int> colorSensorCorrelationID;
    property<std::string> colorSensorCorrelationDate;
    property<unsigned int> colorSensorCorrelationMatrixID;
    property<std::string> useColorSensorCorrelationMatrix;

    /// The white aimed at for the correlation and the white just reached: CIE X, Y and Z, each times 1000000. Elements
    /// "CorrelationTargetWhite" and "JustCalibratedWhite". Parsing takes any number of values and sets the flag;
    /// writing looks at the number alone: exactly three are written whatever the flag says, any other number is not.
    property<std::vector<unsigned int>> correlationTargetWhite;
    property<std::vector<unsigned int>> justCalibratedWhite;

    /// An external correction, elements "ExCorrectionID" and "ExCorrectionName".
    property<unsigned int> exCorrectionID;
    property<std::string> exCorrectionName;

    /// How long the backlight had been lit, element "BackLightLightingTime".
    property<unsigned int> backLightLightingTime;

    /// The software that ran the calibration, element "Software".
    property<std::string> software;

    /// When it ran, as any text, element "executedDate" with a small initial.
    property<std::string> executedDate;

    /// A priority number of the application's, element "DUEPriority".
    property<unsigned int> DUEPriority;

    /// The kind of executor, element "Type" inside "Executor". After parsing, the flag tells whether the text that the
    /// member then holds is not empty, an earlier text included; a set but empty one is written all the same.
    property<std::string> executorType;

    /// \name The white points as colours
    /// The getters return X, Y and Z, the stored values divided by 1000000, or an all-zero colour when fewer than three
    /// are stored; the flag is not consulted. The setters store three values, each times 1000000 plus 0.5, truncated,
    /// and the low 32 bits of what is larger; 0 for negatives, NaN, infinities and magnitudes of 2^63 and more. They
    /// set the flag.
    /// @{
    [[nodiscard]] colour correlationTargetWhite_x() const;
    void correlationTargetWhite_x(const colour& white);
    [[nodiscard]] colour justCalibratedWhite_x() const;
    void justCalibratedWhite_x(const colour& white);
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const BasicData& left, const BasicData& right);
[[nodiscard]] inline bool operator!=(const BasicData& left, const BasicData& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
