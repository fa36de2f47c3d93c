#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "plot", which makes one picture.
Subcommand addPlot(CLI::App& application);

}  // namespace tool
