#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "--y-unit", "--map-unit" and "--grid": what the user knows and the records do not state. The units must outlive
/// the command.
void addUnitOptions(CLI::App& command, lv::analysis::KnownUnits& units);

}  // namespace tool
