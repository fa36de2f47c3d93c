#pragma once

#include "ExitStatus.h"

#include <functional>

namespace tool {

/// Runs the whole command and returns its exit code. An exception becomes a message; when the reader of standard output
/// has closed the pipe, SIGPIPE ends the process.
int runCommand(const std::function<ExitStatus()>& command);

}  // namespace tool
