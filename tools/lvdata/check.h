#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "check", which says what documents lose when they are written back.
Subcommand addCheck(CLI::App& application);

}  // namespace tool
