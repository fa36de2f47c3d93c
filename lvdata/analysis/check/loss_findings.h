#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/check/Reporter.h>

namespace lv::analysis {

/// Makes a finding that says why something in the document is not written back: an attribute, a text, or an element
/// with all its content.
void reportDropped(Reporter& reporter, const Position& position, const Circumstances& circumstances);

/// The same for the row of a list.
void reportDroppedRow(Reporter& reporter, const Position& row, const Circumstances& circumstances);

}  // namespace lv::analysis
