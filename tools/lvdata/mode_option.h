#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "--mode" for the index of a colour mode; empty when it is not given. The index must outlive the command.
void addModeOption(CLI::App& command, std::string& mode, const std::string& help);

/// All modes of that index, in their order. Throws `Failure` with the name of the document when there is none; the
/// message lists the existing indices.
[[nodiscard]] std::vector<lv::analysis::ModeFigures> modesOfIndex(const std::vector<lv::analysis::ModeFigures>& modes,
                                                                  const std::string& index, const std::string& name);

}  // namespace tool
