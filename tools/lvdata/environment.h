#pragma once

#include <string_view>

namespace tool {

/// The value of a variable; empty when it is not set.
[[nodiscard]] std::string_view environmentVariable(const char* name);

/// Whether the variable TERM names a terminal that can do more than print lines.
[[nodiscard]] bool terminalUnderstandsEscapes();

}  // namespace tool
