#pragma once

#include <tests/support/Member.h>

#include <lvdata/core/PrimaryColours.h>
#include <lvdata/core/colour.h>

namespace lv::test {

inline void members(MemberList& list, colour& value) {
    list.add("cyan", value.cyan);
    list.add("magenta", value.magenta);
    list.add("yellow", value.yellow);
    list.add("black", value.black);
    list.add("red", value.red);
    list.add("green", value.green);
    list.add("blue", value.blue);
    list.add("X", value.X);
    list.add("Y", value.Y);
    list.add("Z", value.Z);
    list.add("x", value.x);
    list.add("y", value.y);
    list.add("extra0", value.extra0);
    list.add("L", value.L);
    list.add("a", value.a);
    list.add("b", value.b);
    list.add("extra1", value.extra1);
    list.add("extra2", value.extra2);
}

inline void members(MemberList& list, PrimaryColours& value) {
    list.add("red", value.red);
    list.add("green", value.green);
    list.add("blue", value.blue);
    list.add("white", value.white);
    list.add("black", value.black);
}

}  // namespace lv::test
