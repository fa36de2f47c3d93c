#include <tests/bounds/long_texts.h>

namespace lv::test {
namespace {

TEST(LongTexts, OfAHundredMegabytesComeBack) {
    expectLongTextIsHandled(100'000'000);
}

}  // namespace
}  // namespace lv::test
