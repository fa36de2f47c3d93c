#pragma once

#include <lvdata/analysis/check/Finding.h>

#include <string>

namespace tool {

/// Prints the first ten losses of a document on standard error, and the number of the others; `more` is appended to
/// that message.
void printLosses(const std::string& name, const lv::analysis::Findings& losses, const std::string& more);

}  // namespace tool
