#pragma once

#include "Palette.h"

#include <lvdata/analysis/figures/ModeFigures.h>
#include <lvdata/records/MonitorInfo.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// How a monitor is shown.
struct MonitorViewForm {
    std::string title{};         // the heading of a monitor without a name, model and serial number
    std::size_t mostModes = 12;  // rows of the table
    std::string yUnit{};         // the unit of Y; empty: not known
};

/// A monitor on one screen: what it is, its colour modes with target and measured values, and what its record holds.
[[nodiscard]] std::string monitorView(const lv::MonitorInfo& monitor, const MonitorViewForm& form,
                                      const Palette& palette);

/// One colour mode, a line for each figure: target, measured value and difference.
[[nodiscard]] std::string modeView(const lv::analysis::ModeFigures& mode, const lv::analysis::KnownUnits& units,
                                   const Palette& palette);

}  // namespace tool
