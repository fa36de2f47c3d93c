#pragma once

#include <cstddef>
#include <initializer_list>

namespace lv::detail {

// The numbers of entries at which arrays that are not colours count; those of colours are the sizes of their notations.

/// Of a look-up table of the monitor.
inline constexpr std::initializer_list<std::size_t> tableLengths = {256, 1024};

/// Of the emulation matrix.
inline constexpr std::initializer_list<std::size_t> matrixLengths = {9};

}  // namespace lv::detail
