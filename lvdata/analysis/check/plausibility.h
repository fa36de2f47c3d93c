#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/check/Reporter.h>

namespace lv::analysis {

/// Makes a finding for each value in the current element that is kept but probably a mistake: the rules 401 to 499.
void judgePlausibility(Reporter& reporter, const Position& element);

}  // namespace lv::analysis
