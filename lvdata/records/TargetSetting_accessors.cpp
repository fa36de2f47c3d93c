#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/quantities.h>
#include <lvdata/records/TargetSetting.h>

namespace lv {
namespace {

template <class Chromaticity>
colour toColour(const Chromaticity& stored) {
    colour result;
    result.x = detail::from_fixed(stored.x, quantities::chromaticity.factor);
    result.y = detail::from_fixed(stored.y, quantities::chromaticity.factor);
    return result;
}

template <class Chromaticity>
void fromColour(Chromaticity& stored, const colour& source) {
    stored.x = detail::to_fixed<unsigned int>(source.x, quantities::chromaticity.factor);
    stored.y = detail::to_fixed<unsigned int>(source.y, quantities::chromaticity.factor);
}

}  // namespace

colour TargetSetting::white_point_t::coordinate_x() const {
    return toColour(*this);
}

void TargetSetting::white_point_t::coordinate_x(const colour& chromaticity) {
    fromColour(*this, chromaticity);
}

double TargetSetting::gamma_t::gamma_color::formula_x() const {
    return detail::from_fixed(formula, quantities::gamma.factor);
}

void TargetSetting::gamma_t::gamma_color::formula_x(double exponent) {
    formula = detail::to_fixed<unsigned int>(exponent, quantities::gamma.factor);
}

std::vector<double> TargetSetting::gamma_t::gamma_color::lut_x() const {
    return detail::from_fixed(lut, quantities::curveEntry16.factor);
}

void TargetSetting::gamma_t::gamma_color::lut_x(const std::vector<double>& entries) {
    lut = detail::to_fixed<unsigned int>(entries, quantities::curveEntry16.factor);
}

std::vector<double> TargetSetting::gamma_t::gamma_color::lut24_x() const {
    return detail::from_fixed(lut24, quantities::curveEntry24.factor);
}

void TargetSetting::gamma_t::gamma_color::lut24_x(const std::vector<double>& entries) {
    const std::vector<unsigned int> stored = detail::to_fixed<unsigned int>(entries, quantities::curveEntry24.factor);
    lut.clear();
    lut24.insert(lut24.end(), stored.begin(), stored.end());
}

std::string TargetSetting::gamma_t::imported_lut_file::fileName_x() const {
    return fileName;
}

void TargetSetting::gamma_t::imported_lut_file::fileName_x(const std::string& name) {
    fileName = name;
}

double TargetSetting::gamma_t::hlgSystemGamma_x() const {
    return detail::from_fixed(hlgSystemGamma, quantities::hlgSystemGamma.factor);
}

void TargetSetting::gamma_t::hlgSystemGamma_x(double exponent) {
    hlgSystemGamma = detail::to_fixed<unsigned int>(exponent, quantities::hlgSystemGamma.factor);
}

bool TargetSetting::gamut_t::isNative() const {
    return red.x == 0 || red.y == 0 || green.x == 0 || green.y == 0 || blue.x == 0 || blue.y == 0;
}

colour TargetSetting::gamut_t::red_x() const {
    return toColour(red);
}

void TargetSetting::gamut_t::red_x(const colour& chromaticity) {
    fromColour(red, chromaticity);
}

colour TargetSetting::gamut_t::green_x() const {
    return toColour(green);
}

void TargetSetting::gamut_t::green_x(const colour& chromaticity) {
    fromColour(green, chromaticity);
}

colour TargetSetting::gamut_t::blue_x() const {
    return toColour(blue);
}

void TargetSetting::gamut_t::blue_x(const colour& chromaticity) {
    fromColour(blue, chromaticity);
}

}  // namespace lv
