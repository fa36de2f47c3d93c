#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/PrimaryColours.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// The data that a colour profile was built from: a description, the measured tristimulus values of the display's
/// primaries, white and black, once for the full panel and once for the state "Limited109", and a target curve per
/// channel.
///
/// All members are children of the root element. Tristimulus values and curves are stored as unsigned integers; the
/// `_x` accessors convert, see lvdata/core/quantities.h. Version 2.0.
class LVDATA_EXPORT ProfileData : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "ProfileData";

    /// Measured CIE XYZ of five colours, for the full panel or for the state "Limited109". Each colour has its own
    /// element "MeasuredXYZ", identified by its attribute "Color". If two elements have the same colour, the last one
    /// counts. Whether Y is absolute is not recorded.
    struct xyz_set_t {
        /// X, Y, Z of red, "Color" is "Red" or "Limited109Red": three entries, each stored as
        /// `quantities::tristimulus`, times 1000000. Written when the set's flag is set.
        std::vector<unsigned int> red{};

        /// X, Y, Z of green, "Color" is "Green" or "Limited109Green": three entries, each stored as
        /// `quantities::tristimulus`, times 1000000. Written when the set's flag is set.
        std::vector<unsigned int> green{};

        /// X, Y, Z of blue, "Color" is "Blue" or "Limited109Blue": three entries, each stored as
        /// `quantities::tristimulus`, times 1000000. Written when the set's flag is set.
        std::vector<unsigned int> blue{};

        /// X, Y, Z of white, "Color" is "White" or "Limited109White": three entries, each stored as
        /// `quantities::tristimulus`, times 1000000. Written when the set's flag is set.
        std::vector<unsigned int> white{};

        /// X, Y, Z of black, "Color" is "Black": three entries, each stored as `quantities::tristimulus`, times
        /// 1000000. Written when the set's flag is set. There is no black for "Limited109".
        std::vector<unsigned int> black{};
    };

    /// The target tone curve of one channel. Its type determines which member is the text of its element.
    struct LVDATA_EXPORT target_curve {
        /// The form of the curve, attribute "Type": "Formula", "Lut" or "LStar" (the lightness curve of CIE 15), see
        /// `types::profileCurve`. Written when the curve is set and has one of these types; any other curve is written
        /// as an empty element.
        std::string type{};

        /// The curve's parameter, text of the curve's element, stored as `quantities::curveParameter`, times 1000000;
        /// unit not recorded. Read and written for the type "Formula".
        unsigned int formula = 0;

        /// The curve's table of any length, text of the curve's element, each entry stored as `quantities::curveEntry`,
        /// times 1000000. Read and written for the type "Lut".
        std::vector<unsigned int> lut{};

        /// Returns the parameter: 2.2 for a stored 2200000.
        [[nodiscard]] double formula_x() const;

        /// Stores the parameter in `formula`, a negative one as 0. Changes neither the type nor any flag.
        void formula_x(double parameter);

        /// Returns the entries of `lut` as fractions.
        [[nodiscard]] std::vector<double> lut_x() const;

        /// Replaces `lut` by any number of entries, negative ones as 0. Changes neither the type nor any flag.
        void lut_x(const std::vector<double>& entries);
    };

    /// A fresh record with nothing set, version 2.0.
    ProfileData();

    /// Reads an element "ProfileData". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "ProfileData" to a document or an element and returns it; invalid when `parent` cannot take
    /// it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// Free text about the profile, element "Description". Written when set.
    property<std::string> description;

    /// The full panel: five elements "MeasuredXYZ" with "Color" "Red", "Green", "Blue", "White", "Black". Always
    /// written, without numbers when not set, otherwise whatever the lengths. After parsing, the flag says whether all
    /// five vectors now hold exactly three entries, even if they come from an earlier document.
    property<xyz_set_t> measuredXYZ;

    /// The state "Limited109": four elements "MeasuredXYZ" with "Color" "Limited109Red" and so on, without black.
    /// Written when set, whatever the lengths. After parsing, the flag says whether these four vectors now hold exactly
    /// three entries. `black` is not read, written or compared.
    property<xyz_set_t> measuredXYZLimited109;

    /// Target curve of red, element "RedTargetCurve". Always written, empty when not set. After parsing, the flag says
    /// whether the element was found.
    property<target_curve> redTargetCurve;

    /// Target curve of green, element "GreenTargetCurve". Always written, empty when not set. After parsing, the flag
    /// says whether the element was found.
    property<target_curve> greenTargetCurve;

    /// Target curve of blue, element "BlueTargetCurve". Always written, empty when not set. After parsing, the flag
    /// says whether the element was found.
    property<target_curve> blueTargetCurve;

    /// Reads a target curve from the first child `name` of `element` and returns that child. When there is none, the
    /// result is invalid, the curve's flag is cleared and its value stays as it was.
    XMLElement parseTargetCurve(const std::string& name, XMLElement& element, property<target_curve>& curve) const;

    /// Appends a target curve as a new last child `name` of `element` and returns that child, which is empty when the
    /// curve is not set. Invalid when `element` is.
    XMLElement appendTargetCurve(const std::string& name, XMLElement& element,
                                 const property<target_curve>& curve) const;

    /// \name The measured sets as colours
    /// Only X, Y and Z of a colour are converted. These sets are unsigned, unlike the XYZ of a measurement: a negative
    /// value is stored as 0. A getter returns zero for a colour whose vector holds fewer than three entries; extra
    /// entries and the flag are ignored.
    /// @{

    /// Returns all five colours of `measuredXYZ`.
    [[nodiscard]] PrimaryColours measuredXYZ_x() const;

    /// Replaces all five vectors of `measuredXYZ` and sets its flag.
    void measuredXYZ_x(const PrimaryColours& measured);

    /// Returns red, green, blue and white of `measuredXYZLimited109`; black is always zero.
    [[nodiscard]] PrimaryColours measuredXYZLimited109_x() const;

    /// Replaces red, green, blue and white of `measuredXYZLimited109`, empties its `black` and sets its flag.
    void measuredXYZLimited109_x(const PrimaryColours& measured);
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
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
