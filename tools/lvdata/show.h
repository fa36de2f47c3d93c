#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "show", which shows a document to people.
Subcommand addShow(CLI::App& application);

}  // namespace tool
