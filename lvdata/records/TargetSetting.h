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
/// There are two generations of elements: the older structured ones ("WhitePoint", "Gamma", "Gamut") and the newer ones
/// that name a standard ("WhitePointV7", "GammaV7", "GamutV7"). They are stored, parsed and written independently;
/// neither is converted into the other.
///
/// Every member of the record is written only when it is set. Levels, white points, standards and curves have a type
/// that determines which of their children are written. Types are compared exactly; any other text is kept and written
/// back. Use the constants of lvdata/records/types.h to avoid misspelt types. Parsing reads all children, whatever the
/// type, and a missing child leaves its member unchanged. So reading and printing drops children that do not belong to
/// the type.
///
/// Fractions are stored as unsigned integers; the `_x` accessors convert, see lvdata/core/quantities.h. They do not
/// change flags or types: set these yourself. Version 3.2.
class LVDATA_EXPORT TargetSetting : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "TargetSetting";

    /// A level, used for the elements "Brightness" and "BlackLevel".
    struct level_t {
        /// The form of the level, attribute "Type": "Value", see `types::targetLevel`, or any other text. Written
        /// whenever the level is.
        std::string type{};

        /// The level, element "Value", unscaled; unit not recorded. Written for the type "Value".
        unsigned int value = 0;
    };

    /// The name of a standard, used for the elements "WhitePointV7", "GammaV7" and "GamutV7".
    struct standard_t {
        /// Attribute "Type": "Standard", see `types::targetStandard`, or any other text. Written whenever the element
        /// is.
        std::string type{};

        /// Name of the standard, element "Standard": any text. Written for the type "Standard".
        std::string standard{};
    };

    /// A white point, given by its temperature or its chromaticity.
    struct LVDATA_EXPORT white_point_t {
        /// The form of the white point, attribute "Type": "Temperature" or "Coordinate", see `types::targetWhitePoint`.
        /// Written whenever the white point is.
        std::string type{};

        /// Colour temperature, element "Temperature", unscaled; unit not recorded. Written for the type "Temperature".
        unsigned int temperature = 0;

        /// CIE 1931 chromaticity x, element "x", stored as `quantities::chromaticity`, times 10000. Written for the
        /// type "Coordinate".
        unsigned int x = 0;

        /// CIE 1931 chromaticity y, element "y", stored as `quantities::chromaticity`, times 10000. Written for the
        /// type "Coordinate".
        unsigned int y = 0;

        /// Returns the chromaticity in the members `x` and `y` of a colour.
        [[nodiscard]] colour coordinate_x() const;

        /// Stores the chromaticity from the members `x` and `y` of a colour. It is written only if `type` is
        /// "Coordinate".
        void coordinate_x(const colour& chromaticity);
    };

    /// The tone curves of the three channels and related settings.
    struct LVDATA_EXPORT gamma_t {
        /// The tone curve of one channel.
        struct LVDATA_EXPORT gamma_color {
            /// The form of the curve, attribute "Type": "Formula", "Lut" or "Lut24", each written with the child of
            /// that name. "PQ", "HLG" (ITU-R BT.2100) and other texts have no child. See `types::targetCurve`. Written
            /// whenever the curve is.
            std::string type{};

            /// The exponent, element "Formula", stored as `quantities::gamma`, times 100. Written for the type
            /// "Formula".
            unsigned int formula = 0;

            /// Curve of 16 bits and any length, element "Lut", each entry stored as `quantities::curveEntry16`, times
            /// 65535. Written for the type "Lut".
            std::vector<unsigned int> lut{};

            /// Curve of 24 bits and any length, element "Lut24", each entry stored as `quantities::curveEntry24`, times
            /// 16777215. Written for the type "Lut24".
            std::vector<unsigned int> lut24{};

            /// Returns the exponent: 2.2 for a stored 220.
            [[nodiscard]] double formula_x() const;

            /// Stores the exponent in `formula`: 2.2 as 220, a negative one as 0.
            void formula_x(double exponent);

            /// Returns the entries of `lut` as fractions of full scale.
            [[nodiscard]] std::vector<double> lut_x() const;

            /// Replaces `lut`; takes any number of entries.
            void lut_x(const std::vector<double>& entries);

            /// Returns the entries of `lut24` as fractions of full scale.
            [[nodiscard]] std::vector<double> lut24_x() const;

            /// Appends the entries after those that `lut24` already holds, and empties the other curve, `lut`. To
            /// replace the curve, clear `lut24` first. To have both curves, call this before `lut_x`.
            void lut24_x(const std::vector<double>& entries);
        };

        /// The file that a curve was imported from.
        struct LVDATA_EXPORT imported_lut_file {
            /// Name of the file, element "FileName" inside "ImportedLutFile". Written whenever that element is.
            std::string fileName{};

            /// Returns `fileName` unchanged.
            [[nodiscard]] std::string fileName_x() const;

            /// Stores the name in `fileName` unchanged.
            void fileName_x(const std::string& name);
        };

        gamma_color red{};    ///< Curve of the red channel, element "Red". Written whenever "Gamma" is.
        gamma_color green{};  ///< Curve of the green channel, element "Green". Written whenever "Gamma" is.
        gamma_color blue{};   ///< Curve of the blue channel, element "Blue". Written whenever "Gamma" is.

        /// Clipping of a PQ or HLG curve, element "PQHLGClipping". The possible texts are not recorded. Written when
        /// the type of the red curve is "PQ" or "HLG"; green and blue do not matter.
        std::string pqhlgClipping{};

        /// System gamma of HLG (ITU-R BT.2100), element "HLGSystemGamma", stored as `quantities::hlgSystemGamma`, times
        /// 100. Written when the record that is printed has `writeHLGSystemGamma` set; always read.
        unsigned int hlgSystemGamma = 0;

        /// The file that the curve was imported from, element "ImportedLutFile". Written when the file name is not
        /// empty and the type of the red curve is "Lut" or "Lut24".
        imported_lut_file importedLutFile{};

        /// Returns the HLG system gamma: 1.2 for a stored 120.
        [[nodiscard]] double hlgSystemGamma_x() const;

        /// Stores the HLG system gamma in `hlgSystemGamma`: 1.2 as 120, a negative one as 0.
        void hlgSystemGamma_x(double exponent);
    };

    /// A gamut, given by the chromaticities of its primaries.
    struct LVDATA_EXPORT gamut_t {
        /// The chromaticity of one primary.
        struct coordinate {
            /// CIE 1931 chromaticity x, element "x", stored as `quantities::chromaticity`, times 10000. Written
            /// whenever the primary is.
            unsigned int x = 0;

            /// CIE 1931 chromaticity y, element "y", stored as `quantities::chromaticity`, times 10000. Written
            /// whenever the primary is.
            unsigned int y = 0;
        };

        coordinate red{};    ///< The red primary, element "Red". Written when `isNative()` is false.
        coordinate green{};  ///< The green primary, element "Green". Written when `isNative()` is false.
        coordinate blue{};   ///< The blue primary, element "Blue". Written when `isNative()` is false.

        /// Name of a profile, element "ProfileName". Written when it is not empty.
        std::string profileName{};

        /// Gamut clipping, element "Value" inside "GamutClipping". The meaning of the number is not recorded. Written
        /// whenever "Gamut" is.
        unsigned int gamutClipping = 0;

        /// Whether this is the panel's own gamut: at least one of the six stored coordinates is 0. Then none of the
        /// primaries is written.
        [[nodiscard]] bool isNative() const;

        /// Returns the red primary in the members `x` and `y` of a colour.
        [[nodiscard]] colour red_x() const;

        /// Stores the red primary from the members `x` and `y` of a colour.
        void red_x(const colour& chromaticity);

        /// Returns the green primary in the members `x` and `y` of a colour.
        [[nodiscard]] colour green_x() const;

        /// Stores the green primary from the members `x` and `y` of a colour.
        void green_x(const colour& chromaticity);

        /// Returns the blue primary in the members `x` and `y` of a colour.
        [[nodiscard]] colour blue_x() const;

        /// Stores the blue primary from the members `x` and `y` of a colour.
        void blue_x(const colour& chromaticity);
    };

    /// Tint of the black level, unscaled, in adjustment steps of the monitor; the size of a step is not recorded. All
    /// three are written together.
    struct black_level_t {
        int red = 0;    ///< Tint of red, element "red" inside "blackLevel". Unit not recorded.
        int green = 0;  ///< Tint of green, element "green" inside "blackLevel". Unit not recorded.
        int blue = 0;   ///< Tint of blue, element "blue" inside "blackLevel". Unit not recorded.
    };

    /// Fine corrections, unscaled, in adjustment steps of the monitor; the size of a step is not recorded. Values are
    /// not checked.
    struct advanced_settings_t {
        /// The name of the tint of the black level inside this structure.
        using black_level_t = TargetSetting::black_level_t;

        /// One correction for each of six colours, inside "hue", "saturation" or "lightness" of "sixColors". All six
        /// are written together.
        struct advanced_settings_six_colors_t {
            int red = 0;      ///< Correction of red, element "red". Unit not recorded.
            int green = 0;    ///< Correction of green, element "green". Unit not recorded.
            int blue = 0;     ///< Correction of blue, element "blue". Unit not recorded.
            int cyan = 0;     ///< Correction of cyan, element "cyan". Unit not recorded.
            int magenta = 0;  ///< Correction of magenta, element "magenta". Unit not recorded.
            int yellow = 0;   ///< Correction of yellow, element "yellow". Unit not recorded.
        };

        /// Hue shift of all colours, element "hue" inside "AdvancedSettings". Unit not recorded. Written when set.
        property<int> hue{};

        /// Saturation shift of all colours, element "saturation" inside "AdvancedSettings". Unit not recorded. Written
        /// when set.
        property<int> saturation{};

        /// Tint of the black level, element "blackLevel". Written when set. After parsing, the flag says whether at
        /// least one of its three children was found; the others keep their earlier values.
        property<black_level_t> blackLevel{};

        /// Hue of six colours, element "hue" inside "sixColors". Written when set. After parsing, the flag says whether
        /// at least one of its six children was found; the others keep their earlier values.
        property<advanced_settings_six_colors_t> sixColorsHue{};

        /// Saturation of six colours, element "saturation" inside "sixColors". Written when set. After parsing, the
        /// flag says whether at least one of its six children was found; the others keep their earlier values.
        property<advanced_settings_six_colors_t> sixColorsSaturation{};

        /// Lightness of six colours, element "lightness" inside "sixColors". Written when set. After parsing, the flag
        /// says whether at least one of its six children was found; the others keep their earlier values.
        property<advanced_settings_six_colors_t> sixColorsLightness{};
    };

    /// A fresh record with nothing set, version 3.2.
    TargetSetting();

    /// Reads an element "TargetSetting". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "TargetSetting" to a document or an element and returns it; invalid when `parent` cannot take
    /// it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// A version text, element "LumivaleVersion". Written when set.
    property<std::string> lumivaleVersion;

    /// The fine contrast, element "FineContrast". The possible texts are not recorded. Written when set.
    property<std::string> fineContrast;

    /// Target brightness, element "Brightness". Unit not recorded. Written when set. After parsing, the flag says
    /// whether the element has the attribute "Type".
    property<level_t> brightness;

    /// Target black level, element "BlackLevel". Unit not recorded. Written when set. After parsing, the flag says
    /// whether the element has the attribute "Type".
    property<level_t> blackLevel;

    /// Target white point, element "WhitePoint" (older form). Written when set. After parsing, the flag says whether
    /// the element has the attribute "Type".
    property<white_point_t> whitePoint;

    /// Target white point by the name of a standard, element "WhitePointV7" (newer form). Written when set. After
    /// parsing, the flag says whether the element has the attribute "Type".
    property<standard_t> whitePointV7;

    /// Target tone curves, element "Gamma" (older form). Written when set. After parsing, the flag says whether at
    /// least one of its children "Red", "Green" and "Blue" was found.
    property<gamma_t> gamma;

    /// Target tone curve by the name of a standard, element "GammaV7" (newer form). Written when set. After parsing,
    /// the flag says whether the element has the attribute "Type".
    property<standard_t> gammaV7;

    /// Target gamut, element "Gamut" (older form). Written when set. After parsing, the flag says whether the element
    /// was found.
    property<gamut_t> gamut;

    /// Target gamut by the name of a standard, element "GamutV7" (newer form). Written when set. After parsing, the
    /// flag says whether the element has the attribute "Type".
    property<standard_t> gamutV7;

    /// The type of grey balance, element "Type" inside "GrayBalance". The meaning of the number is not recorded.
    /// Written when set.
    property<unsigned int> grayBalance;

    /// How the target was created, element "CreationType". The possible texts are not recorded. Written when set.
    property<std::string> creationType;

    /// Fine corrections, element "AdvancedSettings". Written when set. After parsing, the flag says whether the element
    /// was found.
    property<advanced_settings_t> advancedSettings;

    /// Whether to optimize for "Limited109", element "OptimizeForLimited109". The possible texts are not recorded.
    /// Written when set.
    property<std::string> optimizeForLimited109;

    /// \name Parts of the record
    /// Each reads or appends one child of the given element by the rules above and returns that child. The result is
    /// invalid when the child is missing or cannot be appended. A missing child leaves plain values unchanged and
    /// clears flags.
    /// @{

    /// Reads one channel's curve from the child `name` of `parent`.
    XMLElement parseGammaElement(XMLElement& parent, const std::string& name, gamma_t::gamma_color& color) const;

    /// Appends one channel's curve to `parent` as the child `name`.
    XMLElement appendGammaElement(XMLElement& parent, const std::string& name, const gamma_t::gamma_color& color) const;

    /// Reads a primary from the child `name` of `parent`. Its attribute "Type" is not read.
    XMLElement parseGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                           gamut_t::coordinate& coordinate) const;

    /// Appends a primary to `parent` as the child `name` with the attribute "Type" "Coordinate", even if it is 0.
    XMLElement appendGamutCoordinateElement(XMLElement& parent, const std::string& name,
                                            const gamut_t::coordinate& coordinate) const;

    /// Reads the fine corrections from the child "AdvancedSettings" of `parent`.
    XMLElement parseAdvancedSettingsElement(XMLElement& parent, advanced_settings_t& settings) const;

    /// Appends the fine corrections to `parent` as the child "AdvancedSettings", empty when none of them is set.
    XMLElement appendAdvancedSettingElement(XMLElement& parent, const advanced_settings_t& settings) const;

    /// Reads six corrections from the child `name` of `sixColors`; the flag becomes whether at least one was found.
    XMLElement
    parseAdvancedSettingsSixColorsElement(XMLElement& sixColors, const std::string& name,
                                          property<advanced_settings_t::advanced_settings_six_colors_t>& target) const;

    /// Appends six corrections to `sixColors` as the child `name`.
    XMLElement
    appendAdvancedSettingSixColorElement(XMLElement& sixColors, const std::string& name,
                                         const advanced_settings_t::advanced_settings_six_colors_t& values) const;
    /// @}
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
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
