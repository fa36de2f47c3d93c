#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "show", which shows a document in readable form.
Subcommand addShow(CLI::App& application);

}  // namespace tool
