#include <lvdata/analysis/figures/line_parts.h>

#include <lvdata/analysis/snake_case.h>

#include <array>

namespace lv::analysis {
namespace {

/// The definition of one line of a map.
struct LineForm {
    const char* key;
    const char* label;
    bool isDeviation;  ///< In per cent, otherwise in the unit of the map.
    int decimals;
    Figure MapFigures::*figure;
};

constexpr std::array forms = {
    LineForm{"_minimum", ", minimum", false, 0, &MapFigures::minimum},
    LineForm{"_maximum", ", maximum", false, 0, &MapFigures::maximum},
    LineForm{"_mean", ", mean", false, 1, &MapFigures::mean},
    LineForm{"_centre", ", centre", false, 0, &MapFigures::centre},
    LineForm{"_greatest_deviation", ", greatest deviation from the centre", true, 1, &MapFigures::greatestDeviation},
};

Figure inUnit(const LineForm& form, const Figure& figure) {
    return form.isDeviation && figure.value ? computed(*figure.value * 100) : figure;
}

std::vector<std::string> allKeys() {
    MapFigures uniformity;
    uniformity.name = "Uniformity";
    MapFigures brightness;
    brightness.name = "Brightness";
    std::vector<std::string> keys;
    for (const auto& lines : {figureLines(ModeFigures()), figureLines(uniformity), figureLines(brightness)}) {
        for (const FigureLine& line : lines) {
            keys.push_back(line.key);
        }
    }
    return keys;
}

}  // namespace

const std::vector<std::string>& figureKeys() {
    static const std::vector<std::string> keys = allKeys();
    return keys;
}

std::vector<FigureLine> figureLines(const MapFigures& map) {
    const std::string name(map.name);
    std::vector<FigureLine> lines;
    for (const LineForm& form : forms) {
        FigureLine line{snakeCase(map.name) + form.key, name, name + form.label, "", form.decimals, {}, {}, {}, ""};
        line.unit = form.isDeviation ? "%" : map.unit;
        line.measured = inUnit(form, map.*form.figure);
        lines.push_back(line);
    }
    return lines;
}

}  // namespace lv::analysis
