#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>

#include <string>
#include <vector>

namespace lv {

/// The calibration target chosen for a colour mode: brightness, black level, white point, tone curves, gamut, grey
/// balance and fine corrections.
///
/// Two generations of elements stand side by side: the older structured ones ("WhitePoint", "Gamma", "Gamut") and the
/// newer ones that name a standard ("WhitePointV7", "GammaV7", "GamutV7"). Each is held, parsed and written by itself;
/// neither is converted into the other.
///
/// Every member of the record is written only when it is set. Levels, white points, standards and curves have a type,
/// compared exactly, that decides which of their children are written; where something else decides, the member's
/// comment says so. Parsing takes whatever children there are, and a missing one leaves its member as it was. A round
/// trip therefore drops children that are not to be written.
///
/// Fractions are stored in fixed point: setters store the value times a factor plus 0.5, truncated, and the low 32 bits
/// of what is larger; 0 for negatives, NaN, infinities and magnitudes of 2^63 and more. Getters divide. They touch no
/// flag. Version 3.2.
class LVDATA_EXPORT TargetSetting : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "TargetSetting";

    /// A level: attribute "Type", and the element "Value", written for the type "Value".
    struct level_t {
        std::string type{};
        unsigned int value = 0;
    };

    /// A standard by its name: attribute "Type", and the element "Standard", written for the type "Standard".
    struct standard_t {
        std::string type{};
        std::string standard{};
    };

    /// A white point by its temperature or its chromaticity.
    struct LVDATA_EXPORT white_point_t {
        /// Attribute "Type": "Temperature" or "Coordinate".
        std::string type{};

        /// Colour temperature, element "Temperature", written for that type.
        unsigned int temperature = 0;

        /// CIE 1931 chromaticity times 10000, elements "x" and "y", written for the type "Coordinate".
        unsigned int x = 0;
        unsigned int y = 0;

        /// The chromaticity as the members x and y of a colour.
        [[nodiscard]] colour coordinate_x() const;
        void coordinate_x(const colour& chromaticity);
    };

    /// The tone curves of the three channels and what goes with them.
    struct LVDATA_EXPORT gamma_t {
        /// One channel's curve: attribute "Type", and one child of that name when the type has one.
        struct LVDATA_EXPORT gamma_color {
            /// "Formula", "Lut" or "Lut24"; "PQ", "HLG" (ITU-R BT.2100) and any other text have no child.
            std::string type{};

            /// Gamma times 100, element "Formula".
            unsigned int formula = 0;

            /// Curve values of 16 bits, full scale 65535, element "Lut"; any number of them.
            std::vector<unsigned int> lut{};

            /// Curve values of 24 bits, full scale 16777215, element "Lut24"; any number of them.
            std::vector<unsigned int> lut24{};

            /// Gamma as a fraction.
            [[nodiscard]] double formula_x() const;
            void formula_x(double exponent);

            /// The curve of 16 bits as fractions of full scale; the setter replaces it.
            [[nodiscard]] std::vector<double> lut_x() const;
            void lut_x(const std::vector<double>& entries);

            /// The curve of 24 bits as fractions of full scale. The setter empties the other curve, `lut`, and appends
            /// its entries behind those that `lut24` holds: to replace a curve, clear `lut24` first; to have both, set
            /// this one first.
            [[nodiscard]] std::vector<double> lut24_x() const;
            void lut24_x(const std::vector<double>& entries);
        };

        /// The file that a curve was imported from.
        struct LVDATA_EXPORT imported_lut_file {
            /// Element "FileName".
            std::string fileName{};

            [[nodiscard]] std::string fileName_x() const;
            void fileName_x(const std::string& name);
        };

        /// Elements "Red", "Green" and "Blue".
        gamma_color red{};
        gamma_color green{};
        gamma_color blue{};

        /// Clipping of PQ and HLG, element "PQHLGClipping", written when the red curve is "PQ" or "HLG".
        std::string pqhlgClipping{};

        /// System gamma of HLG times 100, element "HLGSystemGamma", written when the record that is printed has
        /// `writeHLGSystemGamma` set; always read.
        unsigned int hlgSystemGamma = 0;

        /// Element "ImportedLutFile", written when it has a name and the red curve is "Lut" or "Lut24".
        imported_lut_file importedLutFile{};

        /// The system gamma as a fraction.
        [[nodiscard]] double hlgSystemGamma_x() const;
        void hlgSystemGamma_x(double exponent);
    };

    /// A gamut by the chromaticities of its primaries.
    struct LVDATA_EXPORT gamut_t {
        /// CIE 1931 chromaticity times 10000, elements "x" and "y".
        struct coordinate {
            unsigned int x = 0;
            unsigned int y = 0;
        };

        /// Elements "Red", "Green" and "Blue", written when the gamut is not native.
        coordinate red{};
        coordinate green{};
        coordinate blue{};

        /// Element "ProfileName", written when it is not empty.
        std::string profileName{};

        /// Element "Value" inside "GamutClipping", written always.
        unsigned int gamutClipping = 0;

        /// Whether this is the panel's own gamut: at least one of the six coordinates is 0.
        [[nodiscard]] bool isNative() const;

        /// The primaries' chromaticities as the members x and y of a colour.
        [[nodiscard]] colour red_x() const;
        void red_x(const colour& chromaticity);
        [[nodiscard]] colour green_x() const;
        void green_x(const colour& chromaticity);
        [[nodiscard]] colour blue_x() const;
        void blue_x(const colour& chromaticity);
    };

