#pragma once

#include <lvdata/analysis/figures/History.h>
#include <lvdata/analysis/figures/LimitSet.h>
#include <lvdata/analysis/figures/MonitorFigures.h>

#include <cstddef>

namespace lv::test {

/// A mode with everything that pictures show: made up, and near what a good monitor has.
[[nodiscard]] analysis::ModeFigures sampleMode();

/// A mode with so many patches, grey steps and entries of each table. Nothing in them is smooth.
[[nodiscard]] analysis::ModeFigures noisyMode(std::size_t count);

/// A map of 5 by 5 entries.
[[nodiscard]] analysis::MapFigures sampleMap();

/// A map of so many entries.
[[nodiscard]] analysis::MapFigures noisyMap(std::size_t count, std::size_t gridWidth);

/// The ΔE00 of four dates.
[[nodiscard]] analysis::HistorySeries sampleSeries();

/// Limits of the patches.
[[nodiscard]] analysis::LimitSet sampleLimits();

}  // namespace lv::test
