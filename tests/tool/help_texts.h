#pragma once

#include <string>
#include <vector>

/// The names of the subcommands in the text of `lvdata --help`.
[[nodiscard]] std::vector<std::string> subcommandsIn(const std::string& help);

/// The names of all options in a text of `--help`, with their dashes.
[[nodiscard]] std::vector<std::string> optionsIn(const std::string& help);
