#pragma once

#include <lvdata/analysis/figures/LimitSet.h>

#include <string>

namespace lv::analysis {

/// "default, iso14861, ...": the names of the sets that come with the library.
[[nodiscard]] std::string namesOfLimitSets();

/// The limit set with that name, or else the one in that file.
[[nodiscard]] LimitSetResult findLimitSet(const std::string& nameOrFile);

}  // namespace lv::analysis
