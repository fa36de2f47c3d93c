#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const colour& value) {
    out.member("cyan", value.cyan);
    out.member("magenta", value.magenta);
    out.member("yellow", value.yellow);
    out.member("black", value.black);
    out.member("red", value.red);
    out.member("green", value.green);
    out.member("blue", value.blue);
    out.member("X", value.X);
    out.member("Y", value.Y);
    out.member("Z", value.Z);
    out.member("x", value.x);
    out.member("y", value.y);
    out.member("extra0", value.extra0);
    out.member("L", value.L);
    out.member("a", value.a);
    out.member("b", value.b);
    out.member("extra1", value.extra1);
    out.member("extra2", value.extra2);
}

template <>
colour filled<colour>() {
    return {0.01, 0.02, 0.03, 0.04, 0.05, 0.06, 0.07, 0.08, 0.09, 0.10, 0.11, 0.12, 0.13, 0.14, 0.15, 0.16, 0.17, 0.18};
}

}  // namespace lv::test
