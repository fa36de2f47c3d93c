#pragma once

#include "Subcommand.h"

namespace tool {

/// Adds the subcommand "convert", which turns documents into JSON, tables, and back into XML.
Subcommand addConvert(CLI::App& application);

}  // namespace tool
