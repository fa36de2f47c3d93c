#pragma once

#include <lvdata/analysis/figures/lines.h>

#include <vector>

namespace lv::analysis {

/// Adds x, y and Δu'v' of each primary.
void addPrimaries(std::vector<FigureLine>& lines, const ModeFigures& mode);

/// Adds coverage and area of each reference space in both diagrams.
void addGamuts(std::vector<FigureLine>& lines, const ModeFigures& mode);

}  // namespace lv::analysis
