#pragma once

#include "Palette.h"

#include <lvdata/analysis/check/Finding.h>

#include <cstddef>
#include <string>

namespace tool {

/// A finding as a message without its path: `monitor.xml: warning: line 12: ... [301]`.
[[nodiscard]] std::string lineOf(const std::string& name, const lv::analysis::Finding& finding);

/// The same in colours, as a line of printable text with the path of the element.
[[nodiscard]] std::string lineOf(const std::string& name, const lv::analysis::Finding& finding, const Palette& palette);

/// "1 error", "2 errors".
[[nodiscard]] std::string counted(std::size_t count, const std::string& thing);

}  // namespace tool
