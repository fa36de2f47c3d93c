#pragma once

#include <lvdata/analysis/check/Finding.h>

#include <string>

namespace tool {

/// Prints the first ten losses of a document on standard error, and how many more there are; `more` is added to that.
void printLosses(const std::string& name, const lv::analysis::Findings& losses, const std::string& more);

}  // namespace tool
