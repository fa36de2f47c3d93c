#pragma once

#include <lvdata/analysis/figures/Figure.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The range of Y that a display can show.
struct ToneRange {
    double white = 0;         ///< Y of its white; above that of black.
    double black = 0;         ///< Y of its black.
    bool isAbsolute = false;  ///< Whether Y is known to be in cd/m².
};

/// A tone curve: the light for a signal.
struct ToneCurve {
    /// What kind of curve it is.
    enum class Kind {
        power,      ///< The signal to the power of `exponent`.
        table,      ///< The `entries` at equal distances from signal 0 to 1, a straight line between two.
        sRGB,       ///< IEC 61966-2-1.
        lightness,  ///< The lightness L* of CIE 15.
        bt1886,     ///< ITU-R BT.1886.
        hlg,   ///< Hybrid log-gamma of ITU-R BT.2100, with `exponent` as system gamma, 0 for that of the luminance.
        pq,    ///< Perceptual quantization of ITU-R BT.2100, up to the display's white.
        gsdf,  ///< The grayscale standard display function of DICOM PS3.14.
    };

    Kind kind = Kind::power;        ///< Its kind.
    double exponent = 0;            ///< For `power` and `hlg`.
    std::vector<double> entries{};  ///< For `table`: two or more.
    std::string label{};            ///< Its name: "2.2", "table", "LStar".
};

[[nodiscard]] bool operator==(const ToneCurve& left, const ToneCurve& right);

/// A curve with this exponent; no value unless that is above 0.
[[nodiscard]] std::optional<ToneCurve> powerCurve(double exponent);

/// A curve by its entries; no value of fewer than two.
[[nodiscard]] std::optional<ToneCurve> tableCurve(std::vector<double> entries);

/// The curve that a record names: a number such as "2.2" is an exponent. In other names, upper and lower case are
/// equal, and only letters and digits are compared: "L*" and "LStar", "BT.1886", "DICOM" and "GSDF". No value for any
/// other.
[[nodiscard]] std::optional<ToneCurve> curveNamed(std::string_view name);

/// The light of a grey signal of 0 to 1 over that of black and white, 0 to 1: (Y - black) / (white - black).
[[nodiscard]] Figure lightOf(const ToneCurve& curve, double signal, const ToneRange& range);

/// The system gamma of an HLG curve.
[[nodiscard]] Figure systemGammaOf(const ToneCurve& curve, const ToneRange& range);

}  // namespace lv::analysis
