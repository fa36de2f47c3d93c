#pragma once

#include <tests/samples/colorimetry.h>

#include <array>

namespace studio {

enum class ToneCurve { gamma, lightness, hlg };

/// A colour mode that the monitor is calibrated to.
struct ColourMode {
    unsigned int index;
    const char* name;
    const char* calibratedTime;
    double luminance;  // of its white, cd/m2
    double whiteX;     // chromaticity of its white
    double whiteY;
    ToneCurve curve;
    const char* whiteStandard;  // the names of white, curve and gamut among standards
    const char* curveStandard;
    const char* gamutStandard;
    unsigned int tableLength;  // of the monitor's look-up tables
};

inline constexpr double photoGamma = 2.2;
inline constexpr double hlgSystemGamma = 1.2;  // for a display of 1000 cd/m2 (ITU-R BT.2100, table 5)

inline constexpr ColourMode photo = {
    2, "Photo", "2024-05-02T09:31:00", 120.0, 0.3127, 0.3290, ToneCurve::gamma, "D65", "2.2", "Native", 256,
};

inline constexpr ColourMode proof = {
    3, "Proof", "2024-05-02T09:48:00", 160.0, 0.3457, 0.3585, ToneCurve::lightness, "D50", "LStar", "Native", 256,
};

inline constexpr ColourMode broadcast = {
    4, "Broadcast", "2024-05-02T10:07:00", 1000.0, 0.3127, 0.3290, ToneCurve::hlg, "D65", "HLG", "BT.2100", 1024,
};

inline constexpr std::array colourModes = {photo, proof, broadcast};

/// The light of one channel, 0 to 1, that a signal of 0 to 1 is to make where all three channels have it.
double lightOfGrey(ToneCurve curve, double signal);

/// The light of the three channels that their signals are to make.
colorimetry::Triple lightOf(ToneCurve curve, const colorimetry::Triple& signals);

}  // namespace studio
