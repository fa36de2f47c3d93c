#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "report", which makes pages about monitors.
Subcommand addReport(CLI::App& application);

}  // namespace tool
