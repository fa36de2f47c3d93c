#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// The display parameters that a colour mode is set to: brightness, white point, gamma and gamut, each with a type that
/// states its form, and one setting for the signal range "Limited109".
///
/// The four parameters are always written, with their attribute "Type" and the children that belong to the type. Types
/// are compared exactly; any other text is kept and written back. Parsing reads all children, whatever the type, with
/// one exception: for "SyncSignal", brightness and gamma read none and the gamut does not read "Fixed". So reading and
/// printing drops children that do not belong to the type.
///
/// Use the constants of lvdata/records/types.h for types: with a misspelt type, the value is lost when the record is
/// printed. The accessors of the gamma convert as lvdata/core/quantities.h says. Version 2.0.
class LVDATA_EXPORT ParameterSetting : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "ParameterSetting";

    /// The brightness of the display.
    struct brightness_t {
        /// The form of the brightness, attribute "Type": "Candela", "Percent" or "SyncSignal", see `types::brightness`.
        /// Always written.
        std::string type{};

        /// The brightness, element "Value", in the unit that the type names: stored as `quantities::candela` for
        /// "Candela", as `quantities::percent` for "Percent". Written for these two types.
        unsigned int value = 0;
    };

    /// The white point of the display.
    struct white_point_t {
        /// The form of the white point, attribute "Type": "Temperature" or "Fixed", see `types::whitePoint`. Always
        /// written.
        std::string type{};

        /// Colour temperature, element "Temperature", unscaled; unit not recorded. Written for the type "Temperature".
        unsigned int temperature = 0;

        /// Name of a standard white point, element "Fixed". Written for the type "Fixed".
        std::string fixed{};
    };

    /// The tone curve of the display.
    struct LVDATA_EXPORT gamma_t {
        /// The form of the curve, attribute "Type": "Value", "Fixed" or "SyncSignal", see `types::gamma`. Always
        /// written.
        std::string type{};

        /// The exponent, element "Value", stored as `quantities::gamma`, times 100. Written for the type "Value".
        unsigned int value = 0;

        /// Name of a standard curve, element "Fixed", such as "PQ" or "HLG" (ITU-R BT.2100), see `types::fixedGamma`.
        /// Written for the type "Fixed".
        std::string fixed{};

        /// Clipping of a PQ or HLG curve, element "PQHLGClipping". The possible texts are not recorded. Written for the
        /// type "Fixed" when `fixed` is "PQ" or "HLG".
        std::string pqhlgClipping{};

        /// System gamma of HLG (ITU-R BT.2100), element "HLGSystemGamma", stored as `quantities::hlgSystemGamma`, times
        /// 100. Written for every type, but only when the record that is printed has `writeHLGSystemGamma` set.
        unsigned int hlgSystemGamma = 0;

        /// Returns the exponent: 2.2 for a stored 220.
        [[nodiscard]] double value_x() const;

        /// Stores the exponent in `value`: 2.2 as 220, a negative one as 0. Changes neither the type nor any flag.
        void value_x(double exponent);

        /// Returns the HLG system gamma: 1.2 for a stored 120.
        [[nodiscard]] double hlgSystemGamma_x() const;

        /// Stores the HLG system gamma in `hlgSystemGamma`: 1.2 as 120. Changes neither the type nor any flag.
        void hlgSystemGamma_x(double exponent);
    };

    /// The gamut of the display.
    struct gamut_t {
        /// The form of the gamut, attribute "Type": "Fixed" or "SyncSignal", see `types::gamut`. Always written.
        std::string type{};

        /// Name of a standard gamut, element "Fixed". Written for the type "Fixed".
        std::string fixed{};

        /// Gamut clipping, element "Clipping". The meaning of the number is not recorded. Read and written for every
        /// type.
        unsigned int clipping = 0;
    };

    /// A fresh record with nothing set, version 2.0.
    ParameterSetting();

    /// Reads an element "ParameterSetting". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "ParameterSetting" to a document or an element and returns it; invalid when `parent` cannot
    /// take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// The brightness, element "Brightness". Always written, whatever the flag. After parsing, the flag says whether
    /// the element was found.
    property<brightness_t> brightness;

    /// The white point, element "WhitePoint". Always written, whatever the flag. After parsing, the flag says whether
    /// the element was found.
    property<white_point_t> whitePoint;

    /// The tone curve, element "Gamma". Always written, whatever the flag. After parsing, the flag says whether the
    /// element was found.
    property<gamma_t> gamma;

    /// The gamut, element "Gamut". Always written, whatever the flag. After parsing, the flag says whether the element
    /// was found.
    property<gamut_t> gamut;

    /// Setting for the signal range "Limited109", element "Limited109Setting". The meaning of the number is not
    /// recorded. Written when set.
    property<unsigned int> limited109Setting;
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const ParameterSetting::brightness_t& left,
                                            const ParameterSetting::brightness_t& right);
[[nodiscard]] inline bool operator!=(const ParameterSetting::brightness_t& left,
                                     const ParameterSetting::brightness_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ParameterSetting::white_point_t& left,
                                            const ParameterSetting::white_point_t& right);
[[nodiscard]] inline bool operator!=(const ParameterSetting::white_point_t& left,
                                     const ParameterSetting::white_point_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ParameterSetting::gamma_t& left,
                                            const ParameterSetting::gamma_t& right);
[[nodiscard]] inline bool operator!=(const ParameterSetting::gamma_t& left, const ParameterSetting::gamma_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ParameterSetting::gamut_t& left,
                                            const ParameterSetting::gamut_t& right);
[[nodiscard]] inline bool operator!=(const ParameterSetting::gamut_t& left, const ParameterSetting::gamut_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const ParameterSetting& left, const ParameterSetting& right);
[[nodiscard]] inline bool operator!=(const ParameterSetting& left, const ParameterSetting& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
