#pragma once

#include <cstddef>

namespace lv::detail {

/// A position in directly printed text: inside an open element, or at document level.
struct Place {
    std::size_t depth = 0;   // number of open elements around it
    std::size_t number = 0;  // serial number of the innermost one, from 1
};

}  // namespace lv::detail
