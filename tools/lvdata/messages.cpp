#include "messages.h"

#include <lvdata/analysis/printable.h>

#include <iostream>

namespace tool {

void printMessage(std::string_view message) {
    std::cerr << lv::analysis::printable(message) + '\n' << std::flush;
}

}  // namespace tool
