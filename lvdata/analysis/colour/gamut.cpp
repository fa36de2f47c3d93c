#include <lvdata/analysis/colour/gamut.h>

#include <algorithm>
#include <cmath>

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>

namespace lv::analysis::colour {
namespace {

namespace geometry = boost::geometry;
using Polygon = geometry::model::polygon<geometry::model::d2::point_xy<double>>;

// Less than a triangle has whose corners differ in the fourth decimal: only points on a line, after rounding.
constexpr double smallestArea = 1e-10;

// Far more than any primary has, imaginary ones included, and little enough for exact results.
constexpr double largestCoordinate = 10;

std::optional<PlanePoint> planePoint(const Chromaticity& chromaticity, Plane plane) {
    PlanePoint point = {chromaticity.x, chromaticity.y};
    if (plane == Plane::uv) {
        const auto uniformPoint = uniform(chromaticity);
        if (!uniformPoint) {
            return std::nullopt;
        }
        point = {uniformPoint->u, uniformPoint->v};
    }
    const bool isInside =
        std::abs(point.horizontal) <= largestCoordinate && std::abs(point.vertical) <= largestCoordinate;
    return isInside ? std::optional(point) : std::nullopt;
}

// No value without an area.
std::optional<Polygon> polygon(const Primaries& primaries, Plane plane) {
    const auto corners = triangle(primaries, plane);
    if (!corners) {
        return std::nullopt;
    }
    Polygon result;
    for (const PlanePoint& corner : *corners) {
        geometry::append(result, geometry::model::d2::point_xy<double>(corner.horizontal, corner.vertical));
    }
    geometry::correct(result);
    return geometry::area(result) > smallestArea ? std::optional(result) : std::nullopt;
}

double sharedArea(const Polygon& left, const Polygon& right) {
    geometry::model::multi_polygon<Polygon> shared;
    geometry::intersection(left, right, shared);
    return geometry::area(shared);
}

GamutComparison compare(const Polygon& gamut, const Polygon& reference) {
    const double referenceArea = geometry::area(reference);
    const double coverage = sharedArea(gamut, reference) / referenceArea;
    return {std::clamp(coverage, 0.0, 1.0), geometry::area(gamut) / referenceArea};
}

}  // namespace

std::optional<std::array<PlanePoint, 3>> triangle(const Primaries& primaries, Plane plane) {
    const auto red = planePoint(primaries.red, plane);
    const auto green = planePoint(primaries.green, plane);
    const auto blue = planePoint(primaries.blue, plane);
    if (!red || !green || !blue) {
        return std::nullopt;
    }
    return std::array<PlanePoint, 3>{*red, *green, *blue};
}

std::optional<GamutComparison> compareGamuts(const Primaries& gamut, const Primaries& reference, Plane plane) {
    const auto left = polygon(gamut, plane);
    const auto right = polygon(reference, plane);
    if (!left || !right) {
        return std::nullopt;
    }
    try {
        return compare(*left, *right);
    } catch (const geometry::exception&) {
        return std::nullopt;
    }
}

}  // namespace lv::analysis::colour
