#include <lvdata/analysis/colour/transfer.h>

namespace lv::analysis::colour {

double sRGBLight(double) {
    return 0;
}

double lightnessLight(double) {
    return 0;
}

double bt1886Luminance(double, double, double) {
    return 0;
}

double pqLuminance(double) {
    return 0;
}

double pqSignal(double) {
    return 0;
}

double hlgSceneLight(double) {
    return 0;
}

double hlgSystemGamma(double) {
    return 0;
}

double gsdfLuminance(double) {
    return 0;
}

double gsdfIndex(double) {
    return 0;
}

std::array<double, 3> hlgDisplayLight(const std::array<double, 3>& scene, double, const std::array<double, 3>&) {
    return scene;
}

}  // namespace lv::analysis::colour
