#pragma once

#include <lvdata/analysis/pictures/svg/SVGWriter.h>
#include <lvdata/analysis/pictures/svg/shapes.h>

#include <optional>
#include <string>
#include <vector>

namespace lv::analysis::svg {

/// What one look stands for.
struct LegendEntry {
    std::string label{};             ///< What it means.
    std::string_view line{};         ///< The classes of a line; empty: none.
    std::string_view mark{};         ///< The classes of a symbol or a filled square; empty: none.
    std::optional<Symbol> symbol{};  ///< The symbol; none: a filled square.
};

/// Entries in one column from a point down.
void addLegendColumn(SVGWriter& svg, const Point& at, double width, const std::vector<LegendEntry>& entries);

/// Entries in one row from a point to the right, as many as fit into the width.
void addLegendRow(SVGWriter& svg, const Point& at, double width, const std::vector<LegendEntry>& entries);

}  // namespace lv::analysis::svg
