#include <lvdata/analysis/colour/temperature.h>

#include <lvdata/analysis/colour/colour_matching.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace lv::analysis::colour {
namespace {

constexpr double lowest = 1000;
constexpr double highest = 100000;
constexpr double farthest = 0.05;

// From one temperature of the table to the next. The paper has 1.01 and a correction factor, which such small steps do
// not need.
constexpr double step = 1.0025;

// A point of the CIE 1960 UCS diagram.
struct Point {
    double u;
    double v;
};

struct PlanckianPoint {
    double kelvin;
    Point point;
};

// A point of the table and its distance from the colour.
struct Neighbour {
    double kelvin;
    Point point;
    double distance;
};

std::optional<Point> pointOf(const Chromaticity& chromaticity) {
    const auto uniformPoint = uniform(chromaticity);
    return uniformPoint ? std::optional(Point{uniformPoint->u, uniformPoint->v * 2 / 3}) : std::nullopt;
}

double squaredDistance(const Point& left, const Point& right) {
    const double deltaU = left.u - right.u;
    const double deltaV = left.v - right.v;
    return deltaU * deltaU + deltaV * deltaV;
}

double distance(const Point& left, const Point& right) {
    return std::sqrt(squaredDistance(left, right));
}

// Planck's law without its constant factor, CIE 15:2004, 3.1.
double spectralPower(double wavelength, double kelvin) {
    constexpr double c2 = 1.4388e7;  // in nm K
    const double relative = wavelength / 560;
    return std::pow(relative, -5) / std::expm1(c2 / (wavelength * kelvin));
}

Chromaticity computedPlanckian(double kelvin) {
    Tristimulus sum = {};
    for (const ColourMatch& match : colourMatchingFunctions()) {
        const double power = spectralPower(match.wavelength, kelvin);
        for (std::size_t index = 0; index < sum.size(); ++index) {
            sum[index] += power * match.functions[index];
        }
    }
    const double total = sum[0] + sum[1] + sum[2];
    return {sum[0] / total, sum[1] / total};
}

// Some steps longer than the range at either end, so that each temperature of the range has neighbours.
std::vector<PlanckianPoint> computedTable() {
    std::vector<PlanckianPoint> table;
    double kelvin = lowest / step / step;
    while (kelvin < highest * step * step) {
        if (const auto point = pointOf(computedPlanckian(kelvin))) {
            table.push_back({kelvin, *point});
        }
        kelvin *= step;
    }
    return table;
}

const std::vector<PlanckianPoint>& planckianTable() {
    static const std::vector<PlanckianPoint> table = computedTable();
    return table;
}

// The nearest point of the table and those before and after it; no value at an end of the table.
std::optional<std::array<Neighbour, 3>> neighbours(const Point& colour) {
    const auto& table = planckianTable();
    const auto nearest = std::min_element(table.begin(), table.end(), [&](const auto& left, const auto& right) {
        return squaredDistance(left.point, colour) < squaredDistance(right.point, colour);
    });
    if (nearest == table.begin() || nearest + 1 == table.end()) {
        return std::nullopt;
    }
    std::array<Neighbour, 3> result = {};
    std::transform(nearest - 1, nearest + 2, result.begin(), [&](const PlanckianPoint& entry) {
        return Neighbour{entry.kelvin, entry.point, distance(entry.point, colour)};
    });
    return result;
}

// Ohno's triangular solution: the foot of the perpendicular on the line between the outer neighbours.
CorrelatedTemperature triangular(const std::array<Neighbour, 3>& near, const Point& colour) {
    const auto& [before, nearest, after] = near;
    const double length = distance(before.point, after.point);
    const double foot =
        (before.distance * before.distance - after.distance * after.distance + length * length) / (2 * length);
    const double part = foot / length;
    const double squaredHeight = std::fmax(before.distance * before.distance - foot * foot, 0);
    const double footV = before.point.v + (after.point.v - before.point.v) * part;
    return {before.kelvin + (after.kelvin - before.kelvin) * part,
            std::copysign(std::sqrt(squaredHeight), colour.v - footV)};
}

// Ohno's parabolic solution: the lowest point of the parabola through the three distances. Temperatures count from that
// of the nearest point, which keeps more digits. `sign` has the sign of the result.
CorrelatedTemperature parabolic(const std::array<Neighbour, 3>& near, double sign) {
    const auto& [before, nearest, after] = near;
    const double left = before.kelvin - nearest.kelvin;
    const double right = after.kelvin - nearest.kelvin;
    const double leftSlope = (before.distance - nearest.distance) / left;
    const double rightSlope = (after.distance - nearest.distance) / right;
    const double curvature = (rightSlope - leftSlope) / (right - left);
    const double slope = rightSlope - curvature * right;
    const double lowestAt = -slope / (2 * curvature);
    return {nearest.kelvin + lowestAt, std::copysign(nearest.distance + slope * lowestAt / 2, sign)};
}

// The paper takes the parabola from this distance on, where the triangle is less exact.
CorrelatedTemperature combined(const std::array<Neighbour, 3>& near, const Point& colour) {
    constexpr double fromHereParabolic = 0.002;
    const CorrelatedTemperature result = triangular(near, colour);
    return std::abs(result.duv) < fromHereParabolic ? result : parabolic(near, result.duv);
}

bool isMeaningful(const CorrelatedTemperature& result) {
    return result.kelvin >= lowest && result.kelvin <= highest && std::abs(result.duv) <= farthest;
}

}  // namespace

std::optional<CorrelatedTemperature> correlatedTemperature(const Chromaticity& chromaticity) {
    const auto point = pointOf(chromaticity);
    const auto near = point ? neighbours(*point) : std::nullopt;
    if (!near) {
        return std::nullopt;
    }
    const CorrelatedTemperature result = combined(*near, *point);
    return isMeaningful(result) ? std::optional(result) : std::nullopt;
}

Chromaticity planckian(double kelvin) {
    return computedPlanckian(std::fmin(std::fmax(kelvin, lowest), highest));
}

}  // namespace lv::analysis::colour
