#pragma once

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// One measurement, element "Measurements": the colour that was shown (RGB, CMYK) and what was measured for it (XYZ,
/// CIELAB, PQR).
///
/// Each notation is a vector of the integers that the document holds; an empty one means that the notation is absent.
/// Parsing takes any number of entries. Only a vector of exactly the stated length is written, as a child of
/// "Measurements"; a row without any such vector is not written at all.
///
/// The accessors convert as lvdata/core/quantities.h says. A getter fills only the members of its own notation; the
/// whole colour is zero when the vector holds too few entries, and extra entries are ignored. A setter replaces only
/// its own vector.
class LVDATA_EXPORT MeasurementDataObject {
public:
    /// The RGB that was shown, element "RGB": R, G, B, each stored as `quantities::codeValue`, a code value of which
    /// 255 is full scale. Written with exactly 3 entries.
    std::vector<unsigned int> RGB{};

    /// The CMYK that was shown, element "CMYK": C, M, Y, K, each stored as `quantities::inkAmount`, in per cent.
    /// Written with exactly 4 entries.
    std::vector<unsigned int> CMYK{};

    /// The measured CIE XYZ, element "XYZ": X, Y, Z, each stored as `quantities::tristimulus`, times 1000000; whether Y
    /// is absolute is not recorded. Written with exactly 3 entries.
    std::vector<int> XYZ{};

    /// The measured CIELAB, element "CIELAB": L*, a*, b*, each stored as `quantities::cielab`, times 1000000. Written
    /// with exactly 3 entries.
    std::vector<int> CIELAB{};

    /// Another measured triple, element "PQR": P, Q, R, each stored as `quantities::pqr`, times 1000000; meaning and
    /// unit not recorded. Written with exactly 3 entries.
    std::vector<int> PQR{};

    /// Returns `RGB` in `red`, `green` and `blue`; 1.0 is the code value 255.
    [[nodiscard]] colour RGB_x() const;

    /// Replaces `RGB` by three entries from `red`, `green` and `blue`. A negative value is stored as 0; there is no
    /// upper limit: 1.5 is stored as 383.
    void RGB_x(const colour& shown);

    /// Returns `CMYK` in `cyan`, `magenta`, `yellow` and `black`; 1.0 is 100 %.
    [[nodiscard]] colour CMYK_x() const;

    /// Replaces `CMYK` by four entries from `cyan`, `magenta`, `yellow` and `black`. A negative value is stored as 0;
    /// there is no upper limit.
    void CMYK_x(const colour& shown);

    /// Returns `XYZ` in `X`, `Y` and `Z`.
    [[nodiscard]] colour XYZ_x() const;

    /// Replaces `XYZ` by three entries from `X`, `Y` and `Z`. Values beyond 2147.483647 wrap: a Y of 4000 reads back as
    /// -294.967296. Negative values are kept, but move one step toward zero each time they are read and set.
    void XYZ_x(const colour& measured);

    /// Returns `CIELAB` in `L`, `a` and `b`.
    [[nodiscard]] colour CIELAB_x() const;

    /// Replaces `CIELAB` by three entries from `L`, `a` and `b`. A negative a* or b* moves one step (0.000001) toward
    /// zero each time it is read and set.
    void CIELAB_x(const colour& measured);

    /// Returns `PQR` in the members `X`, `Y` and `Z`: P in `X`, Q in `Y`, R in `Z`.
    [[nodiscard]] colour PQR_x() const;

    /// Replaces `PQR` by three entries: P from `X`, Q from `Y`, R from `Z`. Range and negative values as in `XYZ_x`.
    void PQR_x(const colour& measured);
};

/// A series of colour measurements, one element "Measurements" per row.
///
/// Parsing keeps a row when at least one of its five children has a text, and drops other rows. Version 2.0.
class LVDATA_EXPORT MeasurementData : public DataArrayObject<MeasurementDataObject> {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "MeasurementData";

    /// A fresh record without rows, version 2.0.
    MeasurementData();

    /// Reads the element that `getRootElementName` names, and replaces all rows. False, with nothing changed, when the
    /// element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends the element that `getRootElementName` names to a document or an element and returns it; invalid when
    /// `parent` cannot take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The name of the root element that this series is written under and accepts: "MeasurementData" here.
    [[nodiscard]] virtual std::string getRootElementName() const;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma` and `parsed`.
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
