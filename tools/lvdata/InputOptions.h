#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// Which documents a subcommand works on. Folders are searched for files whose name ends with ".xml".
struct InputOptions {
    std::vector<std::string> paths;  // files, folders, "-" for standard input
    std::vector<std::string> lists;  // files with the names of more of them, "-" for standard input
    bool listsAreNulSeparated = false;
};

/// Adds "PATH...", "--files-from" and "-0". A command line that names no input, or standard input twice, is wrong. The
/// options must outlive the command. Uses the command's `parse_complete_callback`.
void addInputOptions(CLI::App& command, InputOptions& options);

}  // namespace tool
