#include "environment.h"

#include <cstdlib>

namespace tool {

std::string_view environmentVariable(const char* name) {
    const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing here changes the environment
    return value == nullptr ? "" : value;
}

bool terminalUnderstandsEscapes() {
    const std::string_view terminal = environmentVariable("TERM");
    return !terminal.empty() && terminal != "dumb";
}

}  // namespace tool