    /// Tint of the black level, in the monitor's adjustment steps: elements "red", "green" and "blue".
    struct black_level_t {
        int red = 0;
        int green = 0;
        int blue = 0;
    };

    /// Fine corrections, in the monitor's adjustment steps; unscaled and unchecked.
    struct advanced_settings_t {
        using black_level_t = TargetSetting::black_level_t;

        /// One correction for each of six colours: elements "red" to "yellow".
        struct advanced_settings_six_colors_t {
            int red = 0;
            int green = 0;
            int blue = 0;
            int cyan = 0;
            int magenta = 0;
            int yellow = 0;
        };

        /// Shifts of all colours, elements "hue" and "saturation".
        property<int> hue{};
        property<int> saturation{};

        /// Element "blackLevel"; set when at least one of its three children was found.
        property<black_level_t> blackLevel{};

        /// Elements "hue", "saturation" and "lightness" inside "sixColors"; each is set when at least one of its six
        /// children was found, and written with all six.
        property<advanced_settings_six_colors_t> sixColorsHue{};
        property<advanced_settings_six_colors_t> sixColorsSaturation{};
        property<advanced_settings_six_colors_t> sixColorsLightness{};
    };

    TargetSetting();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Elements "LumivaleVersion" and "FineContrast".
    property<std::string> lumivaleVersion;
    property<std::string> fineContrast;

    /// Elements "Brightness", "BlackLevel", "WhitePoint" and "WhitePointV7"; set when the attribute "Type" was found.
    property<level_t> brightness;
    property<level_t> blackLevel;
    property<white_point_t> whitePoint;
    property<standard_t> whitePointV7;

    /// Element "Gamma"; set when at least one of its children "Red", "Green" and "Blue" was found.
    property<gamma_t> gamma;

    /// Element "GammaV7"; set when the attribute "Type" was found.
    property<standard_t> gammaV7;

    /// Element "Gamut"; set when it was found.
    property<gamut_t> gamut;

    /// Element "GamutV7"; set when the attribute "Type" was found.
    property<standard_t> gamutV7;

    /// Element "Type" inside "GrayBalance".
    property<unsigned int> grayBalance;

    /// Element "CreationType".
    property<std::string> creationType;

    /// Element "AdvancedSettings"; set when it was found.
    property<advanced_settings_t> advancedSettings;

    /// Element "OptimizeForLimited109".
    property<std::string> optimizeForLimited109;

    /// \name Parts of the record
    /// Each reads or appends one child of the given element by the rules above and returns that child, an invalid one
    /// when it is missing or cannot be appended. A missing child leaves plain values as they were and clears flags.
    /// @{
    XMLElement parseGammaElement(XMLElement& parent, const std::string& name, gamma_t::gamma_color& color) const;
    XMLElement appendGammaElement(XMLElement& parent, const std::string& name, const gamma_t::gamma_color& color) const;
    XMLElement parseGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                           gamut_t::coordinate& coordinate) const;
    XMLElement appendGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                            const gamut_t::coordinate& coordinate) const;
    XMLElement parseAdvancedSettingsElement(XMLElement& parent, advanced_settings_t& settings) const;
    XMLElement appendAdvancedSettingElement(XMLElement& parent, const advanced_settings_t& settings) const;
    XMLElement
    parseAdvancedSettingsSixColorsElement(XMLElement& sixColors, const std::string& name,
                                          property<advanced_settings_t::advanced_settings_six_colors_t>& target) const;
    XMLElement
    appendAdvancedSettingSixColorElement(XMLElement& sixColors, const std::string& name,
                                         const advanced_settings_t::advanced_settings_six_colors_t& values) const;
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::level_t& left, const TargetSetting::level_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::level_t& left, const TargetSetting::level_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::standard_t& left,
                                            const TargetSetting::standard_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::standard_t& left, const TargetSetting::standard_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::white_point_t& left,
                                            const TargetSetting::white_point_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::white_point_t& left,
                                     const TargetSetting::white_point_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::gamma_t::gamma_color& left,
                                            const TargetSetting::gamma_t::gamma_color& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::gamma_t::gamma_color& left,
                                     const TargetSetting::gamma_t::gamma_color& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::gamma_t::imported_lut_file& left,
                                            const TargetSetting::gamma_t::imported_lut_file& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::gamma_t::imported_lut_file& left,
                                     const TargetSetting::gamma_t::imported_lut_file& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::gamma_t& left, const TargetSetting::gamma_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::gamma_t& left, const TargetSetting::gamma_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::gamut_t::coordinate& left,
                                            const TargetSetting::gamut_t::coordinate& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::gamut_t::coordinate& left,
                                     const TargetSetting::gamut_t::coordinate& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::gamut_t& left, const TargetSetting::gamut_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::gamut_t& left, const TargetSetting::gamut_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::black_level_t& left,
                                            const TargetSetting::black_level_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::black_level_t& left,
                                     const TargetSetting::black_level_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool
operator==(const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& left,
           const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& left,
                                     const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting::advanced_settings_t& left,
                                            const TargetSetting::advanced_settings_t& right);
[[nodiscard]] inline bool operator!=(const TargetSetting::advanced_settings_t& left,
                                     const TargetSetting::advanced_settings_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const TargetSetting& left, const TargetSetting& right);
[[nodiscard]] inline bool operator!=(const TargetSetting& left, const TargetSetting& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
