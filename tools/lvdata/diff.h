#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "diff", which compares two records of one class.
Subcommand addDiff(CLI::App& application);

}  // namespace tool
