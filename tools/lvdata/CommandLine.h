#pragma once

#include "ExitStatus.h"
#include "subcommands.h"

#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// The name of the command, also where a message has no file to name.
inline constexpr const char* program = "lvdata";

/// The command line of `lvdata`.
class CommandLine {
public:
    explicit CommandLine(const std::vector<SubcommandAdder>& subcommands);

    /// Parses the arguments and runs the subcommand that they name, or prints the help that they ask for. Throws
    /// `Failure` when they are wrong, and passes on what the subcommand throws.
    ExitStatus run(int argumentCount, char** arguments);

    [[nodiscard]] const CLI::App& parser() const { return application_; }

private:
    CLI::App application_;
    std::vector<Subcommand> subcommands_;
};

}  // namespace tool
