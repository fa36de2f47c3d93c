#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// One measurement: the colour that was shown (RGB, CMYK) and what was measured for it (XYZ, CIELAB, PQR).
///
/// Each notation is a vector of the integers that the document carries; an empty one means that the notation is absent.
/// Parsing takes any number of entries. Only a vector of exactly the stated length is written, as the child of that
/// name; a row without any such vector is not written at all.
///
/// The getters return a colour with only their own members filled, each the stored integer divided by the factor; all
/// of it is zero when the vector holds too few entries, and further entries are ignored. The setters replace their own
/// vector and nothing else: value times factor plus 0.5, truncated toward zero, without an upper limit; NaN, infinities
/// and magnitudes of 2^63 and more store 0, and what exceeds 32 bits keeps its low 32 bits.
class LVDATA_EXPORT MeasurementDataObject {
public:
    /// R, G, B: 3 code values 0 to 255, element "RGB".
    std::vector<unsigned int> RGB{};

    /// C, M, Y, K: 4 percentages 0 to 100, element "CMYK".
    std::vector<unsigned int> CMYK{};

    /// CIE XYZ: 3 tristimulus values times 1000000, element "XYZ".
    std::vector<int> XYZ{};

    /// CIELAB: L*, a*, b* times 1000000, element "CIELAB".
    std::vector<int> CIELAB{};

    /// P, Q, R: 3 values times 1000000, element "PQR".
    std::vector<int> PQR{};

    /// Red, green and blue as fractions of 255; a negative value is stored as 0.
    [[nodiscard]] colour RGB_x() const;
    void RGB_x(const colour& shown);

    /// Cyan, magenta, yellow and black as fractions of 100 %; a negative value is stored as 0.
    [[nodiscard]] colour CMYK_x() const;
    void CMYK_x(const colour& shown);

    /// X, Y and Z; negative values are kept, truncated toward zero after one half was added (-0.7 is stored as
    /// -699999).
    [[nodiscard]] colour XYZ_x() const;
    void XYZ_x(const colour& measured);

    /// L*, a* and b*, converted as XYZ are.
    [[nodiscard]] colour CIELAB_x() const;
    void CIELAB_x(const colour& measured);

    /// P, Q and R, which travel in the members X, Y and Z, converted as XYZ are.
    [[nodiscard]] colour PQR_x() const;
    void PQR_x(const colour& measured);
};

/// A series of colour measurements; one element "Measurements" per row.
///
/// A row is kept when parsing found at least one of its five children with text; other rows are dropped. Version 2.0.
class LVDATA_EXPORT MeasurementData : public DataArrayObject<MeasurementDataObject> {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "MeasurementData";

    MeasurementData();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// The name of the root element that this series is written under and accepts.
    [[nodiscard]] virtual std::string getRootElementName() const;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma` and `parsed`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MeasurementDataObject& left, const MeasurementDataObject& right);
[[nodiscard]] inline bool operator!=(const MeasurementDataObject& left, const MeasurementDataObject& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const MeasurementData& left, const MeasurementData& right);
[[nodiscard]] inline bool operator!=(const MeasurementData& left, const MeasurementData& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
