#include <lvdata/analysis/figures/gamut_lines.h>

#include <lvdata/analysis/figures/line_parts.h>

#include <array>
#include <utility>

namespace lv::analysis {
namespace {

/// What something is called in keys and for people.
struct Name {
    std::string key;
    std::string label;
};

FigureLine chromaticityLine(const Name& name, const Aim& aim, const Figure& measured) {
    FigureLine line{"primary_" + name.key, "Gamut", name.label, "", 4, {}, {}, {}, ""};
    setNumbers(line, aim, measured);
    return line;
}

Figure coordinate(const std::optional<colour::Chromaticity>& place, double colour::Chromaticity::*member,
                  const std::string& reason) {
    return place ? computed((*place).*member) : missing(reason);
}

/// A primary that was not measured has the reason of its Δu'v'.
void addPrimary(std::vector<FigureLine>& lines, const Name& name, const PrimaryFigures& primary,
                const std::string& targetGamut) {
    const auto add = [&](const Name& axis, double colour::Chromaticity::*member) {
        const Aim aim{coordinate(primary.target, member, "the target has no x and y for it"), targetGamut};
        lines.push_back(chromaticityLine({name.key + axis.key, name.label + axis.label}, aim,
                                         coordinate(primary.measured, member, primary.deltaUV.reason)));
    };
    add({"_x", " x"}, &colour::Chromaticity::x);
    add({"_y", " y"}, &colour::Chromaticity::y);
    lines.push_back(chromaticityLine({name.key + "_delta_uv", name.label + " Δu'v'"}, {}, primary.deltaUV));
}

/// The keys of `colour::referenceSpaces`, in their order.
constexpr std::array<const char*, 4> spaceKeys = {"srgb", "adobe_rgb", "display_p3", "bt2020"};

FigureLine percentLine(const Name& name, const Figure& fraction) {
    FigureLine line{"gamut_" + name.key, "Gamut", name.label, "%", 1, {}, {}, {}, ""};
    line.measured = fraction.value ? computed(*fraction.value * 100) : fraction;
    return line;
}

void addSpace(std::vector<FigureLine>& lines, const std::string& key, const GamutFigures& gamut) {
    const std::string space(gamut.space);
    lines.push_back(percentLine({key + "_coverage_xy", "Coverage of " + space + " in x, y"}, gamut.coverageXY));
    lines.push_back(percentLine({key + "_area_xy", "Area ratio to " + space + " in x, y"}, gamut.areaXY));
    lines.push_back(percentLine({key + "_coverage_uv", "Coverage of " + space + " in u', v'"}, gamut.coverageUV));
    lines.push_back(percentLine({key + "_area_uv", "Area ratio to " + space + " in u', v'"}, gamut.areaUV));
}

}  // namespace

void addPrimaries(std::vector<FigureLine>& lines, const ModeFigures& mode) {
    addPrimary(lines, {"red", "Red"}, mode.primaries[0], mode.targetGamut);
    addPrimary(lines, {"green", "Green"}, mode.primaries[1], mode.targetGamut);
    addPrimary(lines, {"blue", "Blue"}, mode.primaries[2], mode.targetGamut);
}

void addGamuts(std::vector<FigureLine>& lines, const ModeFigures& mode) {
    const Figure none = missing("not computed");
    for (std::size_t index = 0; index < spaceKeys.size(); ++index) {
        const std::string_view space = colour::referenceSpaces().at(index).name;
        addSpace(lines, spaceKeys.at(index),
                 index < mode.gamuts.size() ? mode.gamuts[index] : GamutFigures{space, none, none, none, none});
    }
}

}  // namespace lv::analysis
