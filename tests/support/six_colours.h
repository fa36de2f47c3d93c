#pragma once

#include <tests/support/Description.h>

namespace lv::test {

/// The members that every structure of six colours has.
template <class SixColours>
void describeSixColours(Description& out, const SixColours& colours) {
    out.member("red", colours.red);
    out.member("green", colours.green);
    out.member("blue", colours.blue);
    out.member("cyan", colours.cyan);
    out.member("magenta", colours.magenta);
    out.member("yellow", colours.yellow);
}

}  // namespace lv::test
