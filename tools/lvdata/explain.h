#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "explain", which explains a rule of "check".
Subcommand addExplain(CLI::App& application);

}  // namespace tool
