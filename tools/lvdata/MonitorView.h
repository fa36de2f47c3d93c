#pragma once

#include "Palette.h"

#include <lvdata/analysis/ModeFigures.h>
#include <lvdata/records/MonitorInfo.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// What of a monitor is shown, and the unit of Y if its user knows it.
struct MonitorViewForm {
    std::size_t mostModes = 12;
    std::string yUnit{};
};

/// A monitor on one screen: what it is, its colour modes with target against measured, and what its record holds.
[[nodiscard]] std::string monitorView(const lv::MonitorInfo& monitor, const MonitorViewForm& form,
                                      const Palette& palette);

/// One colour mode, a line for each figure.
[[nodiscard]] std::string modeView(const lv::analysis::ModeFigures& mode, const std::string& yUnit,
                                   const Palette& palette);

}  // namespace tool
