#pragma once

#include <lvdata/analysis/figures/LimitSet.h>

#include <string>

namespace lv::python {

/// The limit set of that name, or else the one in that file. Throws `std::invalid_argument` when there is none.
[[nodiscard]] analysis::LimitSet limitSet(const std::string& nameOrFile);

}  // namespace lv::python
