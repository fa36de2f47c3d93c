#pragma once

#include <lvdata/analysis/Sink.h>
#include <lvdata/analysis/diff/diff.h>

#include <string>

namespace lv::analysis {

/// The difference in one line without its path: "0.3127, 0.329 -> 0.3457, 0.3585 (Δu'v' 0.02275, ...)". Texts are in
/// quotation marks and not escaped: they can hold line breaks and control characters.
[[nodiscard]] std::string inWords(const Difference& difference);

/// Gives one object to the sink: "differences" with an object for each, "within_tolerance" and "ignored". Values are
/// strings, since not all of them are numbers; docs/tool.md explains the keys.
void putDiff(const Diff& diff, Sink& sink);

}  // namespace lv::analysis
