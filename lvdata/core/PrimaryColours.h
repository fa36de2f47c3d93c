#pragma once

#include <lvdata/core/colour.h>

/// The primaries of a display with its white and its black, all zero by default. A plain aggregate, copied by value.
struct PrimaryColours {
    colour red;
    colour green;
    colour blue;
    colour white;
    colour black;
};

namespace lv {
using ::PrimaryColours;
}  // namespace lv
