#include <tests/samples/studio/ColourMode.h>

#include <cmath>

namespace studio {

using colorimetry::Triple;

double lightOfGrey(ToneCurve curve, double signal) {
    switch (curve) {
    case ToneCurve::gamma:
        return std::pow(signal, photoGamma);
    case ToneCurve::lightness:
        return colorimetry::luminanceOfLightness(100.0 * signal);
    case ToneCurve::hlg:
        return std::pow(colorimetry::hlgSceneLight(signal), hlgSystemGamma);
    }
    return 0.0;
}

Triple lightOf(ToneCurve curve, const Triple& signals) {
    if (curve == ToneCurve::hlg) {
        const Triple scene = {colorimetry::hlgSceneLight(signals[0]), colorimetry::hlgSceneLight(signals[1]),
                              colorimetry::hlgSceneLight(signals[2])};
        return colorimetry::hlgDisplayLight(scene, hlgSystemGamma);
    }
    return {lightOfGrey(curve, signals[0]), lightOfGrey(curve, signals[1]), lightOfGrey(curve, signals[2])};
}

}  // namespace studio
