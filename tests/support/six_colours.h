#pragma once

#include <tests/support/Member.h>

namespace lv::test {

/// The members that every structure of six colours has.
template <class SixColours>
void membersOfSixColours(MemberList& list, SixColours& colours) {
    list.add("red", colours.red);
    list.add("green", colours.green);
    list.add("blue", colours.blue);
    list.add("cyan", colours.cyan);
    list.add("magenta", colours.magenta);
    list.add("yellow", colours.yellow);
}

}  // namespace lv::test
