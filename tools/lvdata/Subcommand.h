#pragma once

#include "ExitStatus.h"

#include <functional>

#include <CLI/CLI.hpp>

namespace tool {

/// A subcommand whose options were added to the command line.
struct Subcommand {
    /// Owned by the application that it was added to.
    const CLI::App* parser;

    /// Called after the command line was parsed, when it names this subcommand. Throws `Failure` for an error that ends
    /// the command at once.
    std::function<ExitStatus()> run;
};

}  // namespace tool
