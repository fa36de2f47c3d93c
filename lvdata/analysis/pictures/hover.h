#pragma once

#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/geometry.h>

#include <cstddef>
#include <string>
#include <vector>

/// Unseen columns that show a text while the pointer is over them.
namespace lv::analysis {

/// How many columns a box has room for, each as wide as a pointer needs.
[[nodiscard]] std::size_t hoverColumns(const svg::Box& box);

/// A text that belongs to a place from left (0) to right (1).
struct HoverText {
    double place = 0;    ///< Where.
    std::string text{};  ///< What is shown there.
};

/// One text for each column of the box, empty where none belongs to it: of several the one nearest to its middle.
[[nodiscard]] std::vector<std::string> nearestTexts(const svg::Box& box, const std::vector<HoverText>& texts);

/// Columns of equal width over the box, one for each text; none for empty texts.
void addHoverColumns(svg::SVGWriter& svg, const svg::Box& box, const std::vector<std::string>& texts);

}  // namespace lv::analysis
