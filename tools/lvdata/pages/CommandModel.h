#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// An option or a positional argument, as the parser knows it.
struct OptionModel {
    std::vector<std::string> names;  // with dashes, short ones first; the name alone of a positional argument
    std::string value;               // "FILE", "N", "auto|always|never"; empty for a flag
    std::string help;
    bool isPositional;
    bool isRequired;
    bool isRepeated;

    /// The possible values, if they are a few words; otherwise empty.
    [[nodiscard]] std::vector<std::string> words() const;

    /// Whether the value is the name of a file.
    [[nodiscard]] bool isFile() const;
};

/// A command with its subcommands, as the parser knows them.
struct CommandModel {
    std::string name;  // without those above
    std::string help;
    std::vector<OptionModel> options;
    std::vector<OptionModel> positionals;
    std::vector<CommandModel> subcommands;
};

/// Everything that `--help` shows. Options without a group are hidden.
[[nodiscard]] CommandModel modelOf(const CLI::App& application);

}  // namespace tool
