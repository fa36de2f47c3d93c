#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// All modes of that index, in their order.
[[nodiscard]] std::vector<ModeFigures> modesOfIndex(const std::vector<ModeFigures>& modes, const std::string& index);

/// The message when there is none: "no colour mode has the index 7; known indices: 0, 1, 2".
[[nodiscard]] std::string whyNoModeOfIndex(const std::vector<ModeFigures>& modes, const std::string& index);

/// A mode, or why there is none.
struct ChosenMode {
    const ModeFigures* mode = nullptr;  ///< One of those that were given.
    std::string reason{};               ///< Why it is null.
};

/// The first mode of that index; without an index the first one with a calibration result, or else the first one. The
/// modes must outlive the result.
[[nodiscard]] ChosenMode chooseMode(const std::vector<ModeFigures>& modes, const std::string& index);

}  // namespace lv::analysis
