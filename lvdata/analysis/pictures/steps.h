#pragma once

#include <lvdata/analysis/pictures/Picture.h>
#include <lvdata/analysis/pictures/hover.h>

#include <cstddef>
#include <string>
#include <vector>

/// Shared by the pictures of grey steps.
namespace lv::analysis {

/// A range for values whose extremes at the dark end say little: the range of the typical values, made wider. Values
/// outside are omitted from the picture.
[[nodiscard]] svg::TickedRange rangeOfTypical(const std::vector<svg::Point>& values, svg::Range typicalSteps,
                                              double leastWidth);

/// How many values do not lie in the panel.
[[nodiscard]] std::size_t countOutside(const svg::Panel& panel, const std::vector<svg::Point>& values);

/// A line with the symbol of that id at each value that lies in the panel. Of very many steps, some have symbols.
void addSteps(svg::SVGWriter& svg, const svg::Panel& panel, const std::vector<svg::Point>& values,
              std::string_view lineClasses, const std::string& marker);

/// "50.2 %: " with the text, for hover.
[[nodiscard]] HoverText stepText(double signal, const std::string& text);

/// A note inside a panel about omitted values; nothing when there are none.
void addOutsideNote(svg::SVGWriter& svg, const svg::Panel& panel, std::size_t count);

/// The axis of signals in per cent, for signals of 0 to 1.
[[nodiscard]] svg::Axis signalAxis(bool hasTexts);

/// "50.2 %", of 0.502.
[[nodiscard]] std::string percent(double fraction, int decimals);

}  // namespace lv::analysis
