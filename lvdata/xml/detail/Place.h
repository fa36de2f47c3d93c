#pragma once

#include <cstddef>

namespace lv::detail {

/// Where in a text that is printed at once something goes: inside an element that is still open, or at document level.
struct Place {
    std::size_t depth = 0;   // so many elements are open around it
    std::size_t number = 0;  // of the innermost of them, in the order in which they were opened, from 1 on
};

}  // namespace lv::detail
