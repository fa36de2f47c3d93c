#pragma once

#include "ExitStatus.h"

#include <functional>

namespace tool {

/// Runs the whole command and returns its exit code. What it throws becomes a message; when the reader of standard
/// output is gone, the process ends by SIGPIPE.
int runCommand(const std::function<ExitStatus()>& command);

}  // namespace tool
