#pragma once

#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/figures/stored_values.h>

#include <string>

namespace lv::analysis {

/// The target of a line; no value, no reason and no words when a target makes no sense.
struct Aim {
    Figure number{};      ///< The number, or why there is none.
    std::string words{};  ///< The target if it is not a number; used when `number` has no value.
};

/// Gives a line its target, measured value and their difference.
inline void setNumbers(FigureLine& line, const Aim& aim, const Figure& measured) {
    const bool isWords = !aim.number.value && !aim.words.empty();
    line.target = isWords ? Figure() : aim.number;
    line.targetText = isWords ? aim.words : "";
    line.measured = measured;
    if (line.target.value && measured.value) {
        line.difference = computed(*measured.value - *line.target.value);
    } else if (line.target.value || !line.target.reason.empty()) {
        line.difference = missing(measured.value ? line.target.reason : measured.reason);
    }
}

}  // namespace lv::analysis
