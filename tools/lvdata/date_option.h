#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "--date", a text to print, or "now" for today's date. The text must outlive the command.
void addDateOption(CLI::App& command, std::string& date);

/// The text, or for "now" the date as "2024-05-02": from the variable SOURCE_DATE_EPOCH when it is set, otherwise from
/// the clock. Throws `Failure` when the variable is not a time.
[[nodiscard]] std::string dateText(const std::string& date);

}  // namespace tool
