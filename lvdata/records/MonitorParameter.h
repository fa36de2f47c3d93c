#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/Quantity.h>
#include <lvdata/export.h>

#include <vector>

namespace lv {

/// The adjustment values read from or written to a monitor: brightness and contrast, the look-up tables of the three
/// channels, HLG settings, six-colour adjustments, gains and an emulation matrix.
///
/// All members are children of the root element. Fractions are stored as integers, as in the document; the `_x`
/// accessors convert them, see lvdata/core/quantities.h. Getters ignore the flag, setters set it.
///
/// A look-up table must have 256 or 1024 entries, the emulation matrix 9. With any other number of entries they are not
/// written, although a setter accepts them and sets the flag; `trySet` refuses them. When such an array is read, its
/// entries stay in memory and its flag is cleared. Version 4.0.
class LVDATA_EXPORT MonitorParameter : public DataObject {
public:
    /// The name of the root element, compared exactly.
    static constexpr const char* rootElementName = "MonitorParameter";

    /// One signed adjustment for each of six colours, unscaled; unit not recorded. Each is a child element of the root
    /// element; all six are written together.
    struct six_colors_t {
        int red = 0;      ///< Element "RedHue", "RedSaturation" or "RedLightness". Unit not recorded.
        int green = 0;    ///< Element "GreenHue", "GreenSaturation" or "GreenLightness". Unit not recorded.
        int blue = 0;     ///< Element "BlueHue", "BlueSaturation" or "BlueLightness". Unit not recorded.
        int cyan = 0;     ///< Element "CyanHue", "CyanSaturation" or "CyanLightness". Unit not recorded.
        int magenta = 0;  ///< Element "MagentaHue", "MagentaSaturation" or "MagentaLightness". Unit not recorded.
        int yellow = 0;   ///< Element "YellowHue", "YellowSaturation" or "YellowLightness". Unit not recorded.
    };

    /// A fresh record with nothing set, version 4.0.
    MonitorParameter();

    /// Reads an element "MonitorParameter". False, with nothing changed, when the element has a different name.
    bool parseXMLElement(XMLElement element) override;

    /// Appends an element "MonitorParameter" to a document or an element and returns it; invalid when `parent` cannot
    /// take it.
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// Everything that a document of this record can contain, as a tree of its elements and attributes; the same for
    /// every record of the class.
    [[nodiscard]] static Description describe();

    /// Brightness, element "Brightness", unscaled; unit not recorded. Written when set.
    property<unsigned int> brightness;

    /// Contrast, element "Contrast", unscaled; unit not recorded. Written when set.
    property<unsigned int> contrast;

    /// Scale of the three look-up tables, element "isHDRLUT": HDR when the value is 1 (`types::tableScale::hdr`),
    /// whatever the flag, otherwise normal. A number: the text "true" reads as 0. Written when set.
    property<unsigned int> isHDRLUT;

    /// Look-up table of the red channel, element "RedLUT": each entry stored as `quantities::tableEntry`, times
    /// 1000000, or as `quantities::hdrTableEntry`, times 1000000000, when `isHDRLUT` is 1. Written when set, with 256
    /// or 1024 entries.
    property<std::vector<unsigned int>> redLUT;

    /// Look-up table of the green channel, element "GreenLUT": each entry stored as `quantities::tableEntry`, times
    /// 1000000, or as `quantities::hdrTableEntry`, times 1000000000, when `isHDRLUT` is 1. Written when set, with 256
    /// or 1024 entries.
    property<std::vector<unsigned int>> greenLUT;

    /// Look-up table of the blue channel, element "BlueLUT": each entry stored as `quantities::tableEntry`, times
    /// 1000000, or as `quantities::hdrTableEntry`, times 1000000000, when `isHDRLUT` is 1. Written when set, with 256
    /// or 1024 entries.
    property<std::vector<unsigned int>> blueLUT;

    /// System gamma of HLG (ITU-R BT.2100), element "HLGSystemGamma", stored as `quantities::hlgSystemGamma`, times
    /// 100. Written when set; this record ignores `writeHLGSystemGamma`.
    property<unsigned int> hlgSystemGamma;

    /// HLG clipping, element "HLGClipping", unscaled; unit not recorded. Written when set.
    property<unsigned int> hlgClipping;

    /// Hue of six colours, elements "RedHue" to "YellowHue". Unit not recorded. Written when set, all six together.
    /// After parsing, the flag says whether at least one of them was found; the others keep their earlier values.
    property<six_colors_t> hue;

    /// Saturation of six colours, elements "RedSaturation" to "YellowSaturation". Unit not recorded. Written when set,
    /// all six together. After parsing, the flag says whether at least one of them was found; the others keep their
    /// earlier values.
    property<six_colors_t> saturation;

