#pragma once

#include <array>

/// Tone curves of the standards. Signals are 0 to 1. An argument outside its range is set to the nearer end, NaN to the
/// lower end.
namespace lv::analysis::colour {

/// EOTF of IEC 61966-2-1 (sRGB): the light of a signal, 0 to 1.
[[nodiscard]] double sRGBLight(double signal);

/// The light of a signal that is proportional to CIE L*: Y/Yn by the inverse of CIE 15:2018, 8.2.1, L* being 100 times
/// the signal.
[[nodiscard]] double lightnessLight(double signal);

/// EOTF of ITU-R BT.1886, annex 1: the luminance of a signal on a display of that white and black, all in one unit. A
/// luminance below 0 counts as 0.
[[nodiscard]] double bt1886Luminance(double signal, double white, double black);

/// EOTF of perceptual quantization (PQ): the luminance of a signal in cd/m², 0 to 10,000. ITU-R BT.2100, table 4.
[[nodiscard]] double pqLuminance(double signal);

/// The inverse of `pqLuminance`: the signal of a luminance in cd/m², 0 to 10,000.
[[nodiscard]] double pqSignal(double luminance);

/// Inverse OETF of hybrid log-gamma (HLG): the scene light of a signal, 0 to 1. ITU-R BT.2100, table 5.
[[nodiscard]] double hlgSceneLight(double signal);

/// OOTF of HLG without gain: the light that a display makes of three scene lights. ITU-R BT.2100, table 5:
/// R_D = Y_S^(gamma - 1) R_S, Y_S being the sum of `luminances` times the lights. All 0 where Y_S is not above 0.
[[nodiscard]] std::array<double, 3> hlgDisplayLight(const std::array<double, 3>& scene, double systemGamma,
                                                    const std::array<double, 3>& luminances);

/// The system gamma of HLG for a display whose white has this luminance in cd/m²: ITU-R BT.2100, table 5, note 5f, from
/// 400 to 2000 cd/m²; the extended model of ITU-R BT.2390, 6.2, from 1 to 10,000 cd/m².
[[nodiscard]] double hlgSystemGamma(double luminance);

/// The grayscale standard display function (GSDF), DICOM PS3.14, 7.1: the luminance in cd/m² of an index of
/// just-noticeable differences (JND), 1 to 1023.
[[nodiscard]] double gsdfLuminance(double index);

/// The inverse of it, DICOM PS3.14, 7.1: the JND index of a luminance of 0.05 to 4000 cd/m². It is an approximation, so
/// that indices come back with an error of some hundredths.
[[nodiscard]] double gsdfIndex(double luminance);

}  // namespace lv::analysis::colour
