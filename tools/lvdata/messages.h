#pragma once

#include <string_view>

namespace tool {

/// Writes a message to standard error as one line of printable text.
void printMessage(std::string_view message);

}  // namespace tool
