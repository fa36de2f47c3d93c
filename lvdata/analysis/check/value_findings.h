#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/check/Reporter.h>

#include <string_view>

namespace lv::analysis {

/// Makes a finding when the record writes back a different value than the document has, for an attribute or the text of
/// the current element.
///
/// \param source   the attribute or text in the document
/// \param printed  its text in the document that the record prints
void compareValues(Reporter& reporter, const Position& position, const Node& source, std::string_view printed);

/// Makes a finding for each kind of error in the pieces of an array, even when the array is not written back. Returns
/// whether there was one.
bool judgeArray(Reporter& reporter, const Position& position, const Node& source);

}  // namespace lv::analysis
