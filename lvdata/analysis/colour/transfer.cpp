#include <lvdata/analysis/colour/transfer.h>

#include <cmath>

namespace lv::analysis::colour {
namespace {

// Not a number counts as the lower end.
double limited(double value, double lower, double upper) {
    return std::fmin(std::fmax(value, lower), upper);
}

double limitedSignal(double signal) {
    return limited(signal, 0, 1);
}

// The coefficients stand in rising order.
template <std::size_t Count>
double polynomial(const std::array<double, Count>& coefficients, double value) {
    double result = 0;
    for (auto coefficient = coefficients.rbegin(); coefficient != coefficients.rend(); ++coefficient) {
        result = result * value + *coefficient;
    }
    return result;
}

// The constants of perceptual quantization.
namespace pq {
constexpr double m1 = 2610.0 / 16384;
constexpr double m2 = 2523.0 / 4096 * 128;
constexpr double c1 = 3424.0 / 4096;
constexpr double c2 = 2413.0 / 4096 * 32;
constexpr double c3 = 2392.0 / 4096 * 32;
constexpr double peak = 10000;
}  // namespace pq

}  // namespace

double sRGBLight(double signal) {
    const double value = limitedSignal(signal);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double lightnessLight(double signal) {
    const double lightness = 100 * limitedSignal(signal);
    constexpr double slope = 27.0 / 24389;  // (3/29)³
    return lightness <= 8 ? lightness * slope : std::pow((lightness + 16) / 116, 3);
}

double bt1886Luminance(double signal, double white, double black) {
    constexpr double gamma = 2.4;
    const double value = limitedSignal(signal);
    const double whiteRoot = std::pow(std::fmax(white, 0), 1 / gamma);
    const double blackRoot = std::pow(std::fmax(black, 0), 1 / gamma);
    return std::pow(value * whiteRoot + (1 - value) * blackRoot, gamma);
}

double pqLuminance(double signal) {
    const double power = std::pow(limitedSignal(signal), 1 / pq::m2);
    return pq::peak * std::pow(std::fmax(power - pq::c1, 0) / (pq::c2 - pq::c3 * power), 1 / pq::m1);
}

double pqSignal(double luminance) {
    const double power = std::pow(limited(luminance, 0, pq::peak) / pq::peak, pq::m1);
    return std::pow((pq::c1 + pq::c2 * power) / (1 + pq::c3 * power), pq::m2);
}

double hlgSceneLight(double signal) {
    // The constants a, b and c of the table.
    constexpr double scale = 0.17883277;
    constexpr double offset = 0.28466892;
    constexpr double start = 0.55991073;
    const double value = limitedSignal(signal);
    return value <= 0.5 ? value * value / 3 : (std::exp((value - start) / scale) + offset) / 12;
}

std::array<double, 3> hlgDisplayLight(const std::array<double, 3>& scene, double systemGamma,
                                      const std::array<double, 3>& luminances) {
    const double sum = luminances[0] * scene[0] + luminances[1] * scene[1] + luminances[2] * scene[2];
    if (!(sum > 0)) {
        return {};
    }
    const double factor = std::pow(sum, systemGamma - 1);
    return {factor * scene[0], factor * scene[1], factor * scene[2]};
}

double hlgSystemGamma(double luminance) {
    const double peak = limited(luminance, 1, 10000);
    const bool isUsual = peak >= 400 && peak <= 2000;
    return isUsual ? 1.2 + 0.42 * std::log10(peak / 1000) : 1.2 * std::pow(1.111, std::log2(peak / 1000));
}

double gsdfLuminance(double index) {
    constexpr std::array<double, 5> numerator = {-1.3011877, 8.0242636e-2, 1.3646699e-1, -2.5468404e-2, 1.3635334e-3};
    constexpr std::array<double, 6> denominator = {
        1, -2.5840191e-2, -1.0320229e-1, 2.8745620e-2, -3.1978977e-3, 1.2992634e-4};
    const double logarithm = std::log(limited(index, 1, 1023));
    return std::pow(10, polynomial(numerator, logarithm) / polynomial(denominator, logarithm));
}

double gsdfIndex(double luminance) {
    constexpr std::array<double, 9> coefficients = {71.498068,  94.593053,   41.912053,  9.8247004,   0.28175407,
                                                    -1.1878455, -0.18014349, 0.14710899, -0.017046845};
    return polynomial(coefficients, std::log10(limited(luminance, 0.05, 4000)));
}

}  // namespace lv::analysis::colour
