#pragma once

#include "Subcommand.h"

#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds a subcommand to an application.
using SubcommandAdder = Subcommand (*)(CLI::App&);

/// Every subcommand of `lvdata`, in the order of the help.
[[nodiscard]] std::vector<SubcommandAdder> everySubcommand();

}  // namespace tool
