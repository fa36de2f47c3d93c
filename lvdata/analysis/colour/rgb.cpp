#include <lvdata/analysis/colour/rgb.h>

#include <algorithm>
#include <cmath>

#include <lcms2.h>

namespace lv::analysis::colour {
namespace {

using Vector = std::array<double, 3>;

Vector cross(const Vector& left, const Vector& right) {
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
            left[0] * right[1] - left[1] * right[0]};
}

double dot(const Vector& left, const Vector& right) {
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

double length(const Vector& vector) {
    return std::sqrt(dot(vector, vector));
}

Vector scaled(const Vector& vector, double factor) {
    return {vector[0] * factor, vector[1] * factor, vector[2] * factor};
}

bool isFinite(const Vector& vector) {
    return std::all_of(vector.begin(), vector.end(), [](double value) { return std::isfinite(value); });
}

// X, Y and Z of a chromaticity, Y being 1. Not finite where y is 0.
Tristimulus withLuminanceOne(const Chromaticity& chromaticity) {
    const auto [x, y] = chromaticity;
    return {x / y, 1, (1 - x - y) / y};
}

cmsCIEXYZ toLittleCMS(const Tristimulus& colour) {
    return {colour[0], colour[1], colour[2]};
}

}  // namespace

std::optional<Matrix> rgbToXYZ(const Primaries& primaries, const Chromaticity& white) {
    const Tristimulus red = withLuminanceOne(primaries.red);
    const Tristimulus green = withLuminanceOne(primaries.green);
    const Tristimulus blue = withLuminanceOne(primaries.blue);
    const Tristimulus sum = withLuminanceOne(white);
    const auto shares = inverse(fromColumns(red, green, blue));
    if (!shares || !isFinite(sum)) {
        return std::nullopt;
    }
    const auto [redShare, greenShare, blueShare] = product(*shares, sum);
    return fromColumns(scaled(red, redShare), scaled(green, greenShare), scaled(blue, blueShare));
}

Matrix fromColumns(const Tristimulus& first, const Tristimulus& second, const Tristimulus& third) {
    return {{
        {first[0], second[0], third[0]},
        {first[1], second[1], third[1]},
        {first[2], second[2], third[2]},
    }};
}

std::optional<Matrix> inverse(const Matrix& matrix) {
    constexpr double smallestRatio = 1e-12;  // less is what rounding leaves of 0
    const auto& [first, second, third] = matrix;
    const double determinant = dot(first, cross(second, third));
    const double largestPossible = length(first) * length(second) * length(third);
    if (!(std::abs(determinant) > smallestRatio * largestPossible)) {
        return std::nullopt;
    }
    const double factor = 1 / determinant;
    return fromColumns(scaled(cross(second, third), factor), scaled(cross(third, first), factor),
                       scaled(cross(first, second), factor));
}

std::array<double, 3> product(const Matrix& matrix, const std::array<double, 3>& column) {
    return {dot(matrix[0], column), dot(matrix[1], column), dot(matrix[2], column)};
}

Tristimulus adapted(const Tristimulus& colour, const Tristimulus& from, const Tristimulus& to) {
    const cmsCIEXYZ source = toLittleCMS(from);
    const cmsCIEXYZ destination = toLittleCMS(to);
    const cmsCIEXYZ stimulus = toLittleCMS(colour);
    cmsCIEXYZ result = stimulus;
    cmsAdaptToIlluminant(&result, &source, &destination, &stimulus);
    const Tristimulus found = {result.X, result.Y, result.Z};
    return isFinite(found) ? found : colour;
}

}  // namespace lv::analysis::colour
