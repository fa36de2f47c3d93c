#pragma once

#include <lvdata/analysis/figures/LimitSet.h>

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "--limits" for the name of a limit set, or of a file with one. The name must outlive the command.
void addLimitSetOption(CLI::App& command, std::string& name, const std::string& help);

/// The set with that name, or else the one in that file. Throws `Failure` when there is none, with the line of the
/// error.
[[nodiscard]] lv::analysis::LimitSet readLimitSet(const std::string& name);

}  // namespace tool
