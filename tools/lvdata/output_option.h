#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// Adds "-o" and "--output" for the name of a file. An empty name is wrong. The name must outlive the command.
void addOutputOption(CLI::App& command, std::string& output,
                     const std::string& help = "Write to FILE instead of standard output");

}  // namespace tool
