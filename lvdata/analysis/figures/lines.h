#pragma once

#include <lvdata/analysis/figures/MonitorFigures.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// One figure as it is shown. Text, JSON and pages all use this, so that the digits are the same everywhere.
struct FigureLine {
    std::string key{};         ///< Its name in JSON and in limit sets, such as "white_delta_uv". Never renamed.
    std::string group{};       ///< Its heading: "White", "Black", "Gamut", "Tone", "Patches", ...
    std::string label{};       ///< Its name in text: "White Δu'v'".
    std::string unit{};        ///< "K", "%", or what the user gave; empty where there is none or none is known.
    int decimals = 0;          ///< Digits after the point, of all three numbers.
    Figure target{};           ///< The target. No value and no reason when a target makes no sense.
    Figure measured{};         ///< The measured value.
    Figure difference{};       ///< Measured minus target. No value and no reason when the target is not a number.
    std::string targetText{};  ///< The target if it is a word: "Minimum", "LStar"; `target` is then empty.

    /// `target`, `measured` or `difference` as text: "n/a (reason)" when there is a reason, empty when there is
    /// neither.
    [[nodiscard]] std::string text(const Figure& figure) const;
};

/// The figures of a mode, always the same keys in the same order.
[[nodiscard]] std::vector<FigureLine> figureLines(const ModeFigures& mode, const KnownUnits& known = {});

/// The figures of a map, always the same keys in the same order: "uniformity_minimum", "brightness_minimum", ...
[[nodiscard]] std::vector<FigureLine> figureLines(const MapFigures& map);

/// The keys of all existing figures: of modes and of both maps.
[[nodiscard]] const std::vector<std::string>& figureKeys();

/// All figures of a monitor as JSON text, numbers with the digits of the lines: docs/figures.md.
[[nodiscard]] std::string figuresJSON(const MonitorFigures& monitor);

}  // namespace lv::analysis
