#pragma once

#include "Subcommand.h"

#include <CLI/CLI.hpp>

namespace tool {

/// Adds the subcommand "schema", which prints the schema of a record's documents.
Subcommand addSchema(CLI::App& application);

}  // namespace tool
