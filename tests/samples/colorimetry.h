#pragma once

#include <array>
#include <cmath>

/// The textbook formulas that the sample documents are computed with.
namespace colorimetry {

/// X, Y and Z, or red, green and blue, or L*, a* and b*.
using Triple = std::array<double, 3>;

/// The tristimulus values of a display's three channels.
struct Primaries {
    Triple red;
    Triple green;
    Triple blue;
};

/// A value to the step that an instrument shows or a device holds, so that every machine computes the same number.
inline double roundedTo(double step, double value) {
    return std::round(value / step) * step;
}

inline Triple roundedTo(double step, const Triple& values) {
    return {roundedTo(step, values[0]), roundedTo(step, values[1]), roundedTo(step, values[2])};
}

constexpr Triple scaled(double factor, const Triple& values) {
    return {factor * values[0], factor * values[1], factor * values[2]};
}

constexpr Triple sum(const Triple& left, const Triple& right) {
    return {left[0] + right[0], left[1] + right[1], left[2] + right[2]};
}

/// Tristimulus values of a chromaticity at Y = 1 (CIE 15).
constexpr Triple tristimulus(double x, double y) {
    return {x / y, 1.0, (1.0 - x - y) / y};
}

constexpr double determinant(const Triple& first, const Triple& second, const Triple& third) {
    return first[0] * (second[1] * third[2] - second[2] * third[1]) +
           first[1] * (second[2] * third[0] - second[0] * third[2]) +
           first[2] * (second[0] * third[1] - second[1] * third[0]);
}

/// How much of each primary it takes to make a colour (SMPTE RP 177, by Cramer's rule).
constexpr Triple partsOf(const Triple& target, const Primaries& primaries) {
    const auto& [red, green, blue] = primaries;
    const double whole = determinant(red, green, blue);
    return {determinant(target, green, blue) / whole, determinant(red, target, blue) / whole,
            determinant(red, green, target) / whole};
}

/// The colour that so much of each primary makes: light adds up (Grassmann's laws, CIE 15).
constexpr Triple mixture(const Triple& parts, const Primaries& primaries) {
    return sum(scaled(parts[0], primaries.red),
               sum(scaled(parts[1], primaries.green), scaled(parts[2], primaries.blue)));
}

/// The function f of CIELAB (CIE 15, 8.2.1.1), and back.
inline constexpr double labDelta = 6.0 / 29.0;

inline double labFunction(double ratio) {
    constexpr double limit = labDelta * labDelta * labDelta;
    return ratio > limit ? std::cbrt(ratio) : ratio / (3 * labDelta * labDelta) + 4.0 / 29.0;
}

constexpr double labFunctionInverse(double value) {
    return value > labDelta ? value * value * value : 3 * labDelta * labDelta * (value - 4.0 / 29.0);
}

/// CIELAB of tristimulus values against a white.
inline Triple lab(const Triple& xyz, const Triple& white) {
    const double fX = labFunction(xyz[0] / white[0]);
    const double fY = labFunction(xyz[1] / white[1]);
    const double fZ = labFunction(xyz[2] / white[2]);
    return {116 * fY - 16, 500 * (fX - fY), 200 * (fY - fZ)};
}

/// The relative luminance of a lightness, 1 for L* = 100.
constexpr double luminanceOfLightness(double lightness) {
    return labFunctionInverse((lightness + 16) / 116);
}

/// The scene light of an HLG signal, both 0 to 1: the inverse of the OETF (ITU-R BT.2100, table 5).
inline double hlgSceneLight(double signal) {
    constexpr double slope = 0.17883277;  // a, b and c of the recommendation
    constexpr double lift = 1.0 - 4.0 * slope;
    constexpr double shift = 0.55991073;
    return signal <= 0.5 ? signal * signal / 3.0 : (std::exp((signal - shift) / slope) + lift) / 12.0;
}

/// The display light of scene light, white being 1: the OOTF of HLG with its system gamma (ITU-R BT.2100, table 5).
inline Triple hlgDisplayLight(const Triple& scene, double systemGamma) {
    const double luminance = 0.2627 * scene[0] + 0.6780 * scene[1] + 0.0593 * scene[2];
    return luminance > 0.0 ? scaled(std::pow(luminance, systemGamma - 1.0), scene) : Triple{};
}

}  // namespace colorimetry
