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

// A smaller area is a point or a line with rounding errors.
constexpr double smallestArea = 1e-9;

// Far more than any primary has, even an imaginary one, and small enough for exact results.
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

double uncoveredArea(const Polygon& gamut, const Polygon& reference) {
    geometry::model::multi_polygon<Polygon> uncovered;
    geometry::difference(reference, gamut, uncovered);
    return geometry::area(uncovered);
}

// Doubles can put a corner on the wrong side of an edge that it nearly touches, about once in a million triangles. The
// parts of the reference do not make up the whole then, and there is no value.
std::optional<GamutComparison> compare(const Polygon& gamut, const Polygon& reference) {
    constexpr double largestError = 1e-6;
    const double whole = geometry::area(reference);
    const double coverage = sharedArea(gamut, reference) / whole;
    const double rest = uncoveredArea(gamut, reference) / whole;
    if (!(std::abs(coverage + rest - 1) < largestError)) {
        return std::nullopt;
    }
    return GamutComparison{std::clamp(coverage, 0.0, 1.0), geometry::area(gamut) / whole};
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
