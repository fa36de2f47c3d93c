#pragma once

#include <lvdata/xml/Limits.h>

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds an option "--max-..." for each limit of a subcommand that reads a document. The limits must outlive the
/// command.
void addLimitOptions(CLI::App& command, lv::Limits& limits);

/// " (limit: --max-elements)", the option that changes a limit, to be added to a message.
[[nodiscard]] std::string limitNote(lv::Excess::What what);

/// The reason why a document is refused, with the option that changes the limit:
/// "more than 100 attributes per element (limit: --max-attributes)".
[[nodiscard]] std::string excessReason(const lv::Excess& excess);

}  // namespace tool
