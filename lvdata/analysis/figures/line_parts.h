#pragma once

#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/figures/stored_values.h>

#include <string>

namespace lv::analysis {

/// What a line aims at; neither value nor reason nor words where a target makes no sense.
struct Aim {
    Figure number{};      ///< The number, or why there is none.
    std::string words{};  ///< The target where it is words.
};

/// Gives a line its target, measured value and their difference.
inline void setNumbers(FigureLine& line, const Aim& aim, const Figure& measured) {
    line.target = aim.number;
    line.targetText = aim.words;
    line.measured = measured;
    if (aim.number.value && measured.value) {
        line.difference = computed(*measured.value - *aim.number.value);
    } else if (aim.number.value || !aim.number.reason.empty()) {
        line.difference = missing(measured.value ? aim.number.reason : measured.reason);
    }
}

}  // namespace lv::analysis
