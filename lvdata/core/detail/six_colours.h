#pragma once

#include <array>

namespace lv::detail {

/// Element names for red, green, blue, cyan, magenta and yellow.
using SixNames = std::array<const char*, 6>;

/// Visits six numbers as one child element each; answers whether at least one was found.
template <class Io, class SixColours>
auto visitSixColours(Io& io, SixColours& colours, const SixNames& names) {
    auto any = io.value(names[0], colours.red);
    any |= io.value(names[1], colours.green);
    any |= io.value(names[2], colours.blue);
    any |= io.value(names[3], colours.cyan);
    any |= io.value(names[4], colours.magenta);
    any |= io.value(names[5], colours.yellow);
    return any;
}

}  // namespace lv::detail
