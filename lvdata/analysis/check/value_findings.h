#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/check/Reporter.h>

#include <string_view>

namespace lv::analysis {

/// Makes a finding when what the record writes back is not what the document says, of an attribute or of the text of
/// the element where the walk is.
///
/// \param source   the attribute or text in the document
/// \param printed  its text in the document that the record prints
void compareValues(Reporter& reporter, const Position& position, const Node& source, std::string_view printed);

/// Makes a finding for each kind of fault in the pieces of an array, also when the array is not written back. Whether
/// there was one.
bool judgeArray(Reporter& reporter, const Position& position, const Node& source);

}  // namespace lv::analysis
