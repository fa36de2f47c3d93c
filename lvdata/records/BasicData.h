#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// The circumstances of a calibration run: the monitor's usage time, the sensors, the correlation between them, white
/// points, executor, date and software.
///
/// All members are children of the root element; only "Type" of the executor is one level deeper. Numbers are stored
/// unscaled, except the two white points: see lvdata/core/quantities.h for how their accessors convert. Version 3.0.
class LVDATA_EXPORT BasicData : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "BasicData";

    /// A fresh record with nothing set, version 3.0.
    BasicData();

    /// Reads an element "BasicData". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "BasicData" to a document or an element and returns it; invalid when `parent` cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// Usage time of the monitor, element "UsageHours". Unit not recorded; the name says hours. Written when set.
    property<unsigned int> usageHours;

    /// Usage time of the monitor, element "UsageMinutes". Unit not recorded; the name says minutes. Written when set.
    property<unsigned int> usageMinutes;

    /// Identifier of the colour sensor that measured, element "ColorSensorID". Written when set.
    property<unsigned int> colorSensorID;

    /// Name of the colour sensor that measured, element "ColorSensorName". Written when set.
    property<std::string> colorSensorName;

    /// Serial number of the colour sensor that measured, element "ColorSensorSerial", kept as text. Written when set.
    property<std::string> colorSensorSerial;

    /// Correction of the colour sensor that measured, element "ColorSensorCorrection". The meaning of the number is not
    /// recorded. Written when set.
    property<unsigned int> colorSensorCorrection;

    /// Identifier of the sensor that the colour sensor was correlated with, element "ReferenceColorSensorID". Written
    /// when set.
    property<unsigned int> referenceColorSensorID;

    /// Name of the sensor that the colour sensor was correlated with, element "ReferenceColorSensorName". Written when
    /// set.
    property<std::string> referenceColorSensorName;

    /// Serial number of the sensor that the colour sensor was correlated with, element "ReferenceColorSensorSerial",
    /// kept as text. Written when set.
    property<std::string> referenceColorSensorSerial;

    /// Identifier of the correlation, element "ColorSensorCorrelationID". Written when set.
    property<unsigned int> colorSensorCorrelationID;

    /// Date of the correlation, element "ColorSensorCorrelationDate": any text; the format is not recorded. Written
    /// when set.
    property<std::string> colorSensorCorrelationDate;

    /// Identifier of the correlation matrix in use, element "ColorSensorCorrelationMatrixID". Written when set.
    property<unsigned int> colorSensorCorrelationMatrixID;

    /// Whether the correlation matrix is used, element "UseColorSensorCorrelationMatrix". A text such as "true", never
    /// converted to a bool. Written when set.
    property<std::string> useColorSensorCorrelationMatrix;

    /// Target white of the correlation, element "CorrelationTargetWhite": CIE X, Y, Z, each stored as
    /// `quantities::tristimulus`, times 1000000; unit not recorded. Written when it has exactly three entries, whatever
    /// the flag; parsing takes any number of entries and sets the flag.
    property<std::vector<unsigned int>> correlationTargetWhite;

    /// White reached by the calibration, element "JustCalibratedWhite": CIE X, Y, Z, each stored as
    /// `quantities::tristimulus`, times 1000000; unit not recorded. Written when it has exactly three entries, whatever
    /// the flag; parsing takes any number of entries and sets the flag.
    property<std::vector<unsigned int>> justCalibratedWhite;

    /// Identifier of an external correction, element "ExCorrectionID". Written when set.
    property<unsigned int> exCorrectionID;

    /// Name of an external correction, element "ExCorrectionName". Written when set.
    property<std::string> exCorrectionName;

    /// Lighting time of the backlight, element "BackLightLightingTime". Unit not recorded. Written when set.
    property<unsigned int> backLightLightingTime;

    /// The software that ran the calibration, element "Software". Written when set.
    property<std::string> software;

    /// When the calibration ran, element "executedDate" (first letter in lower case): any text, its form is not
    /// recorded. Written when set.
    property<std::string> executedDate;

    /// A priority, element "DUEPriority". The meaning of the number is not recorded. Written when set.
    property<unsigned int> DUEPriority;

    /// What kind of executor ran the calibration, element "Type" inside "Executor". Written when set, also when empty.
    /// After parsing, the flag is set if the member holds text, even text from an earlier document.
    property<std::string> executorType;

    /// \name The white points as colours
    /// Only X, Y and Z of a colour are converted, see lvdata/core/quantities.h. These arrays are unsigned: a negative
    /// value is stored as 0.
    /// @{

    /// Returns `correlationTargetWhite` as X, Y and Z; all zero when fewer than three entries are stored.
    [[nodiscard]] colour correlationTargetWhite_x() const;

    /// Replaces `correlationTargetWhite` by three entries and sets its flag.
    void correlationTargetWhite_x(const colour& white);

    /// Returns `justCalibratedWhite` as X, Y and Z; all zero when fewer than three entries are stored.
    [[nodiscard]] colour justCalibratedWhite_x() const;

    /// Replaces `justCalibratedWhite` by three entries and sets its flag.
    void justCalibratedWhite_x(const colour& white);
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const BasicData& left, const BasicData& right);
[[nodiscard]] inline bool operator!=(const BasicData& left, const BasicData& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
