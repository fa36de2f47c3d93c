#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "--date", a text to print, or "now" for the day of today. The text must outlive the command.
void addDateOption(CLI::App& command, std::string& date);

/// The text, or for "now" the day as "2024-05-02": of the variable SOURCE_DATE_EPOCH when it is set, otherwise of the
/// clock. Throws `Failure` when the variable is not a time.
[[nodiscard]] std::string dateText(const std::string& date);

}  // namespace tool
