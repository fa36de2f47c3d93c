#include <tests/support/samples.h>

namespace lv::test {
namespace {

/// A colour whose every member has a value of its own.
colour shifted(double by) {
    auto value = filled<colour>();
    value.X += by;
    value.Y += by;
    value.Z += by;
    return value;
}

}  // namespace

void describe(Description& out, const PrimaryColours& value) {
    out.member("red", value.red);
    out.member("green", value.green);
    out.member("blue", value.blue);
    out.member("white", value.white);
    out.member("black", value.black);
}

template <>
PrimaryColours filled<PrimaryColours>() {
    return {shifted(1.0), shifted(2.0), shifted(3.0), shifted(4.0), shifted(5.0)};
}

}  // namespace lv::test
