#pragma once

#include <cstddef>
#include <string>

#include <CLI/CLI.hpp>

namespace tool {

/// What a count may be.
struct CountRange {
    std::size_t smallest;
    std::size_t largest;
};

/// Adds an option for a decimal number in that range; hexadecimal and octal numbers are refused. The count must outlive
/// the command.
CLI::Option* addCountOption(CLI::App& command, const std::string& name, std::size_t& count, CountRange range,
                            const std::string& help);

}  // namespace tool
