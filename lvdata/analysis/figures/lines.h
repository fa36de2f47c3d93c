#pragma once

#include <lvdata/analysis/figures/MonitorFigures.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// One figure as it is told: in text, in JSON and on pages from this and nothing else, so that each digit is the same.
struct FigureLine {
    std::string key{};    ///< What it is called in JSON and in limit sets, such as "white_delta_uv". Never renamed.
    std::string group{};  ///< Under which heading it stands: "White", "Black", "Gamut", "Tone", "Patches", ...
    std::string label{};  ///< What it is called for people: "White Δu'v'".
    std::string unit{};   ///< "K", "%", or what the user gave; empty where there is none or none is known.
    int decimals = 0;     ///< Digits after the point, of all three numbers.
    Figure target{};      ///< What was aimed at. No value and no reason where a target makes no sense.
    Figure measured{};    ///< What was reached.
    Figure difference{};  ///< Measured minus target. No value and no reason where the target is no number.
    std::string targetText{};  ///< The target where it is words: "Minimum", "LStar"; `target` then has nothing.

    /// `target`, `measured` or `difference` as text: "n/a (reason)" when there is a reason, empty when there is
    /// neither.
    [[nodiscard]] std::string text(const Figure& figure) const;
};

/// The figures of a mode, always the same keys in the same order.
[[nodiscard]] std::vector<FigureLine> figureLines(const ModeFigures& mode, const KnownUnits& known = {});

/// The figures of a map, always the same keys in the same order: "uniformity_minimum", "brightness_minimum", ...
[[nodiscard]] std::vector<FigureLine> figureLines(const MapFigures& map);

/// The keys of all figures that there are: of modes and of both maps.
[[nodiscard]] const std::vector<std::string>& figureKeys();

/// All figures of a monitor as JSON text, numbers with the digits of the lines: docs/figures.md.
[[nodiscard]] std::string figuresJSON(const MonitorFigures& monitor);

}  // namespace lv::analysis
