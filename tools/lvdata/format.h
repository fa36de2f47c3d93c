#pragma once

#include "Subcommand.h"

#include <CLI/CLI.hpp>

namespace tool {

/// Adds the subcommand "format", which prints a record in canonical form.
Subcommand addFormat(CLI::App& application);

}  // namespace tool
