#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <string>

namespace lv {

/// The display parameters that a colour mode is set to: brightness, white point, gamma and gamut, each tagged by a type
/// that says how it is given, and one setting for the signal range "Limited109".
///
/// The elements of the four parameters are written always with their attribute "Type"; only the children that belong to
/// the type are written inside. Parsing takes whatever children there are, except that for the type "SyncSignal"
/// brightness and gamma read none and the gamut does not read "Fixed"; the flag of a parameter is whether its element
/// was found. A round trip therefore drops children that do not belong to the type. Texts and units are the
/// application's unless said otherwise. Version 2.0.
class LVDATA_EXPORT ParameterSetting : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "ParameterSetting";

    struct brightness_t {
        /// Attribute "Type": "Candela", "Percent" or "SyncSignal".
        std::string type{};

        /// The brightness in the unit that the type names. Element "Value", written for "Candela" and "Percent".
        unsigned int value = 0;
    };

    struct white_point_t {
        /// Attribute "Type": "Temperature" or "Fixed".
        std::string type{};

        /// The colour temperature. Element "Temperature", written for that type.
        unsigned int temperature = 0;

        /// The name of a standard white point. Element "Fixed", written for that type.
        std::string fixed{};
    };

    struct LVDATA_EXPORT gamma_t {
        /// Attribute "Type": "Value", "Fixed" or "SyncSignal".
        std::string type{};

        /// Gamma times 100. Element "Value", written for that type.
        unsigned int value = 0;

        /// The name of a standard curve; "PQ" and "HLG" (ITU-R BT.2100) are the two that carry clipping. Element
        /// "Fixed", written for that type.
        std::string fixed{};

        /// Clipping of a PQ or HLG curve. Element "PQHLGClipping", written for the type "Fixed" with one of the two.
        std::string pqhlgClipping{};

        /// System gamma of HLG times 100. Element "HLGSystemGamma", written for every type when the record that is
        /// printed has `writeHLGSystemGamma` set.
        unsigned int hlgSystemGamma = 0;

        /// Both gammas as fractions. The setters store the value times 100 plus 0.5, truncated, and the low 32 bits of
        /// what is larger; 0 for negatives, NaN, infinities and magnitudes of 2^63 and more. They change neither the
        /// type nor any flag.
        [[nodiscard]] double value_x() const;
        void value_x(double exponent);
        [[nodiscard]] double hlgSystemGamma_x() const;
        void hlgSystemGamma_x(double exponent);
    };

    struct gamut_t {
        /// Attribute "Type": "Fixed" or "SyncSignal".
        std::string type{};

        /// The name of a standard gamut. Element "Fixed", written for that type.
        std::string fixed{};

        /// Gamut clipping. Element "Clipping", read and written for every type.
        unsigned int clipping = 0;
    };

    ParameterSetting();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Element "Brightness".
    property<brightness_t> brightness;

    /// Element "WhitePoint".
    property<white_point_t> whitePoint;

    /// Element "Gamma".
    property<gamma_t> gamma;

    /// Element "Gamut".
    property<gamut_t> gamut;

    /// Element "Limited109Setting", written when set.
    property<unsigned int> limited109Setting;
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
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
