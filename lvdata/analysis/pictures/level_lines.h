#pragma once

#include <lvdata/analysis/pictures/Picture.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// A value that a line through a panel marks.
struct LevelLine {
    double value = 0;            ///< Where.
    std::string label{};         ///< The text at its right end, outside the panel.
    std::string_view classes{};  ///< How it looks.
};

/// The width that labels of lines take to the right of a panel.
inline constexpr double levelLabelWidth = 118;

/// Draws the lines that lie in the panel, each with its label. Labels that would overlap are moved apart.
void addLevelLines(svg::SVGWriter& svg, const svg::Panel& panel, std::vector<LevelLine> lines);

}  // namespace lv::analysis
