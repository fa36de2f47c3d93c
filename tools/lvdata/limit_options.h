#pragma once

#include "Limits.h"

#include <CLI/CLI.hpp>

namespace tool {

/// Adds an option "--max-..." for each limit of a subcommand that reads a document. The limits must outlive the
/// command.
void addLimitOptions(CLI::App& command, Limits& limits);

}  // namespace tool
