#pragma once

#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/geometry.h>

#include <cstddef>
#include <string>
#include <vector>

/// Invisible cells that show a text while the pointer is over them.
namespace lv::analysis {

/// How many columns fit into a box, each as wide as a pointer needs.
[[nodiscard]] std::size_t hoverColumns(const svg::Box& box);

/// A text that belongs to a place from left (0) to right (1).
struct HoverText {
    double place = 0;    ///< Where.
    std::string text{};  ///< What is shown there.
};

/// One text for each column of the box, empty if none belongs to it; of several texts, the one nearest to its middle.
[[nodiscard]] std::vector<std::string> nearestTexts(const svg::Box& box, const std::vector<HoverText>& texts);

/// Texts for hover without repetitions: a line with the words that all texts share, with gaps between blanks, and for
/// each text a line with the words for the gaps and those that follow. Words that are the same as in the previous text
/// are omitted.
[[nodiscard]] std::string withoutRepetitions(const std::vector<std::string>& texts);

/// Cells of equal size over the box in that many columns, one for each text, in rows; none for empty texts. In a page
/// they are data, from which its script makes the cells.
void addHoverCells(svg::SVGWriter& svg, const svg::Box& box, std::size_t columns,
                   const std::vector<std::string>& texts);

/// One row of such cells.
void addHoverColumns(svg::SVGWriter& svg, const svg::Box& box, const std::vector<std::string>& texts);

}  // namespace lv::analysis
