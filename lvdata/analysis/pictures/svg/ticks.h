#pragma once

#include <lvdata/analysis/pictures/svg/geometry.h>

#include <string>
#include <vector>

namespace lv::analysis::svg {

/// A labelled place on an axis.
struct Tick {
    double value = 0;   ///< Where it is.
    std::string label;  ///< Its label.
};

/// The ticks of a rising range: multiples of 1, 2 or 5 times a power of ten, the finest of them that gives not more
/// than `most` steps. Labels have as many digits after the point as the step needs.
[[nodiscard]] std::vector<Tick> ticksOf(Range range, int most);

/// A range that begins and ends at a tick.
struct TickedRange {
    Range range;              ///< The range.
    std::vector<Tick> ticks;  ///< All of its ticks.
};

/// The range made wider until it begins and ends at a tick. The steps are those of the range that was given.
[[nodiscard]] TickedRange toTicks(Range range, int most);

}  // namespace lv::analysis::svg
