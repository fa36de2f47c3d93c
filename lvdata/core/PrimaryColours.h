#pragma once

#include <lvdata/core/colour.h>

/// The primaries of a display with its white and its black, all zero by default. A plain aggregate, copied by value.
///
/// `ProfileData` takes and returns measurements in this form. It uses only `X`, `Y` and `Z` of each colour.
struct PrimaryColours {
    colour red;    ///< The red primary.
    colour green;  ///< The green primary.
    colour blue;   ///< The blue primary.
    colour white;  ///< The white.
    colour black;  ///< The black. `ProfileData::measuredXYZLimited109_x` ignores it and returns it as zero.
};

namespace lv {
using ::PrimaryColours;
}  // namespace lv
