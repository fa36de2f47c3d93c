#pragma once

namespace tool {

/// How the command ends, and the number that it returns to the shell; the same for every subcommand and every format of
/// output. Later ones are worse.
enum class ExitStatus {
    done = 0,    // and nothing was found
    found = 1,   // findings or differences, or something was dropped or changed
    failed = 2,  // a wrong command line, or an input or output that could not be read or written
};

constexpr ExitStatus worst(ExitStatus left, ExitStatus right) {
    return left < right ? right : left;
}

}  // namespace tool
