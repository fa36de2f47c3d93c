#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

#include <array>

namespace lv::analysis {
namespace {

constexpr int decimals = 4;

std::string coordinateOf(const std::optional<colour::Chromaticity>& point, double colour::Chromaticity::*coordinate) {
    return point ? fixedText((*point).*coordinate, decimals) : "n/a";
}

View primaryOf(const char* name, const PrimaryFigures& primary) {
    return View::Members{
        {"name", name},
        {"target_x", coordinateOf(primary.target, &colour::Chromaticity::x)},
        {"target_y", coordinateOf(primary.target, &colour::Chromaticity::y)},
        {"measured_x", coordinateOf(primary.measured, &colour::Chromaticity::x)},
        {"measured_y", coordinateOf(primary.measured, &colour::Chromaticity::y)},
        {"delta_uv", primary.deltaUV.text(decimals)},
    };
}

View primariesOf(const ModeFigures& mode) {
    constexpr std::array<const char*, 3> names = {"Red", "Green", "Blue"};
    View::Items rows;
    for (std::size_t index = 0; index < names.size(); ++index) {
        rows.push_back(primaryOf(names[index], mode.primaries[index]));
    }
    return rows;
}

}  // namespace

View gamutView(const ReportedMode& mode) {
    const PictureForm xy = {mode.id + "-xy", false};
    const PictureForm uv = {mode.id + "-uv", false};
    return View::Members{
        {"picture_xy", gamutPicture(*mode.figures, colour::Plane::xy, xy)},
        {"picture_uv", gamutPicture(*mode.figures, colour::Plane::uv, uv)},
        {"primaries", primariesOf(*mode.figures)},
    };
}

}  // namespace lv::analysis