    /// Lightness of six colours, elements "RedLightness" to "YellowLightness". Unit not recorded. Written when set,
    /// all six together. After parsing, the flag says whether at least one of them was found; the others keep their
    /// earlier values.
    property<six_colors_t> lightness;

    /// Gain of the red channel, element "RedGain", stored as `quantities::gain`, times 1000000. Written when set.
    property<unsigned int> redGain;

    /// Gain of the green channel, element "GreenGain", stored as `quantities::gain`, times 1000000. Written when set.
    property<unsigned int> greenGain;

    /// Gain of the blue channel, element "BlueGain", stored as `quantities::gain`, times 1000000. Written when set.
    property<unsigned int> blueGain;

    /// A 3 x 3 matrix of signed entries, element "EmulationMatrix", each stored as `quantities::matrixEntry`, times
    /// 1000000. Written when set, with 9 entries.
    property<std::vector<int>> emulationMatrix;

    /// The "Limited109" setting, element "Limited109Setting", unscaled. The meaning of the number is not recorded.
    /// Written when set.
    property<unsigned int> limited109Setting;

    /// \name Look-up tables as fractions
    /// Set `isHDRLUT` first: its value at the time of the call determines the scale. Changing it later changes what the
    /// getters return, not what is stored. Normal tables hold values up to 4294.967295, HDR tables up to 4.294967295;
    /// beyond that they wrap.
    /// @{

    /// Returns the quantity of the table entries: `quantities::hdrTableEntry` when `isHDRLUT` is 1, otherwise
    /// `quantities::tableEntry`. For `trySet`, which checks values and lengths.
    [[nodiscard]] const Quantity& tableQuantity() const;

    /// Returns the entries of `redLUT` as fractions, at the scale that `isHDRLUT` now gives.
    [[nodiscard]] std::vector<double> redLUT_x() const;

    /// Replaces `redLUT` and sets its flag. Takes any number of entries, but only 256 or 1024 are written.
    void redLUT_x(const std::vector<double>& values);

    /// Returns the entries of `greenLUT` as fractions, at the scale that `isHDRLUT` now gives.
    [[nodiscard]] std::vector<double> greenLUT_x() const;

    /// Replaces `greenLUT` and sets its flag. Takes any number of entries, but only 256 or 1024 are written.
    void greenLUT_x(const std::vector<double>& values);

    /// Returns the entries of `blueLUT` as fractions, at the scale that `isHDRLUT` now gives.
    [[nodiscard]] std::vector<double> blueLUT_x() const;

    /// Replaces `blueLUT` and sets its flag. Takes any number of entries, but only 256 or 1024 are written.
    void blueLUT_x(const std::vector<double>& values);
    /// @}

    /// Returns the HLG system gamma: 1.2 for a stored 120.
    [[nodiscard]] double hlgSystemGamma_x() const;

    /// Stores the HLG system gamma in `hlgSystemGamma` and sets its flag: 1.2 is stored as 120.
    void hlgSystemGamma_x(double exponent);

    /// \name Gains as fractions
    /// 1.0 is stored as 1000000, a negative gain as 0.
    /// @{

    /// Returns `redGain` as a fraction.
    [[nodiscard]] double redGain_x() const;

    /// Stores the gain in `redGain` and sets its flag.
    void redGain_x(double gain);

    /// Returns `greenGain` as a fraction.
    [[nodiscard]] double greenGain_x() const;

    /// Stores the gain in `greenGain` and sets its flag.
    void greenGain_x(double gain);

    /// Returns `blueGain` as a fraction.
    [[nodiscard]] double blueGain_x() const;

    /// Stores the gain in `blueGain` and sets its flag.
    void blueGain_x(double gain);
    /// @}

    /// Returns the entries of `emulationMatrix` as fractions, in stored order.
    [[nodiscard]] std::vector<double> emulationMatrix_x() const;

    /// Replaces `emulationMatrix` and sets its flag. Takes any number of entries, but only 9 are written. Negative
    /// entries are stored one step closer to zero (-0.3 as -299999): they move toward zero each time they are read and
    /// set.
    void emulationMatrix_x(const std::vector<double>& entries);
};

/// \name Equality
/// Two records are equal when all members that documents hold are equal, including flags and version numbers.
/// Values with clear flags are compared, too. Not compared: `writeHLGSystemGamma`.
/// @{
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorParameter::six_colors_t& left,
                                            const MonitorParameter::six_colors_t& right);
[[nodiscard]] inline bool operator!=(const MonitorParameter::six_colors_t& left,
                                     const MonitorParameter::six_colors_t& right) {
    return !(left == right);
}
[[nodiscard]] LVDATA_EXPORT bool operator==(const MonitorParameter& left, const MonitorParameter& right);
[[nodiscard]] inline bool operator!=(const MonitorParameter& left, const MonitorParameter& right) {
    return !(left == right);
}
/// @}

}  // namespace lv
