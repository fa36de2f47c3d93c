#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/PrimaryColours.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// What a colour profile was built from: a description, the measured tristimulus values of the display's primaries,
/// white and black, once for the full panel and once for the state "Limited109", and a target curve per channel.
///
/// Tristimulus values and curves are stored in fixed point, times 1000000. The `_x` accessors convert: getters divide;
/// setters store the value times 1000000 plus 0.5, truncated, and the low 32 bits of what is larger; 0 for negatives,
/// NaN, infinities and magnitudes of 2^63 and more. Version 2.0.
class LVDATA_EXPORT ProfileData : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "ProfileData";

    /// Measured CIE XYZ of five colours: three entries X, Y, Z each, times 1000000.
    struct xyz_set_t {
        std::vector<unsigned int> red{};
        std::vector<unsigned int> green{};
        std::vector<unsigned int> blue{};
        std::vector<unsigned int> white{};
        std::vector<unsigned int> black{};
    };

    /// The tone curve that one channel is to have.
    struct LVDATA_EXPORT target_curve {
        /// The attribute "Type": "Formula", "Lut" or "LStar" (the lightness curve of CIE 15). A curve of another type
        /// is written as an empty element without the attribute.
        std::string type{};

        /// For "Formula", the element's text: the curve's parameter times 1000000.
        unsigned int formula = 0;

        /// For "Lut", the element's text: any number of entries, each times 1000000.
        std::vector<unsigned int> lut{};

        /// The parameter and the table as fractions. The setters change nothing but their own member; neither the type
        /// nor any flag.
        [[nodiscard]] double formula_x() const;
        void formula_x(double parameter);
        [[nodiscard]] std::vector<double> lut_x() const;
        void lut_x(const std::vector<double>& entries);
    };

    ProfileData();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Free text, element "Description", written when set.
    property<std::string> description;

    /// The full panel: elements "MeasuredXYZ" whose attribute "Color" is "Red", "Green", "Blue", "White" or "Black".
    /// All five are written always, empty when the set is unset. After parsing, the flag tells whether all five vectors
    /// then hold exactly three entries, wherever these came from; a colour that occurs twice takes the later element.
    property<xyz_set_t> measuredXYZ;

    /// The state "Limited109": "Color" is "Limited109Red", "Limited109Green", "Limited109Blue" or "Limited109White";
    /// the flag is computed from these four alone. Written only when set; `black` is neither read nor written.
    property<xyz_set_t> measuredXYZLimited109;

    /// Elements "RedTargetCurve", "GreenTargetCurve", "BlueTargetCurve": written always, empty when unset. The flag is
    /// whether the element was found.
    property<target_curve> redTargetCurve;
    property<target_curve> greenTargetCurve;
    property<target_curve> blueTargetCurve;

    /// One target curve: reads it from the first child `name` of `element`, or appends it as that child; returns the
    /// child, an invalid one when it is missing.
    XMLElement parseTargetCurve(const std::string& name, XMLElement& element, property<target_curve>& curve) const;
    XMLElement appendTargetCurve(const std::string& name, XMLElement& element,
                                 const property<target_curve>& curve) const;

    /// \name The measured sets as colours
    /// Only X, Y and Z are converted. A getter leaves a colour zero whose vector holds fewer than three entries, and
    /// does not consult the flag. A setter replaces all five vectors and sets the flag. For "Limited109" black is left
    /// out: the getter returns zero for it, the setter empties the vector.
    /// @{
    [[nodiscard]] PrimaryColours measuredXYZ_x() const;
    void measuredXYZ_x(const PrimaryColours& measured);
    [[nodiscard]] PrimaryColours measuredXYZLimited109_x() const;
    void measuredXYZLimited109_x(const PrimaryColours& measured);
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const ProfileData::xyz_set_t& left, const ProfileData::xyz_set_t& right);
[[nodiscard]] inline bool operator!=(const ProfileData::xyz_set_t& left, const ProfileData::xyz_set_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ProfileData::target_curve& left,
                                            const ProfileData::target_curve& right);
[[nodiscard]] inline bool operator!=(const ProfileData::target_curve& left, const ProfileData::target_curve& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ProfileData& left, const ProfileData& right);
[[nodiscard]] inline bool operator!=(const ProfileData& left, const ProfileData& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
