#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/export.h>

#include <vector>

namespace lv {

/// The adjustment values read from or written to a monitor: brightness and contrast, the look-up tables of the three
/// channels, HLG settings, six-colour adjustments, gains and an emulation matrix.
///
/// Fractions are stored in fixed point, as the document carries them. The `_x` accessors convert: a getter divides the
/// stored value by its factor, whether or not the flag is set; a setter stores the value times the factor plus 0.5,
/// truncated toward zero, and sets the flag. Negative input becomes 0 in the unsigned fields. Nothing fails: NaN,
/// infinities and magnitudes of 2^63 and more store 0, and what exceeds 32 bits keeps its low 32 bits.
///
/// Unless said otherwise a member is written when it is set, as a child of the root element under its own name.
/// Version 4.0.
class LVDATA_EXPORT MonitorParameter : public DataObject {
public:
    /// The name of the root element.
    static constexpr const char* rootElementName = "MonitorParameter";

    /// One signed adjustment for each of six colours, in the monitor's own steps.
    struct six_colors_t {
        int red = 0;
        int green = 0;
        int blue = 0;
        int cyan = 0;
        int magenta = 0;
        int yellow = 0;
    };

    MonitorParameter();

    bool parseXMLElement(XMLElement element) override;
    XMLElement appendXMLElement(XMLNode& parent) const override;

    /// What a document of this record consists of.
    [[nodiscard]] static Description describe();

    /// Brightness and contrast in the monitor's own units, elements "Brightness" and "Contrast".
    property<unsigned int> brightness;
    property<unsigned int> contrast;

    /// 1: the look-up tables are stored at the HDR scale; any other value: at the normal one. Element "isHDRLUT".
    property<unsigned int> isHDRLUT;

    /// Look-up tables of 256 or 1024 entries, each times 1000000, or times 1000000000 when `isHDRLUT` is 1. Elements
    /// "RedLUT", "GreenLUT", "BlueLUT". A table of another length is neither written nor, when it was read, flagged as
    /// set; its entries stay in memory.
    property<std::vector<unsigned int>> redLUT;
    property<std::vector<unsigned int>> greenLUT;
    property<std::vector<unsigned int>> blueLUT;

    /// System gamma of HLG (ITU-R BT.2100) times 100, element "HLGSystemGamma".
    property<unsigned int> hlgSystemGamma;

    /// HLG clipping in the monitor's own units, element "HLGClipping".
    property<unsigned int> hlgClipping;

    /// Six-colour adjustments: elements "RedHue" to "YellowHue", "RedSaturation" to "YellowSaturation", "RedLightness"
    /// to "YellowLightness". A group is set when at least one of its elements was found; the others then keep their
    /// earlier values. A group that is set is written with all six elements.
    property<six_colors_t> hue;
    property<six_colors_t> saturation;
    property<six_colors_t> lightness;

    /// Gains times 1000000, elements "RedGain", "GreenGain", "BlueGain".
    property<unsigned int> redGain;
    property<unsigned int> greenGain;
    property<unsigned int> blueGain;

    /// A 3 x 3 matrix: 9 signed entries, each times 1000000, element "EmulationMatrix". With another number of entries
    /// it is treated as a look-up table of another length is.
    property<std::vector<int>> emulationMatrix;

    /// The Limited109 setting in the monitor's own units, element "Limited109Setting".
    property<unsigned int> limited109Setting;

    /// \name Look-up tables as fractions
    /// The scale is the one that the value of `isHDRLUT` chooses at the moment of the call, so that is to be set first.
    /// Any number of entries is taken.
    /// @{
    [[nodiscard]] std::vector<double> redLUT_x() const;
    void redLUT_x(const std::vector<double>& values);
    [[nodiscard]] std::vector<double> greenLUT_x() const;
    void greenLUT_x(const std::vector<double>& values);
    [[nodiscard]] std::vector<double> blueLUT_x() const;
    void blueLUT_x(const std::vector<double>& values);
    /// @}

    /// The HLG system gamma, 1.2 for a stored 120.
    [[nodiscard]] double hlgSystemGamma_x() const;
    void hlgSystemGamma_x(double exponent);

    /// \name Gains as fractions
    /// @{
    [[nodiscard]] double redGain_x() const;
    void redGain_x(double gain);
    [[nodiscard]] double greenGain_x() const;
    void greenGain_x(double gain);
    [[nodiscard]] double blueGain_x() const;
    void blueGain_x(double gain);
    /// @}

    /// The emulation matrix, row by row as the caller orders it; any number of entries is taken. Truncation is toward
    /// zero on either side of it, so -0.3 is stored as -299999.
    [[nodiscard]] std::vector<double> emulationMatrix_x() const;
    void emulationMatrix_x(const std::vector<double>& entries);
};

/// \name Equality
/// Two records are equal when all members that documents hold are, flags and version numbers included. Not compared:
/// `writeHLGSystemGamma`.
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
