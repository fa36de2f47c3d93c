#include "messages.h"

#include "printable.h"

#include <iostream>

namespace tool {

void printMessage(std::string_view message) {
    std::cerr << printable(message) + '\n' << std::flush;
}

}  // namespace tool
