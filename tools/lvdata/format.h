#pragma once

#include <CLI/CLI.hpp>

namespace tool {

/// Adds the subcommand "format", which prints a record anew.
void addFormat(CLI::App& application);

}  // namespace tool
