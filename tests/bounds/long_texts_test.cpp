#include <tests/bounds/long_texts.h>

namespace lv::test {
namespace {

TEST(LongTexts, OfAMegabyteComeBack) {
    expectLongTextIsHandled(1'000'000);
}

}  // namespace
}  // namespace lv::test
