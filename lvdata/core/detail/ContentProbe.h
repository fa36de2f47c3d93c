#pragma once

#include <lvdata/core/Quantity.h>

#include <cstddef>
#include <vector>

namespace lv::detail {

/// Runs over a row's visit without writing, only to learn whether there is something to write.
struct ContentProbe {
    template <class Number>
    [[nodiscard]] static bool array(const char* /*name*/, const std::vector<Number>& member, std::size_t length,
                                    const Quantity& /*quantity*/) {
        return member.size() == length;
    }
};

}  // namespace lv::detail
