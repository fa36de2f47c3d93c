#pragma once

#include "CommandModel.h"

#include <string>

namespace tool {

/// The manual page, in the macros of mdoc.
///
/// \param text  the page, where "@VERSION@" stands for the version, and the lines "@SYNOPSIS@", "@SUBCOMMANDS@" and
/// "@OPTIONS@" stand for what the parser knows
[[nodiscard]] std::string manualPage(const CommandModel& command, const std::string& version, const std::string& text);

/// Scripts that complete command lines in a shell.
[[nodiscard]] std::string bashCompletion(const CommandModel& command);
[[nodiscard]] std::string zshCompletion(const CommandModel& command);
[[nodiscard]] std::string fishCompletion(const CommandModel& command);

}  // namespace tool
